#pragma once

#include "StyleContext.h"

/// In what brush a button-like control writes and draws, and its options and icons in that brush.
namespace BRELK::Foregrounds {

/// The brush that a button-like control writes in on a panel that the theme fills with `ground`, or
/// without a panel on what it stands on: the application's own for `role`, else `themed`, else the
/// palette's. Whatever that is, it is read on the ground.
QBrush ofText(const StyleContext& context, QPalette::ColorRole role, const QBrush& themed,
              const QBrush& ground);

/// The brush that a button-like control writes and draws in, on the ground that it shows.
QBrush of(const StyleContext& context);

/// `icon` in `brush`; as it is for a brush that paints nothing.
QIcon commonModifyStyleOptionIcon(const QIcon& icon, const QBrush& brush);

/// Makes `brush` that of the option's texts and arrows, in the current color group of its palette.
void set(QStyleOption& option, const QBrush& brush,
         QPalette::ColorRole role = QPalette::ButtonText);

/// Gives the option's texts and arrows the foreground of its button brushes, and recolors the icon
/// that an option of buttons has.
void commonCallButtonText(const BaseStyle& style, QStyleOption& option, const QWidget* widget);

} // namespace BRELK::Foregrounds
