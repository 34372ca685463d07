#pragma once

class QStyle;

namespace BRELK {

class BaseStyle;

namespace BaseStyles {

/// The one that answers in the end where `style` is asked, such as one of a style sheet, which does
/// not tell what it is around; null if there is none.
const BaseStyle* below(const QStyle& style);

} // namespace BaseStyles

} // namespace BRELK
