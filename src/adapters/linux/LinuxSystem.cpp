#include "adapters/linux/LinuxSystem.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <ctime>

#include "adapters/linux/HostPaths.h"
#include "platform/Conversions.h"

namespace corvane {
namespace {

constexpr int DaysOfAYear = 366;
constexpr std::time_t SecondsOfADay = 24 * 60 * 60;

std::tm LocalTime(std::time_t seconds) {
  std::tm local{};
  // Unlike localtime, its reentrant form may keep the zone of the first call.
  ::tzset();
  ::localtime_r(&seconds, &local);
  return local;
}

}  // namespace

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
  const std::tm local = LocalTime(std::time(nullptr));
  return MakeDateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

// A zone with seasons has both within a year. The bias is that of winter, and winter adds nothing to it.
corvane::TimeZone LinuxSystem::TimeZone() {
  const std::time_t now = std::time(nullptr);
  corvane::TimeZone zone;
  std::tm before = LocalTime(now), standard = before;
  for (int day = 1; day <= DaysOfAYear; ++day) {
    const std::tm local = LocalTime(now + day * SecondsOfADay);
    if (local.tm_isdst != before.tm_isdst)
      (local.tm_isdst > 0 ? zone.DaylightMonth : zone.StandardMonth) = local.tm_mon + 1;
    if (local.tm_isdst > 0) zone.DaylightBias = -static_cast<int>(local.tm_gmtoff / 60);
    if (local.tm_isdst == 0) standard = local;
    before = local;
  }
  zone.Bias = -static_cast<int>(standard.tm_gmtoff / 60);
  if (zone.DaylightMonth == 0) return zone;
  zone.DaylightBias -= zone.Bias;
  zone.Now = LocalTime(now).tm_isdst > 0 ? corvane::TimeZone::Season::Daylight : corvane::TimeZone::Season::Standard;
  return zone;
}

}  // namespace corvane
