#pragma once

namespace views {

/// Between the main window's edge and what is in it, in pixels.
inline constexpr int Margin = 8;
/// In the main window, between what belongs together, in pixels.
inline constexpr int Gap = 4;

} // namespace views
