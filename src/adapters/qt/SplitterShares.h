#pragma once

#include <vector>

class QSplitter;
class QWidget;

namespace corvane::qt {

class FormView;

/// Gives the panes of a form's splitters their shares: that of the widest control which lies in a pane. A splitter with
/// a pane that has none is left alone.
class SplitterShares {
 public:
  SplitterShares(QWidget& content, const FormView& view);
  /// Lays the panes out anew where a share has changed since the last time; else the user's own division stays.
  void Flush();

 private:
  struct Shared {
    QSplitter* Splitter;
    std::vector<int> Shares;
  };

  std::vector<int> SharesOf(const QSplitter& splitter) const;

  const FormView& view_;
  std::vector<Shared> splitters_;
};

}  // namespace corvane::qt
