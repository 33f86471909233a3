#include "adapters/lab/LabChannelReader.h"
#include "adapters/lab/LabDirectoryApi.h"
#include "adapters/lab/LabDirectoryProvider.h"
#include "adapters/lab/LabEventLogs.h"
#include "adapters/lab/LabNetX.h"
#include "adapters/lab/LabServiceManager.h"
#include "adapters/lab/LabUnitQuery.h"
#include "lab/LabFixture.h"

namespace corvane {
namespace {

using Names = std::vector<std::string>;
using LabPortsTest = test::LabFixture;

TEST_F(LabPortsTest, ServersComeWithTrueAndTheEndWithNothing) {
  LabNetX net(Network);
  const auto all = [&](const std::string& domain, std::uint32_t types) {
    Names names;
    std::string name;
    for (int mode = NetX::Begin; net.EnumServers(domain, name, types, mode); mode = NetX::Continue)
      names.push_back(name);
    EXPECT_EQ(name, "");
    return names;
  };
  EXPECT_EQ(all("north", NetX::WindowsNT), (Names{"DC1", "DESK", "WEB"}));
  EXPECT_EQ(all("NORTH", NetX::DomainController), Names{"DC1"});
  EXPECT_EQ(all("SHED", NetX::WindowsNT), Names{"TOOL"});
  EXPECT_EQ(all("SHED", NetX::DomainController), Names{});
  EXPECT_EQ(all("WEST", NetX::WindowsNT), Names{});
  std::string name = "left over";
  net.EnumServers("NORTH", name, NetX::WindowsNT, NetX::Begin);
  EXPECT_TRUE(net.EnumServers("NORTH", name, NetX::WindowsNT, NetX::Begin));
  EXPECT_EQ(name, "DC1") << "a new beginning starts anew";
  EXPECT_FALSE(LabNetX(Network).EnumServers("NORTH", name, NetX::WindowsNT, NetX::Continue));
}

TEST_F(LabPortsTest, TheLastTrustedDomainComesWithFalse) {
  LabNetX net(Network);
  std::string name;
  EXPECT_TRUE(net.EnumTrustedDomains(R"(\\DC1)", name, NetX::Begin));
  EXPECT_EQ(name, std::string("SOUTH\0", 6));
  EXPECT_FALSE(net.EnumTrustedDomains(R"(\\DC1)", name, NetX::Continue));
  EXPECT_EQ(name, std::string("EAST\0", 5));
  EXPECT_FALSE(net.EnumTrustedDomains(R"(\\DC1)", name, NetX::Continue));
  EXPECT_EQ(name, "");
  for (const char* none : {R"(\\DC0)", R"(\\EDC)", R"(\\DESK)", R"(\\TOOL)", R"(\\)"}) {
    EXPECT_FALSE(net.EnumTrustedDomains(none, name, NetX::Begin)) << none;
    EXPECT_EQ(name, "") << none;
  }
}

TEST_F(LabPortsTest, VersionsStayZeroWithoutAnAnswer) {
  LabNetX net(Network);
  int major = 7, minor = 7;
  EXPECT_TRUE(net.QueryOSVersion("DESK", major, minor));
  EXPECT_EQ(major * 10 + minor, 61);
  for (const char* silent : {"WEB", "DC0", "NOBODY"}) {
    major = minor = 7;
    EXPECT_FALSE(net.QueryOSVersion(silent, major, minor)) << silent;
    EXPECT_EQ(major + minor, 0) << silent;
  }
}

TEST_F(LabPortsTest, TheDirectoryKnowsControllersAndTrusts) {
  LabDirectoryApi api(Network);
  EXPECT_EQ(api.DsGetFlatDCName("NORTH"), R"(\\DC1)");
  EXPECT_EQ(api.DsGetFlatDCName("north.Example"), R"(\\DC1)");
  EXPECT_EQ(api.DsGetFlatDCName("south"), R"(\\SDC)");
  for (const char* none : {"SHED", "west.example", ""})
    EXPECT_EQ(WaitOf([&] { EXPECT_EQ(api.DsGetFlatDCName(none), "") << none; }), 500);
  EXPECT_EQ(api.DsGetDomainTrustInfo(R"(\\SDC)", DirectoryApi::PrimaryDomain, 0), "SOUTH");
  EXPECT_EQ(api.DsGetDomainTrustInfo("", DirectoryApi::PrimaryDomain, 0), "NORTH");
  EXPECT_EQ(api.DsGetNumberOfTrusts("dc1", DirectoryApi::DirectlyTrusted), 2);
  const char* trusts[] = {"", "SOUTH", "EAST", ""};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(api.DsGetDomainTrustInfo("DC1", DirectoryApi::DirectlyTrusted, i), trusts[i]);
  EXPECT_EQ(api.DsGetDomainTrustInfo("TOOL", DirectoryApi::PrimaryDomain, 0), "") << "a workgroup is no domain";
  EXPECT_EQ(ErrorOf([&] { api.DsGetDomainTrustInfo(R"(\\)", DirectoryApi::PrimaryDomain, 0); }),
            "440 The network path was not found.");
  EXPECT_EQ(ErrorOf([&] { api.DsGetNumberOfTrusts("EDC", DirectoryApi::DirectlyTrusted); }), "440 Access is denied.");
}

TEST_F(LabPortsTest, AccountsTellControllersFromMembers) {
  LabDirectoryProvider directory(Network);
  EXPECT_EQ(directory.Children("WinNT://north", "computer"), (Names{"DC0", "DC1", "DESK", "WEB"}));
  EXPECT_EQ(directory.Children("WinNT://SHED", "Computer"), Names{"TOOL"});
  EXPECT_EQ(directory.Children("WinNT://NORTH", "printer"), Names{});
  EXPECT_GE(directory.UserFlags("WinNT://NORTH/DC0$"), 8192);
  EXPECT_LT(directory.UserFlags("WinNT://NORTH/desk$"), 8192);
  for (const char* path : {"WinNT://WEST", "WinNT://EAST", "WinNT://", "LDAP://NORTH", "WinNT://NORTH/DESK"})
    EXPECT_EQ(ErrorOf([&] { directory.Children(path, "computer"); }).substr(0, 3), "440") << path;
  for (const char* path : {"WinNT://NORTH/SDC$", "WinNT://NORTH/DESK", "WinNT://SHED/TOOL$", "WinNT://NORTH"})
    EXPECT_EQ(ErrorOf([&] { directory.UserFlags(path); }).substr(0, 3), "440") << path;
}

TEST_F(LabPortsTest, UnitsAreSearchedByPathAndScope) {
  LabUnitQuery query(Network);
  const std::string tail = ">;(objectClass=computer);name;subtree", direct = ">;(objectClass=computer);name;onelevel";
  EXPECT_EQ(query.Search("<LDAP://DC1/OU=Servers,DC=north,DC=example" + tail), (Names{"DESK", "WEB"}));
  EXPECT_EQ(query.Search("<ldap://ou=servers,dc=NORTH,dc=example" + direct), Names{"DESK"});
  EXPECT_EQ(query.Search("<LDAP://OU=Web,OU=Servers,DC=north,DC=example" + tail), Names{"WEB"});
  EXPECT_EQ(query.Search("<LDAP://CN=Computers,DC=north,DC=example" + tail), Names{});
  EXPECT_EQ(query.Search("<LDAP://DC=north,DC=example" + tail), (Names{"DC0", "DC1", "DESK", "WEB"}));
  struct Failure {
    std::string Text, Error;
  };
  const Failure failures[] = {
      {"<LDAP://OU=Nothing,DC=north,DC=example" + tail, "440 There is no such object on the server."},
      {"<LDAP://SDC/DC=north,DC=example" + tail, "440 There is no such object on the server."},
      {"<LDAP://DC0/DC=north,DC=example" + tail, "440 The network path was not found."},
      {"<LDAP://DC=east,DC=example" + tail, "440 Access is denied."},
      {"<WinNT://NORTH" + tail, "440 The search query is not understood."},
      {"<LDAP://DC=north,DC=example>;(objectClass=user);name;subtree", "440 The search query is not understood."},
      {"LDAP://DC=north,DC=example" + tail, "440 The search query is not understood."},
      {"", "440 The search query is not understood."},
      {"<" + tail, "440 The search query is not understood."},
  };
  for (const Failure& f : failures) EXPECT_EQ(ErrorOf([&] { query.Search(f.Text); }), f.Error) << f.Text;
}

TEST_F(LabPortsTest, ClassicLogsGiveTheirCounters) {
  LabEventLogs logs(Network);
  // Server, log, oldest and count; -1 where it does not open.
  const std::tuple<const char*, const char*, int, int> cases[] = {
      {R"(\\DC1)", "application", 100, 50}, {"SDC", "System", 0, 0},
      {"SDC", "DNS Server", 7, 3},          {"", "Application", 1, 9},
      {"DC1", "Security", -1, 0},           {"TOOL", "System", -1, 0},
      {R"(\\WEB)", "Application", -1, 0},   {"DC0", "System", -1, 0},
  };
  for (const auto& [server, log, oldest, count] : cases) {
    const EventLogHandle handle = logs.Open(server, log);
    std::uint32_t first = 77, records = 77;
    EXPECT_EQ(logs.GetOldestRecord(handle, first), oldest >= 0) << server << log;
    EXPECT_EQ(logs.GetNumberOfRecords(handle, records), oldest >= 0) << server << log;
    if (oldest < 0) continue;
    EXPECT_EQ(first, static_cast<std::uint32_t>(oldest)) << server << log;
    EXPECT_EQ(records, static_cast<std::uint32_t>(count)) << server << log;
    logs.Close(handle);
  }
  EXPECT_EQ(logs.OpenHandles(), 0u);
}

TEST_F(LabPortsTest, ChannelsKeepTwoKindsOfHandles) {
  LabChannelReader reader(Network);
  const ChannelHandle config = reader.GetChannelConfigHandle("DC1", "Application");
  const ChannelHandle file = reader.GetLogFileHandle("DC1", "Application");
  std::uint32_t value = 0;
  EXPECT_NE(reader.GetLogProperty(file, ChannelReader::OldestRecord, value), 0);
  EXPECT_EQ(value, 100u);
  EXPECT_NE(reader.GetLogProperty(file, ChannelReader::NumberOfRecords, value), 0);
  EXPECT_EQ(value, 50u);
  EXPECT_EQ(reader.GetLogProperty(file, 4, value), 0);
  EXPECT_EQ(reader.GetLogProperty(config, ChannelReader::OldestRecord, value), 0);
  reader.CloseChannelConfigHandle(config);
  reader.CloseChannelConfigHandle(file);
  EXPECT_EQ(reader.GetLogProperty(file, ChannelReader::OldestRecord, value), 0);
  for (const char* none : {"SDC", "WEB", "DC0"}) EXPECT_EQ(reader.GetChannelConfigHandle(none, "Application"), 0u);
  EXPECT_EQ(reader.OpenHandles(), 0u);
  EXPECT_NE(reader.GetChannelConfigHandle("DC1", "Security"), 0u);
  EXPECT_EQ(reader.GetLogFileHandle("DC1", "Security"), 0u) << "switched off: a configuration without a file";
  EXPECT_EQ(reader.OpenHandles(), 1u);
}

class LabServicesTest : public test::LabFixture {
 protected:
  std::uint32_t State(LabServiceManager& services, const std::string& name) {
    std::uint32_t state = 0;
    services.QueryStatus(Open(services, name, service::ReadAccess), state);
    return state;
  }

