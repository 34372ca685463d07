#pragma once

/// The numbers that line edits, combo boxes, spin boxes and date editors must agree on: all are
/// equally high, and their texts begin equally far from their borders. In pixels of a screen of 96
/// dots per inch where it says scaled.
namespace BRELK::InputMetrics {

/// Above and below the text, scaled.
inline constexpr int ControlPadding = 5;

/// From the edge of an input to its editor, scaled,
inline constexpr int TextPadding = 4;
/// and from the edge of the editor to the text, which is Qt's own.
inline constexpr int EditorMargin = 2;

/// How far the editor of a combo box stands in it: that of the base style, moved by one.
inline constexpr int EditorInComboBox = 3;
/// The same of spin boxes, and what its buttons keep from its end.
inline constexpr int EditorInSpinBox = 1;
inline constexpr int BeforeButtons = 1;

/// By which a spin box is larger than its editor, on either side.
inline constexpr int SpinBoxFrame = 4;

/// The focus margin of the rows in the popup of a combo box: words begin below those of the box,
/// icons and check boxes below its icon. Scaled.
inline constexpr int PopupTextMargin = TextPadding + EditorMargin - 1;
inline constexpr int PopupMarkMargin = PopupTextMargin - EditorMargin;

} // namespace BRELK::InputMetrics
