#pragma once

#include "platform/Platform.h"

namespace corvane::test {

/// The ports that a test puts in place of those of an installation; null keeps the installation's own.
struct Replacements {
  corvane::System* System = nullptr;
  corvane::Files* Files = nullptr;
  DataProvider* Data = nullptr;
  corvane::EventLogs* EventLogs = nullptr;
  corvane::NetX* NetX = nullptr;
  corvane::DirectoryProvider* Directory = nullptr;
  UnitQuery* Units = nullptr;
  MessageSender* Messages = nullptr;
  TargetConnector* Targets = nullptr;
  Telephony* Phones = nullptr;
  NamedPipes* Pipes = nullptr;
  corvane::Launcher* Launcher = nullptr;
};

inline Platform Replace(const Platform& own, const Replacements& with) {
  const auto either = [](auto* replacement, auto& port) -> auto& { return replacement ? *replacement : port; };
  return {.System = either(with.System, own.System),
          .Files = either(with.Files, own.Files),
          .Registry = own.Registry,
          .Profiles = own.Profiles,
          .Data = either(with.Data, own.Data),
          .Services = own.Services,
          .EventLogs = either(with.EventLogs, own.EventLogs),
          .EventReader = own.EventReader,
          .NetX = either(with.NetX, own.NetX),
          .Directory = either(with.Directory, own.Directory),
          .Units = either(with.Units, own.Units),
          .Ping = own.Ping,
          .Messages = either(with.Messages, own.Messages),
          .Targets = either(with.Targets, own.Targets),
          .Phones = either(with.Phones, own.Phones),
          .Pipes = either(with.Pipes, own.Pipes),
          .Launcher = either(with.Launcher, own.Launcher),
          .Instance = own.Instance,
          .Ui = own.Ui,
          .CreateDirectoryApi = own.CreateDirectoryApi,
          .CreateChannelReader = own.CreateChannelReader};
}

}  // namespace corvane::test