  static ServiceHandle Open(LabServiceManager& services, const std::string& name, std::uint32_t access) {
    return services.OpenService(services.OpenManager(service::Connect), name, access);
  }

  LabServiceManager Services{Network};
};

TEST_F(LabServicesTest, AStartIsPendingForItsTimeAndStaysInTheFile) {
  const ServiceHandle control = Open(Services, "WATCHER", service::ExecuteAccess);
  EXPECT_FALSE(Services.Control(control, service::StopControl)) << "it is stopped";
  EXPECT_TRUE(Services.Start(control));
  LabNetwork otherNetwork(File, {}, Timing());
  LabServiceManager other(otherNetwork);
  EXPECT_EQ(State(other, "Watcher"), service::StartPending);
  EXPECT_FALSE(Services.Start(control));
  EXPECT_FALSE(Services.Control(control, service::StopControl)) << "it is not running yet";
  Clock += 100;
  EXPECT_EQ(State(other, "Watcher"), service::Running);
  EXPECT_FALSE(Services.Start(control));
  EXPECT_FALSE(Services.Control(control, 2)) << "only the stop is known";
  EXPECT_TRUE(Services.Control(control, service::StopControl));
  EXPECT_EQ(State(other, "Watcher"), service::StopPending);
  Clock += 40;
  EXPECT_EQ(State(other, "Watcher"), service::Stopped);
  Clock += 1000000;
  EXPECT_EQ(State(other, "Bridge"), service::StopPending) << "no end is known of it";
}

TEST_F(LabServicesTest, RefusalsComeWhereTheRealManagerGivesThem) {
  EXPECT_EQ(Open(Services, "Nothing", service::ReadAccess), 0u);
  EXPECT_EQ(Open(Services, "Hidden", service::ReadAccess), 0u);
  EXPECT_EQ(Open(Services, "Locked", service::ExecuteAccess), 0u);
  EXPECT_EQ(State(Services, "Locked"), service::Running);
  EXPECT_EQ(Services.OpenService(0, "Watcher", service::ReadAccess), 0u);
  EXPECT_EQ(Services.OpenService(Services.OpenManager(2), "Watcher", service::ReadAccess), 0u);
  std::uint32_t state = 0;
  EXPECT_FALSE(Services.QueryStatus(Open(Services, "Watcher", service::ExecuteAccess), state));
  EXPECT_FALSE(Services.Start(Open(Services, "Watcher", service::ReadAccess)));
  const ServiceHandle control = Open(Services, "Watcher", service::ExecuteAccess);
  // A folder in the way of the new file makes the lab file one that cannot be replaced.
  std::filesystem::create_directory(File.string() + ".new");
  EXPECT_FALSE(Services.Start(control));
  EXPECT_EQ(Folder.Read("lab.ini"), Text);
  std::filesystem::remove(File.string() + ".new");
  EXPECT_TRUE(Services.Start(control));
  Services.Close(control);
  EXPECT_FALSE(Services.Start(control));
}

}  // namespace
}  // namespace corvane
