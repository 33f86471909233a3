#pragma once

#include "platform/Platform.h"

namespace corvane::test {

/// The ports that a test puts in place of those of an installation; null keeps the installation's own.
struct Replacements {
  corvane::Files* Files = nullptr;
  corvane::EventLogs* EventLogs = nullptr;
  corvane::EventReader* EventReader = nullptr;
  corvane::NetX* NetX = nullptr;
  corvane::DirectoryProvider* Directory = nullptr;
  UnitQuery* Units = nullptr;
  corvane::Launcher* Launcher = nullptr;
};

inline Platform Replace(const Platform& ports, const Replacements& with) {
  const auto choose = [](auto* replacement, auto& own) -> auto& { return replacement ? *replacement : own; };
  return Platform{ports.System,
                  choose(with.Files, ports.Files),
                  ports.Registry,
                  ports.Profiles,
                  ports.Data,
                  ports.Services,
                  choose(with.EventLogs, ports.EventLogs),
                  choose(with.EventReader, ports.EventReader),
                  choose(with.NetX, ports.NetX),
                  choose(with.Directory, ports.Directory),
                  choose(with.Units, ports.Units),
                  ports.Ping,
                  choose(with.Launcher, ports.Launcher),
                  ports.Instance,
                  ports.Ui,
                  ports.CreateDirectoryApi,
                  ports.CreateChannelReader};
}

}  // namespace corvane::test
