#include "adapters/qt/bindings/TabBinding.h"

#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "adapters/qt/Text.h"

namespace corvane::qt {

TabBinding::TabBinding(FormView& view, ui::TabControl& control, QTabWidget* tabs)
    : Binding(view, control, tabs), control_(control), tabs_(tabs) {
  // A click leaves the focus on the bar: it must not wander into the page and tell its first field of it.
  tabs->tabBar()->setFocusPolicy(Qt::StrongFocus);
  connect(tabs, &QTabWidget::currentChanged, this, [this](int page) {
    if (!IsUsers() || page < 0) return;
    control_.Tab = page;
    Fire(control_.Click);
  });
}

void TabBinding::Update() {
  const int pages = std::min(tabs_->count(), static_cast<int>(control_.Captions.size()));
  for (int page = 0; page < pages; ++page) {
    const QString caption = ToQt(control_.Captions[static_cast<std::size_t>(page)]);
    if (tabs_->tabText(page) != caption) tabs_->setTabText(page, caption);
  }
  if (tabs_->currentIndex() != control_.Tab) tabs_->setCurrentIndex(control_.Tab);
}

}  // namespace corvane::qt
