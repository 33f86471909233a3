#include "core/console/frmStartup.h"

#include "core/Version.h"
#include "core/modMain.h"
#include "platform/System.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 170;
constexpr int Stages = 3;

std::string CopyrightOf(int year) {
  std::string text = "Copyright (c) XXXX Tarnwick Software.  All rights reserved.";
  return text.replace(text.find("XXXX"), 4, std::to_string(year));
}

}  // namespace

frmStartup::frmStartup(modMain& main) : Form(main.Ui, "frmStartup"), main_(main) {
  Caption = "About Corvane";
  HelpContext = HelpTopic;
  imgStartup.Picture = "startup";
  lblProduct.Caption = "Corvane";
  lblStartupInfo[0].Index = 0;
  lblStartupInfo[1].Index = 1;
  prgStartup.Max = Stages;
  cmdClose.Caption = "Close";
  cmdClose.Default = cmdClose.Cancel = true;
  cmdClose.Click = [this] { Unload(); };
}

bool frmStartup::Form_Load() {
  System& system = main_.Platform.System;
  lblVersion.Caption = "Version:  " + VersionText();
  lblStartupInfo[0].Caption = "Username: " + system.UserName().value_or("");
  lblStartupInfo[1].Caption = "Computer: " + system.ComputerName().value_or("");
  lblCopyright.Caption = CopyrightOf(PartsOf(system.Now()).Year);
  SetAbout(false);
  return true;
}

void frmStartup::SetAbout(bool about) {
  MousePointer = about ? ui::Pointer::Default : ui::Pointer::Hourglass;
  cmdClose.Visible = about;
  prgStartup.Visible = lblProgress.Visible = !about;
  prgStartup.Value = 0;
  if (about)
    Click = [this] { Unload(); };
  else
    Click = nullptr;
}

}  // namespace corvane
