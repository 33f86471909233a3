#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/settings/RegistryFile.h"
#include "platform/RegistryStore.h"

namespace corvane {

/// Registries kept in text files, one per computer, in the form that `settings::ParseRegistry` describes. Any number of
/// processes may share them: each write is one locked, atomic step, and each read sees the newest state. For one
/// thread.
///
/// Beyond the statuses of the port: 87 for a name with control characters, 112 disk full, 170 another process holds the
/// file, 1009 the file cannot be read or is no registry, 1016 the disk failed, 1018 the open key has been deleted. A
/// call that gives a status other than 0 leaves the file as it was.
class RegistryFileStore : public RegistryStore {
 public:
  /// Says in which file another computer's registry lies, or gives the status with which the connection fails. The name
  /// comes without leading `\\`.
  using Resolver = std::function<long(const std::string& computer, std::filesystem::path& file)>;

  /// Without a resolver no other computer is found.
  explicit RegistryFileStore(std::filesystem::path file, Resolver resolver = {});
  ~RegistryFileStore() override;

  /// Lays out a registry without any key; the store itself never makes a file that is missing. 183 when there is one.
  static long Create(const std::filesystem::path& file);

  long OpenKey(RegistryHandle root, std::string_view key, std::uint32_t access, RegistryHandle& opened) override;
  long CreateKey(RegistryHandle root, std::string_view key, std::uint32_t access, RegistryHandle& opened) override;
  long QueryValue(RegistryHandle key, std::string_view name, RegistryValue& value) override;
  long SetValue(RegistryHandle key, std::string_view name, const RegistryValue& value) override;
  long DeleteKey(RegistryHandle root, std::string_view key) override;
  long DeleteValue(RegistryHandle key, std::string_view name) override;
  long EnumValue(RegistryHandle key, std::uint32_t index, std::string& name, RegistryValue& value) override;
  long EnumKey(RegistryHandle key, std::uint32_t index, std::string& name) override;
  long Connect(const std::string& computer, RegistryHandle root, RegistryHandle& connected) override;
  long CloseKey(RegistryHandle key) override;

 private:
  // An open key. It is named by its path, because a file that is read again has new keys in memory.
  struct OpenedKey {
    settings::RegistryFile* File = nullptr;
    std::string Path;
    std::uint32_t Access = 0;
    std::uint32_t Serial = 0;
    settings::RegistryKey* Key = nullptr;
    std::uint64_t Revision = 0;
    bool IsRoot = false;
    bool IsOpen = false;
  };

  OpenedKey* Look(RegistryHandle handle);
  long Resolve(RegistryHandle handle, std::uint32_t access, OpenedKey*& opened);
  OpenedKey& NewPlace(RegistryHandle& handle);
  settings::RegistryKey* FindBelow(const OpenedKey& root, std::string_view path) const;
  long OpenBelow(const OpenedKey& root, std::string_view path, std::uint32_t access, RegistryHandle& opened);
  void OpenRoot(settings::RegistryFile& file, const char* name, RegistryHandle& opened);
  settings::RegistryFile& FileAt(const std::filesystem::path& path);

  Resolver resolver_;
  std::map<std::filesystem::path, std::unique_ptr<settings::RegistryFile>> files_;
  // The first two are the local roots. A closed place is used again.
  std::deque<OpenedKey> opened_;
  std::vector<std::uint32_t> closed_;
};

}  // namespace corvane
