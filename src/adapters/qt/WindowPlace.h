#pragma once

class QWidget;

namespace corvane::qt {

/// Makes a window, not shown yet, stand above another and in its middle, and block it. The two are no family of the
/// toolkit: either may go first. Without an opener it blocks every window.
void PlaceAbove(QWidget& window, QWidget* opener, bool modal);

}  // namespace corvane::qt
