#include "core/console/Console.h"

#include "admin/frmServiceAccount.h"
#include "core/ConfigDatabase.h"
#include "core/ServiceControl.h"
#include "core/Settings.h"
#include "core/TimeStamp.h"
#include "core/console/frmBegin.h"
#include "domains/CustomDomains.h"
#include "domains/frmComputerEnum.h"
#include "domains/frmDomainChooser.h"
#include "notifications/SyslogDataFiles.h"
#include "platform/Conversions.h"
#include "platform/Launcher.h"
#include "platform/RuntimeError.h"
#include "platform/System.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr const char* EventSourceKey = "System\\CurrentControlSet\\Services\\EventLog\\Application\\Corvane Service";
constexpr int AllEventTypes = 7;
constexpr int FirstVersionWithDirectory = 5;
constexpr int FirstVersionWithChannels = 6;

// Fixed pauses in which the user reads the splash; they guard nothing.
constexpr int PauseBeforeWindow = 400;
constexpr int PausePerStage = 500;

}  // namespace

Console::Console(Platform& platform) : main_(platform) {}

Console::~Console() = default;

void Console::Main() {
  if (!main_.Platform.Instance.Acquire()) return;
  main_.Ui.Title = "Corvane";
  main_.InitGlobals();
  if (IsFirstRun()) {
    RegisterEventSource();
    frmBegin(main_).ShowModal();
  }
  main_.Ui.Sleep(PauseBeforeWindow);
  pager_ = std::make_unique<cvbTAPI>(main_, main_.Platform.Phones);
  mainWindow_ = std::make_unique<frmCVMain>(main_, *pager_);
  mainWindow_->Load();
  main_.CVMain = mainWindow_.get();
  MakeNetworkObjects();

  splash_ = std::make_unique<frmStartup>(main_);
  splash_->Load();
  splash_->SetAbout(false);
  splash_->Show();
  ShowSplashStage("Initializing data access...");
  OpenConfigDatabase(main_);
  ApplyConfigUpdate(main_);
  if (IsFirstRun()) RunFirstRunChain();
  FillDomains();
  ShowSplashStage("Loading registered logs...");
  mainWindow_->RefillSyslogs(false);
  mainWindow_->RefillLogs(false);
  mainWindow_->InitActiveTab();
  ShowSplashStage("Checking status of services...");
  mainWindow_->ShowService(Service::Monitoring, CorvaneServiceState(main_.Platform.Services) == 1);
  mainWindow_->ShowService(Service::SyslogBridge, SyslogBridgeState(main_.Platform.Services) == 1);
  splash_->Unload();
  // The bridge has what the table holds, whoever changed it meanwhile. A failure is told by the next command only.
  UpdateSyslogBridge(main_, main_.Platform.Pipes, mainWindow_->lvwSyslogs);
  mainWindow_->Show();
  splash_.reset();
  CheckRapidConfigSetting();
}

bool Console::IsFirstRun() const { return main_.Setting("Created") != "1"; }

void Console::RegisterEventSource() {
  if (main_.Registry.DeNullString(main_.Registry.GetKeyValue(EventSourceKey, "EventMessageFile")).empty())
    main_.Registry.CreateNewKey(EventSourceKey, registry::LocalMachine);
  main_.Registry.SetKeyValue(EventSourceKey, "EventMessageFile",
                             main_.Platform.System.ProgramFolder() + "\\corvane.exe", registry::String);
  main_.Registry.SetKeyValue(EventSourceKey, "TypesSupported", AllEventTypes, registry::Number);
}

void Console::MakeNetworkObjects() {
  const int version = main_.Platform.System.MajorVersion();
  main_.HasDirectoryApi = version >= FirstVersionWithDirectory;
  main_.HasChannelApi = version >= FirstVersionWithChannels;
  if (main_.HasDirectoryApi) main_.DirectoryApi = main_.Platform.CreateDirectoryApi();
  if (main_.HasChannelApi) main_.ChannelReader = main_.Platform.CreateChannelReader();
}

void Console::ShowSplashStage(const char* caption) {
  ++splash_->prgStartup.Value;
  splash_->lblProgress.Caption = caption;
  main_.Ui.DoEvents();
  main_.Ui.Sleep(PausePerStage);
}

// Each dialog opens when the former is closed, however that was: only the account decides whether the next start is a
// first run again.
void Console::RunFirstRunChain() {
  frmDomainChooser chooser(main_);
  chooser.Load();
  chooser.IsFirstRun = true;
  chooser.ShowModal();
  frmServiceAccount(main_).ShowModal();
  if (StartSyslogBridgeNow(main_.Platform.Services) == 1) mainWindow_->ShowService(Service::SyslogBridge, true);
  frmComputerEnum(main_).ShowModal();
  main_.SaveSetting("LastUpgradeCheck", TimeStampText(main_.Platform.System.Now()));
}

// The domains of the database come last: they are only those that nothing else told of.
void Console::FillDomains() {
  mainWindow_->FillTrustingDomains();
  LoadCustomDomains(main_, mainWindow_->lstDomain);
  mainWindow_->FillDatabaseDomains();
}

// The installation provides this number. A console without it ends here, with its window already on the screen.
void Console::CheckRapidConfigSetting() const {
  const std::string stored = main_.Registry.GetKeyValue(SettingsKey, "RCAtStartup");
  if (!IsNumeric(stored.substr(0, stored.find('\0')))) throw RuntimeError(errors::TypeMismatch, "Type mismatch");
}

}  // namespace corvane
