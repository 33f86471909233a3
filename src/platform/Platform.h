#pragma once

#include <functional>
#include <memory>

namespace corvane {

class ChannelReader;
class DataProvider;
class DirectoryApi;
class DirectoryProvider;
class EventLogs;
class EventReader;
class Files;
class Launcher;
class MessageSender;
class NamedPipes;
class NetX;
class Ping;
class ProfileFiles;
class RegistryStore;
class ServiceManager;
class SingleInstance;
class System;
class TargetConnector;
class Telephony;
class UnitQuery;
namespace ui {
class UiHost;
}

/// Every port the console may use, as the program or a test has chosen them. The ports outlive the console.
struct Platform {
  corvane::System& System;
  corvane::Files& Files;
  RegistryStore& Registry;
  ProfileFiles& Profiles;
  DataProvider& Data;
  ServiceManager& Services;
  corvane::EventLogs& EventLogs;
  corvane::EventReader& EventReader;
  corvane::NetX& NetX;
  corvane::DirectoryProvider& Directory;
  UnitQuery& Units;
  corvane::Ping& Ping;
  MessageSender& Messages;
  TargetConnector& Targets;
  Telephony& Phones;
  NamedPipes& Pipes;
  corvane::Launcher& Launcher;
  SingleInstance& Instance;
  ui::UiHost& Ui;
  /// These two exist only on systems of their version; making one may raise `CannotCreateObject`.
  std::function<std::unique_ptr<DirectoryApi>()> CreateDirectoryApi;
  std::function<std::unique_ptr<ChannelReader>()> CreateChannelReader;
};

}  // namespace corvane
