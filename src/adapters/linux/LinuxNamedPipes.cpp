#include "adapters/linux/LinuxNamedPipes.h"

#include <sys/un.h>

#include <utility>

#include "adapters/linux/TimedSocket.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr std::string_view Local = R"(\\.\pipe\)";

// The name behind the prefix; empty where it would lead out of the folder.
std::string NameOf(const std::string& pipe) {
  if (!SameText(pipe.substr(0, Local.size()), Local) || pipe.find('/') != pipe.npos) return {};
  return pipe.substr(Local.size());
}

}  // namespace

LinuxNamedPipes::LinuxNamedPipes(std::filesystem::path folder) : folder_(std::move(folder)) {}

bool LinuxNamedPipes::Call(const std::string& pipe, std::string_view message, std::string& reply, std::size_t replySize,
                           int timeout) {
  const std::string name = NameOf(pipe), path = folder_ / name;
  sockaddr_un address{AF_UNIX, {}};
  if (name.empty() || path.size() >= sizeof address.sun_path) return false;
  path.copy(address.sun_path, path.size());
  TimedSocket socket{std::chrono::milliseconds(timeout)};
  if (!socket.Connect(reinterpret_cast<const sockaddr*>(&address), sizeof address) || !socket.Send(message))
    return false;
  reply = socket.Receive(replySize);
  return !reply.empty();
}

}  // namespace corvane
