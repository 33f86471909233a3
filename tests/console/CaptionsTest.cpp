#include <gtest/gtest.h>

#include "admin/frmServiceAccount.h"
#include "app/installation/TextFile.h"
#include "core/console/frmBegin.h"
#include "core/console/frmControlService.h"
#include "core/console/frmLogView.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "logs/frmLogEdit.h"
#include "support/TestConsole.h"

namespace corvane::test {
namespace {

// All texts that the user sees on a form, a line for each control that has any.
class Texts {
 public:
  explicit Texts(const ui::Form& form) : form_(form) {
    all_ = "[" + std::string(form.Name()) + "] " + form.Caption + "\n";
    for (const ui::Control* control : form.Controls()) Add(*control);
  }
  const std::string& All() const { return all_; }

 private:
  void Add(const ui::Control& control) {
    std::string texts;
    const auto add = [&](const std::string& text) {
      if (!text.empty()) texts += " | " + text;
    };
    switch (control.Kind()) {
      case ui::ControlKind::Label:
        add(static_cast<const ui::Label&>(control).Caption);
        break;
      case ui::ControlKind::CommandButton:
        add(static_cast<const ui::CommandButton&>(control).Caption);
        break;
      case ui::ControlKind::CheckBox:
        add(static_cast<const ui::CheckBox&>(control).Caption);
        break;
      case ui::ControlKind::OptionButton:
        add(static_cast<const ui::OptionButton&>(control).Caption);
        break;
      case ui::ControlKind::Frame:
        add(static_cast<const ui::Frame&>(control).Caption);
        break;
      case ui::ControlKind::MenuItem:
        add(static_cast<const ui::MenuItem&>(control).Caption);
        break;
      case ui::ControlKind::TabControl:
        for (const std::string& caption : static_cast<const ui::TabControl&>(control).Captions) add(caption);
        break;
      case ui::ControlKind::ListView:
        for (const ui::ListColumn& column : static_cast<const ui::ListView&>(control).Columns) add(column.Header);
        break;
      default:
        break;
    }
    add(control.ToolTip);
    if (texts.empty() || texts == " | -") return;
    all_ += std::string(control.Name()) + (control.Index < 0 ? "" : "_" + std::to_string(control.Index)) + texts + "\n";
  }

  const ui::Form& form_;
  std::string all_;
};

// The words on the screens are settled to the letter, odd spellings and double blanks included.
TEST(Captions, AreTheSettledOnes) {
  TestConsole console;
  console.Start();
  modMain& main = console.App.State();
  frmBegin begin(main);
  frmStartup about(main);
  frmLogEdit editor(main);
  frmControlService services(main, [](Service) {});
  frmLogView events(main);
  frmDomainChooser domain(main);
  frmComputerEnum computers(main);
  frmCustomDomainManager mappings(main);
  frmServiceAccount account(main);
  std::string shown;
  for (ui::Form* form : std::initializer_list<ui::Form*>{&console.Window(), &begin, &about, &editor, &services, &events,
                                                         &domain, &computers, &mappings, &account}) {
    form->Load();
    if (form == &services) services.InitForm();
    shown += Texts(*form).All() + "\n";
  }
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/Captions.txt"), shown);
}

}  // namespace
}  // namespace corvane::test
