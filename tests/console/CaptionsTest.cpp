#include "admin/frmServiceAccount.h"
#include "app/installation/TextFile.h"
#include "core/console/frmBegin.h"
#include "core/console/frmControlService.h"
#include "core/console/frmLogView.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmCustomDomainManager.h"
#include "domains/frmDomainChooser.h"
#include "logs/frmLogEdit.h"
#include "support/ConsoleTest.h"

namespace corvane::test {
namespace {

template <class T>
std::string CaptionAs(const ui::Control& control) {
  const auto* captioned = dynamic_cast<const T*>(&control);
  return captioned ? captioned->Caption : "";
}

// All texts that the user sees of a control: its name and behind it each text, or nothing where there is none.
std::string TextsOf(const ui::Control& control) {
  std::vector<std::string> all{CaptionAs<ui::Label>(control),        CaptionAs<ui::CommandButton>(control),
                               CaptionAs<ui::CheckBox>(control),     CaptionAs<ui::Frame>(control),
                               CaptionAs<ui::OptionButton>(control), CaptionAs<ui::MenuItem>(control)};
  if (const auto* tabs = dynamic_cast<const ui::TabControl*>(&control))
    all.insert(all.end(), tabs->Captions.begin(), tabs->Captions.end());
  if (const auto* list = dynamic_cast<const ui::ListView*>(&control))
    for (const ui::ListColumn& column : list->Columns) all.push_back(column.Header);
  all.push_back(control.ToolTip);
  std::string texts;
  for (const std::string& text : all)
    if (!text.empty()) texts += " | " + text;
  if (texts.empty() || texts == " | -") return "";
  return std::string(control.Name()) + (control.Index < 0 ? "" : "_" + std::to_string(control.Index)) + texts + "\n";
}

// The words on the screens are settled to the letter, odd spellings and double blanks included.
TEST_F(ConsoleTest, CaptionsAreTheSettledOnes) {
  Console.Start();
  frmBegin begin(Main);
  frmStartup about(Main);
  frmLogEdit editor(Main);
  frmControlService stop(Main, {}), start(Main, {});
  start.IsStart = true;
  frmLogView events(Main);
  frmDomainChooser domain(Main);
  frmComputerEnum computers(Main);
  frmCustomDomainManager mappings(Main);
  frmServiceAccount account(Main);
  std::string shown;
  for (ui::Form* form : std::initializer_list<ui::Form*>{&Window(), &begin, &about, &editor, &stop, &start, &events,
                                                         &domain, &computers, &mappings, &account}) {
    form->Load();
    if (auto* services = dynamic_cast<frmControlService*>(form)) services->InitForm();
    shown += "[" + std::string(form->Name()) + "] " + form->Caption + "\n";
    for (const ui::Control* control : form->Controls()) shown += TextsOf(*control);
    shown += "\n";
  }
  EXPECT_EQ(ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/Captions.txt"), shown);
}

}  // namespace
}  // namespace corvane::test
