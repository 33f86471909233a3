#include "adapters/linux/LinuxSystem.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <ctime>

#include "adapters/linux/HostPaths.h"
#include "platform/Conversions.h"

namespace corvane {

LinuxSystem::LinuxSystem(int majorVersion) : majorVersion_(majorVersion) {}

int LinuxSystem::MajorVersion() { return majorVersion_; }

std::optional<std::string> LinuxSystem::ComputerName() {
  std::array<char, 256> name{};
  if (::gethostname(name.data(), name.size() - 1) != 0) return std::nullopt;
  const std::string host = name.data();
  return UpperCase(host.substr(0, host.find('.')));
}

std::optional<std::string> LinuxSystem::UserName() {
  passwd entry{};
  passwd* found = nullptr;
  std::array<char, 4096> texts{};
  if (::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found) != 0 || !found) return std::nullopt;
  return found->pw_name;
}

std::string LinuxSystem::ProgramFolder() { return HostPaths::ProgramFolder; }

std::string LinuxSystem::WindowsFolder() { return R"(C:\WINDOWS)"; }

DateTime LinuxSystem::Now() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  // Unlike localtime, its reentrant form may keep the zone of the first call.
  ::tzset();
  ::localtime_r(&seconds, &local);
  return MakeDateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

}  // namespace corvane
