#include "adapters/qt/SplitterShares.h"

#include <QSplitter>
#include <algorithm>
#include <numeric>

#include "adapters/qt/FormView.h"
#include "adapters/qt/bindings/Binding.h"

namespace corvane::qt {

SplitterShares::SplitterShares(QWidget& content, const FormView& view) : view_(view) {
  for (QSplitter* splitter : content.findChildren<QSplitter*>()) {
    splitter->setChildrenCollapsible(false);
    splitters_.push_back({splitter, {}});
  }
}

void SplitterShares::Flush() {
  for (Shared& shared : splitters_) {
    std::vector<int> shares = SharesOf(*shared.Splitter);
    if (shares == shared.Shares) continue;
    shared.Shares = std::move(shares);
    Divide(*shared.Splitter, shared.Shares);
  }
}

std::vector<int> SplitterShares::SharesOf(const QSplitter& splitter) const {
  std::vector<int> shares(static_cast<std::size_t>(splitter.count()), 0);
  for (const ui::Control* control : view_.Form().Controls()) {
    if (control->Width <= 0) continue;
    const Binding* binding = view_.Find(*control);
    if (binding == nullptr || binding->Widget() == nullptr) continue;
    for (std::size_t pane = 0; pane < shares.size(); ++pane) {
      const QWidget* widget = splitter.widget(static_cast<int>(pane));
      if (widget == binding->Widget() || widget->isAncestorOf(binding->Widget()))
        shares[pane] = std::max(shares[pane], control->Width);
    }
  }
  return shares;
}

// The stretch factors keep the division when the window is made larger or smaller.
void SplitterShares::Divide(QSplitter& splitter, const std::vector<int>& shares) {
  const int total = std::accumulate(shares.begin(), shares.end(), 0);
  if (total == 0) return;
  int free = splitter.width() - splitter.handleWidth() * (splitter.count() - 1);
  for (int pane = 0; pane < splitter.count(); ++pane)
    if (shares[static_cast<std::size_t>(pane)] == 0) free -= splitter.widget(pane)->sizeHint().width();
  QList<int> sizes;
  for (int pane = 0; pane < splitter.count(); ++pane) {
    const int share = shares[static_cast<std::size_t>(pane)];
    splitter.setStretchFactor(pane, share);
    sizes << (share == 0 ? splitter.widget(pane)->sizeHint().width() : std::max(0, free) * share / total);
  }
  splitter.setSizes(sizes);
}

}  // namespace corvane::qt
