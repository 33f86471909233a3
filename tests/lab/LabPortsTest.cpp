#include "adapters/lab/LabDirectoryApi.h"
#include "adapters/lab/LabDirectoryProvider.h"
#include "adapters/lab/LabNetX.h"
#include "adapters/lab/LabServiceManager.h"
#include "adapters/lab/LabTelephony.h"
#include "adapters/lab/LabUnitQuery.h"
#include "lab/LabFixture.h"
#include "support/Cases.h"
#include "support/ScriptedHost.h"

namespace corvane::test {

using Names = std::vector<std::string>;
using LabPortsTest = LabFixture;

TEST_F(LabPortsTest, EnumerationsEndEachInItsWay) {
  LabNetX net(Network);
  for (const auto& one : Cases("lab/Enumerations.txt")) {
    const std::uint32_t types = one[0] == "all" ? NetX::WindowsNT : NetX::DomainController;
    std::string all, name;
    bool more = true;
    for (int mode = NetX::Begin; more && all.size() < 100; mode = NetX::Continue) {
      more = one[0] == "trusts"     ? net.EnumTrustedDomains(one[1], name, mode)
             : one[0] == "accounts" ? net.EnumAccounts(one[1], name, mode)
                                    : net.EnumServers(one[1], name, types, mode);
      all += (more ? " +" : " -") + name;
    }
    EXPECT_EQ(one[2], all) << one[0] << " of " << one[1];
  }
}

TEST_F(LabPortsTest, RightsAreGrantedToKnownAccountsAndStayInTheFile) {
  LabNetX net(Network);
  for (const auto& one : Cases("lab/Rights.txt"))
    EXPECT_EQ(net.GrantRight(one[0], one[1], one[2]), one[3] == "true") << one[2];
  EXPECT_TRUE(net.SetServiceAccount("TOOL", "Watcher", R"(NORTH\bob)", "right!")) << "it has no such service";
  EXPECT_TRUE(net.SetServiceAccount("DESK", "Locked", R"(NORTH\bob)", "right!"));
  Text.insert(Text.find("[Computer WEB]"), "Right SeTcbPrivilege = DESK\\Admin, NORTH\\Bob\n");
  Text.insert(Text.find("[Computer DESK]"), "Right SeServiceLogonRight = SOUTH\\sam\n");
  EXPECT_EQ(Folder.Read("lab.ini"), Text);
}

TEST_F(LabPortsTest, TheDirectoryKnowsControllersTrustsAndAccounts) {
  LabDirectoryApi api(Network);
  LabDirectoryProvider directory(Network);
  EXPECT_EQ(api.DsGetFlatDCName("north.Example") + api.DsGetFlatDCName("SHED"), R"(\\DC1)");
  EXPECT_EQ(Clock, 1000000 + 70 + 500);
  EXPECT_EQ(api.DsGetDomainTrustInfo("TOOL", DirectoryApi::PrimaryDomain, 0), "") << "a workgroup is no domain";
  const char* trusts[] = {"", "SOUTH", "EAST", ""};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(api.DsGetDomainTrustInfo("DC1", DirectoryApi::DirectlyTrusted, i), trusts[i]);
  EXPECT_EQ(ErrorOf([&] { api.DsGetNumberOfTrusts("EDC", DirectoryApi::DirectlyTrusted); }), errors::AutomationError);
  EXPECT_EQ(directory.Children("WinNT://north", "computer"), (Names{"DC0", "DC1", "DESK", "WEB"}));
  for (const char* path : {"WinNT://WEST", "WinNT://EAST", "LDAP://NORTH", "WinNT://NORTH/DESK"})
    EXPECT_EQ(ErrorOf([&] { directory.Children(path, "computer"); }), errors::AutomationError) << path;
  for (const char* path : {"WinNT://NORTH/SDC$", "WinNT://NORTH/DESK", "WinNT://SHED/TOOL$", "WinNT://NORTH"})
    EXPECT_EQ(ErrorOf([&] { directory.UserFlags(path); }), errors::AutomationError) << path;
}

TEST_F(LabPortsTest, UnitsAreSearchedByPathAndScope) {
  LabUnitQuery query(Network);
  for (const auto& one : Cases("lab/Units.txt")) {
    std::string told;
    Names found;
    const int error = ErrorOf([&] { found = query.Search(one[0]); }, &told);
    for (const std::string& name : found) told += (told.empty() ? "" : " ") + name;
    EXPECT_EQ(told, one[1]) << one[0];
    EXPECT_EQ(error, told.ends_with('.') ? errors::AutomationError : 0) << one[0];
  }
  EXPECT_TRUE(query.Containers("LDAP://OU=Web,OU=Servers,DC=north,DC=example").empty());
}

TEST_F(LabPortsTest, AServiceIsPendingForItsTimeAndStaysInTheFile) {
  LabServiceManager services(Network);
  const ServiceHandle manager = services.OpenManager(service::Connect);
  const ServiceHandle reader = services.OpenService(manager, "WATCHER", service::ReadAccess);
  const ServiceHandle control = services.OpenService(manager, "watcher", service::ExecuteAccess);
  const auto expect = [&](std::uint32_t state, const std::string& lines) {
    EXPECT_EQ(LabNetwork(File, {}, Timing()).Model()->FindService("Watcher")->StateAt(Clock), state);
    std::string text = Text;
    EXPECT_EQ(Folder.Read("lab.ini"), text.insert(text.find("[Service Bridge]"), lines));
  };
  std::uint32_t state = 0;
  EXPECT_FALSE(services.QueryStatus(control, state) || services.QueryStatus(0, state) || services.Start(reader));
  EXPECT_FALSE(services.Control(control, service::StopControl)) << "it is stopped";
  // A folder in the way of the new file makes the lab file one that cannot be replaced.
  std::filesystem::create_directory(File.string() + ".new");
  EXPECT_FALSE(services.Start(control));
  expect(service::Stopped, "");
  std::filesystem::remove(File.string() + ".new");
  EXPECT_TRUE(services.Start(control));
  EXPECT_FALSE(services.Control(control, service::StopControl)) << "it is not running yet";
  expect(service::StartPending, "State = start pending\nUntil = 1000100\n");
  Clock += 100;
  EXPECT_FALSE(services.Control(control, 2)) << "only the stop is known";
  EXPECT_TRUE(services.Control(control, service::StopControl));
  expect(service::StopPending, "State = stop pending\nUntil = 1000140\n");
  Clock += 1000000;
  expect(service::Stopped, "State = stop pending\nUntil = 1000140\n");
  EXPECT_EQ(Network.Model()->FindService("Bridge")->StateAt(Clock), service::StopPending) << "no end is known of it";
}

TEST_F(LabPortsTest, CallsAreTakenAsTheFileSaysAndEndAtOnce) {
  for (const auto& [answer, expected] : std::map<std::string, std::uint32_t>{
           {"connect", 0x102}, {"busy", 0x42}, {"no carrier", 0x4002}, {"no dial tone", 0x4002}, {"nothing", 0}}) {
    const std::string after = expected == 0 ? "600000" : "9";
    Folder.Write("lab.ini", Text + "[Modem 1]\nAfter = " + after + "\nAnswer = " + answer + "\n");
    ScriptedHost host;
    LabTelephony lines(Network, [&](auto action) { host.Post(action); });
    std::uint32_t application = 0, devices = 0, line = 0, call = 0, told = 0;
    const auto tell = [&told](auto message, auto state) { told = message + state; };
    lines.InitializeEx(application, tell, "", devices);
    EXPECT_LT(lines.Open(application, devices - 2, line, 0, line::PrivilegeOwner, line::MediaModeDataModem), 0);
    EXPECT_EQ(lines.Open(application, devices - 1, line, 0, line::PrivilegeOwner, line::MediaModeDataModem), line::Ok);
    EXPECT_TRUE(lines.MakeCall(line, call, "1") == line::Ok && lines.MakeCall(line, devices, "1") < 0) << "in use";
    for (int wait = 0; wait < (expected ? 2000 : 30) && told == 0; ++wait, host.RunPosted()) ::usleep(1000);
    EXPECT_EQ(told, expected) << answer;
    EXPECT_TRUE(lines.Shutdown(application) == line::Ok && lines.MakeCall(line, call, "1") < 0) << "closed too";
  }
}

}  // namespace corvane::test
