#pragma once

/// How strongly what is hinted at shows, where no theme says it: of 1.
namespace BRELK::Opacities {

/// Of the accent over a row that is pointed at.
inline constexpr double HoveredItem = 0.24;

/// Of the box or circle around the mark of a menu's row.
inline constexpr double MenuMarkBorder = 0.6;

/// Of the next surface over the tab of a tool box that is pointed at, where it is as light as
/// words.
inline constexpr double HoveredToolBoxTab = 0.35;

} // namespace BRELK::Opacities
