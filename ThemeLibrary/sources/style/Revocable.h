#pragma once

class QWidget;

/// What the style changes of widgets for itself alone. A value that the application set is left as
/// it is, and the second function of each pair takes back what the first one did.
namespace BRELK {

class BaseStyle;

namespace Revocable {

/// Of a `QLCDNumber`: the raised segments that are the default are drawn, when small, in nothing
/// but their shades.
void flattenDigits(BaseStyle&, QWidget& widget);
void raiseDigits(QWidget& widget);

/// Of a `QCalendarWidget`: the toolkit's pure red is hard to read on any ground, and one that is
/// disabled keeps its accent. To be called again when that changes.
void calmCalendar(BaseStyle&, QWidget& widget);
void reddenCalendar(QWidget& widget);

/// Keeps a status bar as high as the lines that it shows. The height it has stays when the style
/// goes, but follows the lines no more.
void raiseStatusBar(BaseStyle&, QWidget& widget);
void lowerStatusBar(QWidget& widget);

} // namespace Revocable

} // namespace BRELK
