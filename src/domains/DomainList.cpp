#include "domains/DomainList.h"

#include "core/PassOver.h"
#include "core/SqlText.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/NetX.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

std::string WithBackslashes(const std::string& server) { return server.starts_with("\\\\") ? server : "\\\\" + server; }

std::string ControllerByDirectory(modMain& main, const std::string& domain) {
  std::string controller;
  PassOver([&] { controller = main.DirectoryApi->DsGetFlatDCName(domain); });
  return controller;
}

std::string ControllerByNetX(modMain& main, const std::string& domain) {
  std::string name;
  main.Platform.NetX.EnumServers(domain, name, NetX::DomainController, NetX::Begin);
  return name.empty() ? name : "\\\\" + name;
}

std::string TrustName(modMain& main, const std::string& server, int flags, int index) {
  std::string name;
  PassOver([&] { name = main.DirectoryApi->DsGetDomainTrustInfo(server, flags, index); });
  return name;
}

void FillByDirectory(modMain& main, const std::string& domain, ui::ComboBox& box) {
  box.Clear();
  const std::string server = WithBackslashes(DomainControllerName(main, domain));
  std::string primary = TrustName(main, server, DirectoryApi::PrimaryDomain, 1);
  // A workgroup has no controller that could name it: it stands in the list under the name that was chosen for it.
  if (primary.empty()) primary = domain;
  if (!primary.empty()) box.AddItem(primary);
  int trusts = 0;
  PassOver([&] { trusts = main.DirectoryApi->DsGetNumberOfTrusts(server, DirectoryApi::DirectlyTrusted); });
  for (int i = 1; i <= trusts; ++i) box.AddItem(TrustName(main, server, DirectoryApi::DirectlyTrusted, i));
}

// Every name of a trust carries one character too many.
void AddTrust(ui::ComboBox& box, std::string name) {
  if (name.empty()) return;
  name.pop_back();
  if (!name.empty()) box.AddItem(name);
}

void FillByNetX(modMain& main, const std::string& domain, ui::ComboBox& box) {
  box.Clear();
  box.AddItem(domain);
  std::string controller;
  const bool found = main.Platform.NetX.EnumServers(domain, controller, NetX::DomainController, NetX::Begin);
  if (controller.empty() && !found) return;
  std::string name;
  int mode = NetX::Begin;
  while (main.Platform.NetX.EnumTrustedDomains("\\\\" + controller, name, mode)) {
    AddTrust(box, name);
    name.clear();
    mode = NetX::Continue;
    main.Ui.DoEvents();
  }
  AddTrust(box, name);
}

}  // namespace

std::string DomainControllerName(modMain& main, const std::string& domain) {
  return main.DirectoryApi ? ControllerByDirectory(main, domain) : ControllerByNetX(main, domain);
}

std::string FlatDomainName(modMain& main, const std::string& domain) {
  if (!main.DirectoryApi) return ControllerByNetX(main, domain);
  const std::string controller = ControllerByDirectory(main, domain);
  return controller.starts_with("\\\\") ? controller.substr(2) : controller;
}

void FillDomainList(modMain& main, ui::ComboBox& box) {
  const std::string domain = main.Setting("DefaultDomain");
  if (main.DirectoryApi)
    FillByDirectory(main, domain, box);
  else
    FillByNetX(main, domain, box);
  const int known = box.IndexOf(domain);
  box.SetListIndex(known >= 0 ? known : (box.Count() > 0 ? 0 : -1));
}

void AddDatabaseDomains(modMain& main, ui::ComboBox& box) {
  Recordset& rows = *main.SharedRecordset;
  PassOver([&] {
    rows.Open("SELECT DISTINCT [Domain] FROM RegisteredServers", *main.ConfigConnection, CursorType::Dynamic,
              LockType::Optimistic);
    for (; !rows.Eof(); rows.MoveNext()) {
      const std::string domain = UpperCase(NullToEmpty(rows.Field("Domain")));
      bool known = false;
      for (const std::string& entry : box.All()) known = known || UpperCase(entry) == domain;
      if (!known) box.AddItem(domain);
    }
  });
  if (rows.State() == ObjectState::Open) rows.Close();
}

}  // namespace corvane
