#include "adapters/qt/bindings/StatusBarBinding.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

#include "adapters/qt/Text.h"
#include "adapters/qt/look/Icons.h"

namespace corvane::qt {
namespace {

constexpr int PictureSize = 16;

}  // namespace

StatusBarBinding::StatusBarBinding(FormView& view, ui::StatusBar& control)
    : Binding(view, control, nullptr), control_(control), bar_(new QStatusBar) {
  static_cast<QMainWindow&>(view.Window()).setStatusBar(bar_);
  bar_->setObjectName(ToQt(control.Name()));
  bar_->setSizeGripEnabled(false);
  SetWidget(bar_);
}

void StatusBarBinding::AddPanel(const ui::StatusPanel& model, bool first) {
  Panel panel{new QWidget, new QLabel, new QLabel, {}};
  auto* row = new QHBoxLayout(panel.Box);
  row->setContentsMargins(8, 2, 8, 2);
  row->setSpacing(6);
  row->addWidget(panel.Picture);
  row->addWidget(panel.Text, 1);
  panel.Text->setTextFormat(Qt::PlainText);
  panel.Text->setObjectName(ToQt(model.Key));
  panel.Picture->hide();
  bar_->addPermanentWidget(panel.Box, first ? 1 : 0);
  panels_.push_back(std::move(panel));
}

void StatusBarBinding::Update() {
  while (panels_.size() < control_.Panels.size()) AddPanel(control_.Panels[panels_.size()], panels_.empty());
  for (std::size_t i = 0; i < panels_.size() && i < control_.Panels.size(); ++i)
    UpdatePanel(panels_[i], control_.Panels[i]);
}

void StatusBarBinding::UpdatePanel(Panel& panel, const ui::StatusPanel& model) {
  if (const QString text = ToQt(model.Text); panel.Text->text() != text) panel.Text->setText(text);
  if (panel.Shown == model.Picture) return;
  panel.Shown = model.Picture;
  panel.Picture->setPixmap(icons::Picture(model.Picture, {PictureSize, PictureSize}, panel.Box->devicePixelRatioF()));
  panel.Picture->setVisible(!model.Picture.empty());
}

}  // namespace corvane::qt
