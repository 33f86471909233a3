#include "domains/Computers.h"

#include "core/PassOver.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/DirectoryProvider.h"
#include "platform/NetX.h"
#include "platform/System.h"
#include "platform/ui/ListControls.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

using Add = std::function<void(const std::string&)>;

/// `UserFlags` from here on belong to a server trust account, which is a domain controller.
constexpr long ServerTrustAccount = 8192;

std::string LocalComputer(modMain& main) { return main.Platform.System.ComputerName().value_or(""); }

void FromBrowseList(modMain& main, const std::string& domain, const Add& add) {
  NetX& net = main.Platform.NetX;
  std::string name;
  if (!net.EnumServers(domain, name, NetX::WindowsNT, NetX::Begin)) {
    add(name.empty() ? LocalComputer(main) : name);
    return;
  }
  do {
    add(name);
    name.clear();
    main.Ui.DoEvents();
  } while (net.EnumServers(domain, name, NetX::WindowsNT, NetX::Continue));
}

void FromAccounts(modMain& main, const std::string& domain, bool includeControllers, const Add& add) {
  const std::string container = "WinNT://" + domain;
  for (const std::string& name : main.Platform.Directory.Children(container, "computer"))
    PassOver([&] {
      const long flags = main.Platform.Directory.UserFlags(container + "/" + UpperCase(name) + "$");
      if (includeControllers || flags < ServerTrustAccount) add(name);
    });
}

void FromUnit(modMain& main, const Add& add) {
  const std::string query = "<" + main.Setting("OUPath") + ">;(objectClass=computer);name;subtree";
  for (const std::string& name : main.Platform.Units.Search(query)) add(UpperCase(name));
}

}  // namespace

void ForEachComputer(modMain& main, const std::string& domain, bool includeControllers, const Add& add) {
  bool any = false;
  const Add note = [&](const std::string& name) {
    any = true;
    add(name);
  };
  main.Ui.DoEvents();
  const double source = main.SettingNumber("ComputerEnum");
  PassOver([&] {
    if (source == 1)
      FromAccounts(main, domain, includeControllers, note);
    else if (source == 2)
      FromUnit(main, note);
    else
      FromBrowseList(main, domain, note);
  });
  if (!any) add(LocalComputer(main));
}

void FillComputerList(modMain& main, const std::string& domain, ui::ComboBox& box) {
  box.Clear();
  ForEachComputer(main, domain, true, [&](const std::string& name) { box.AddItem(name); });
  if (box.Count() > 0) box.SetListIndex(0);
}

}  // namespace corvane
