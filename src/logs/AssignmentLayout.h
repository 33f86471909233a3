#pragma once

namespace corvane::assignment {

/// Widths of the two sides of a tab and of their name columns: the side in use is the wide one.
inline constexpr int WideAvailable = 5865;
inline constexpr int WideChosen = 5820;
inline constexpr int Narrow = 2610;
inline constexpr int WideColumn = 5275;
inline constexpr int NarrowColumn = 2025;

}  // namespace corvane::assignment
