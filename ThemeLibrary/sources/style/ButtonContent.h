#pragma once

#include "StyleContext.h"

/// Prepares what a button-like control shows before it is painted: text and icon in the control's
/// foreground.
namespace BRELK::ButtonContent {

/// The brush that `role` is painted in: the application's own, where it set that role on the widget
/// or above it, else `themed`, else the palette's.
QBrush textBrush(const QStyleOption& option, const QWidget* widget, QPalette::ColorRole role,
                 const QBrush& themed);

/// The brush that a button-like control writes and draws in, on the ground that it shows.
QBrush foreground(const QStyleOption& option, const QWidget* widget);

/// `icon` in `brush`; as it is for a brush that paints nothing.
QIcon commonModifyStyleOptionIcon(const QIcon& icon, const QBrush& brush);

/// Recolors the option's icon with `brush`.
void modifyStyleOptionIcon(QStyleOptionButton& option, const QBrush& brush);
void modifyStyleOptionIcon(QStyleOptionToolButton& option, const QBrush& brush);
void modifyStyleOptionIcon(QStyleOptionComboBox& option, const QBrush& brush);
void modifyStyleOptionIcon(QStyleOptionViewItem& option, const QBrush& brush);

/// Makes `brush` that of the option's texts and arrows, in the current color group of its palette.
void setForeground(QStyleOption& option, const QBrush& brush);

/// Gives the option's texts and arrows the foreground of its button brushes.
void commonCallButtonText(QStyleOption& option, const QWidget* widget);

/// As above, and recolors the icon.
void commonCallButtonText(QStyleOptionButton& option, const QWidget* widget);
void commonCallButtonText(QStyleOptionToolButton& option, const QWidget* widget);

} // namespace BRELK::ButtonContent
