#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/wait.h>
#include <unistd.h>

#include "adapters/linux/EchoSocket.h"
#include "adapters/linux/LinuxPing.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

// Whether the machine lets this process send echo requests at all, asked without the adapter.
bool MayPing(int family) {
  const int protocol = family == AF_INET6 ? static_cast<int>(IPPROTO_ICMPV6) : static_cast<int>(IPPROTO_ICMP);
  return Descriptor(::socket(family, SOCK_DGRAM, protocol)) || Descriptor(::socket(family, SOCK_RAW, protocol));
}

RuntimeError ErrorOf(const std::string& host) {
  try {
    const PingReply reply = LinuxPing().Send(host);
    return {0, "replied: " + reply.Address};
  } catch (const RuntimeError& error) {
    return error;
  }
}

bool HasIpv6() {
  sockaddr_in6 own{};
  own.sin6_family = AF_INET6;
  own.sin6_addr = in6addr_loopback;
  const Descriptor socket(::socket(AF_INET6, SOCK_DGRAM, 0));
  return ::bind(socket.Get(), reinterpret_cast<const sockaddr*>(&own), sizeof own) == 0;
}

void ExpectReplyOrRefusal(int family, const std::string& host, const std::string& address) {
  if (MayPing(family)) {
    const PingReply reply = LinuxPing().Send(host);
    EXPECT_EQ(reply.Address, address);
    EXPECT_LT(reply.Milliseconds, 2000);
  } else {
    const RuntimeError error = ErrorOf(host);
    EXPECT_EQ(error.Number, errors::PermissionDenied);
    EXPECT_NE(error.Description.find("ping_group_range"), std::string::npos) << error.Description;
  }
}

TEST(LinuxPingTest, ThisMachineRepliesWhereThatIsAllowed) {
  ExpectReplyOrRefusal(AF_INET, "127.0.0.1", "127.0.0.1");
  ExpectReplyOrRefusal(AF_INET, R"(\\127.0.0.1)", "127.0.0.1");
  if (HasIpv6()) ExpectReplyOrRefusal(AF_INET6, "::1", "::1");
}

TEST(LinuxPingTest, AUserWithoutTheRightIsToldSo) {
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(2);
    ExpectReplyOrRefusal(AF_INET, "127.0.0.1", "127.0.0.1");
    ::_exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST(LinuxPingTest, UnknownNamesAndUnsendableRequestsAreErrors) {
  const RuntimeError unknown = ErrorOf("no-such-host.invalid");
  EXPECT_EQ(unknown.Number, errors::AutomationError);
  EXPECT_EQ(unknown.Description.find("no-such-host.invalid cannot be resolved"), 0u) << unknown.Description;
  EXPECT_EQ(ErrorOf("").Number, errors::AutomationError);
  // A broadcast is not sent by a socket that was not prepared for it.
  EXPECT_EQ(ErrorOf("255.255.255.255").Number, MayPing(AF_INET) ? errors::PathFileAccess : errors::PermissionDenied);
}

TEST(EchoSocketTest, OnlyTheReplyThatWasAskedForCounts) {
  if (!MayPing(AF_INET)) {
    EXPECT_THROW(EchoSocket{AF_INET}, RuntimeError);
    return;
  }
  sockaddr_in loopback{};
  loopback.sin_family = AF_INET;
  loopback.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const auto* address = reinterpret_cast<const sockaddr*>(&loopback);
  EchoSocket mine(AF_INET), other(AF_INET);
  mine.Send(address, sizeof loopback, 7);
  other.Send(address, sizeof loopback, 8);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(mine.Await(8, std::chrono::milliseconds(50)), std::nullopt);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(45));
  mine.Send(address, sizeof loopback, 9);
  EXPECT_EQ(mine.Await(9, std::chrono::milliseconds(2000)), "127.0.0.1");
}

}  // namespace
}  // namespace corvane
