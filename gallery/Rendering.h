#pragma once

namespace Gallery {

struct Settings;

/// Writes the page that `settings` names, or every page, to its render directory as "<name>.png"
/// and prints the paths. Returns false after a message when a file cannot be written.
///
/// The pictures depend on nothing but the theme, direction and scale: nothing blinks or moves.
bool renderPages(const Settings& settings);

} // namespace Gallery
