#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>

#include <fstream>

#include "adapters/linux/EchoSocket.h"
#include "adapters/linux/LinuxPing.h"
#include "support/ChildProcess.h"
#include "support/ErrorOf.h"

namespace corvane::test {

// Whether the machine lets this process send echo requests at all, asked without the adapter.
static bool MayPing(int family) {
  const int protocol = family == AF_INET6 ? static_cast<int>(IPPROTO_ICMPV6) : static_cast<int>(IPPROTO_ICMP);
  return Descriptor(::socket(family, SOCK_DGRAM, protocol)) || Descriptor(::socket(family, SOCK_RAW, protocol));
}

static void ExpectReplyOrRefusal(int family, const std::string& host, const std::string& address) {
  std::string told;
  const int error = ErrorOf([&] { told = LinuxPing().Send(host).Address; }, &told);
  EXPECT_EQ(error, MayPing(family) ? 0 : errors::PermissionDenied) << told;
  EXPECT_NE(told.find(MayPing(family) ? address : "ping_group_range"), told.npos) << told;
}

TEST(LinuxPingTest, ThisMachineRepliesWhereThatIsAllowedAndElseIsToldSo) {
  ExpectReplyOrRefusal(AF_INET, R"(\\127.0.0.1)", "127.0.0.1");
  if (std::ifstream("/proc/net/if_inet6").peek() != EOF) ExpectReplyOrRefusal(AF_INET6, "::1", "::1");
  EXPECT_EQ(InChild([] {
              ChildProcess::BecomeNobody();
              ExpectReplyOrRefusal(AF_INET, "127.0.0.1", "127.0.0.1");
              return testing::Test::HasFailure();
            }),
            0);
}

TEST(LinuxPingTest, UnknownNamesAndUnsendableRequestsAreErrors) {
  EXPECT_EQ(ErrorOf([] { LinuxPing().Send("no-such-host.invalid"); }), errors::AutomationError);
  // A broadcast is not sent by a socket that was not prepared for it.
  const int refused = MayPing(AF_INET) ? errors::PathFileAccess : errors::PermissionDenied;
  EXPECT_EQ(ErrorOf([] { LinuxPing().Send("255.255.255.255"); }), refused);
}

TEST(EchoSocketTest, OnlyTheReplyThatWasAskedForCounts) {
  sockaddr_in loopback{};
  loopback.sin_family = AF_INET;
  loopback.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const auto* address = reinterpret_cast<const sockaddr*>(&loopback);
  const int error = ErrorOf([&] {
    EchoSocket mine(AF_INET), other(AF_INET);
    mine.Send(address, sizeof loopback, 7);
    other.Send(address, sizeof loopback, 8);
    EXPECT_EQ(mine.Await(8, std::chrono::milliseconds(50)), std::nullopt);
    mine.Send(address, sizeof loopback, 9);
    EXPECT_EQ(mine.Await(9, std::chrono::milliseconds(2000)), "127.0.0.1");
  });
  EXPECT_EQ(error, MayPing(AF_INET) ? 0 : errors::PermissionDenied);
}

}  // namespace corvane::test
