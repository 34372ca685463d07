#pragma once

class QWidget;

/// What polish hands to the widgets of companion libraries, which draw with the theme's values but
/// cannot ask for them.
namespace BRELK {

class BaseStyle;

namespace HandOuts {

void setCardTitleFonts(BaseStyle&, QWidget& widget);
void dressCard(BaseStyle&, QWidget& widget);
void roundGroupContainer(BaseStyle&, QWidget& widget);
void dressButtonGroup(BaseStyle&, QWidget& widget);
void dressRoundedPixmap(BaseStyle&, QWidget& widget);
void setPillFont(BaseStyle&, QWidget& widget);
void dressPeriodicTable(BaseStyle&, QWidget& widget);
void dressRangeSlider(BaseStyle&, QWidget& widget);

} // namespace HandOuts

} // namespace BRELK
