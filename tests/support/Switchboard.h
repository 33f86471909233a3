#pragma once

#include <string>
#include <vector>

namespace corvane::test {

/// A command of the main window and the ways to it: its key of the toolbar, its menu items by name. `Form` is the
/// screen that it opens; empty for one that acts by itself.
struct Command {
  std::string Key;
  std::string Form;
  std::vector<std::string> Items;
};

/// Every command there is. A screen that comes in adds its line.
inline const std::vector<Command> Switchboard = {
    {"add", "frmLogEdit", {"mnuFileAdd", "mnuHiddenAdd"}},
    {"edit", "frmLogEdit", {"mnuFileEdit", "mnuHiddenEdit"}},
    {"delete", "", {"mnuFileDelete", "mnuHiddenDelete"}},
    {"deletesyslog", "", {"mnuFileSyslogDelete", "mnuHiddenSyslogDelete"}},
    {"eventviewer", "", {"mnuFileEventViewer", "mnuHiddenEventViewer"}},
    {"refresh", "", {"mnuViewRefresh"}},
    {"databasetools", "", {"mnuDatabaseOther"}},
    {"viewlogentries", "frmLogView", {"mnuToolsViewLogEntries"}},
    {"setserviceaccount", "frmServiceAccount", {"mnuOptionsServiceAccount"}},
    {"startservice", "frmControlService", {}},
    {"stopservice", "frmControlService", {}},
    {"setdefaultdomain", "frmDomainChooser", {"mnuOptionsDefaultDomain"}},
    {"customdomains", "frmCustomDomainManager", {"mnuOptionsCustomDomains"}},
    {"retrievecomputersfrom", "frmComputerEnum", {"mnuOptionsComputerNames"}},
    {"", "frmStartup", {"mnuHelpAbout"}},
    {"",
     "",
     {"mnuFileExit", "mnuOptionsStartService", "mnuOptionsStopService", "mnuOptionsStartService2",
      "mnuOptionsStopService2", "mnuHelpVisitTarnwick", "mnuHelpTarnwickSoftwareCatalog", "mnuHelpUpgradeCheck",
      "mnuHelpCVHelpFile"}},
};

}  // namespace corvane::test
