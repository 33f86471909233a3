#include "adapters/qt/SplitterShares.h"

#include <QSplitter>
#include <algorithm>

#include "adapters/qt/FormView.h"
#include "adapters/qt/bindings/Binding.h"

namespace corvane::qt {
SplitterShares::SplitterShares(QWidget& content, const FormView& view) : view_(view) {
  for (QSplitter* splitter : content.findChildren<QSplitter*>()) {
    splitter->setChildrenCollapsible(false);
    splitters_.push_back({splitter, {}});
  }
}

// A splitter takes sizes as shares of what room it has, now and whenever it is resized.
void SplitterShares::Flush() {
  for (Shared& shared : splitters_) {
    std::vector<int> shares = SharesOf(*shared.Splitter);
    if (shares == shared.Shares) continue;
    shared.Shares = std::move(shares);
    if (std::find(shared.Shares.begin(), shared.Shares.end(), 0) == shared.Shares.end())
      shared.Splitter->setSizes({shared.Shares.begin(), shared.Shares.end()});
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

}  // namespace corvane::qt
