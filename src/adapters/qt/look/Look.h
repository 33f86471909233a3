#pragma once

namespace corvane::qt {

/// Which palette to use: the one that fits the desktop's, or a given one.
enum class Scheme { Desktop, Light, Dark };

/// Gives the program its style, palette, font and icon. To be called once, between the QApplication and the first
/// window.
void SetUpLook(Scheme scheme = Scheme::Desktop);

}  // namespace corvane::qt
