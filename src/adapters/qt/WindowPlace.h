#pragma once

class QWidget;

namespace corvane::qt {

/// Makes a window, not shown yet, stand above another and in its middle; a modal one blocks it and those below. The two
/// are no family of the toolkit: either may go first.
void PlaceAbove(QWidget& window, QWidget* opener, bool modal);

}  // namespace corvane::qt
