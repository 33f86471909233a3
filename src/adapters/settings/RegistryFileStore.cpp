#include "adapters/settings/RegistryFileStore.h"

#include <utility>

namespace corvane {
namespace {

using settings::RegistryEntry;
using settings::RegistryKey;

constexpr long InvalidParameter = 87;
constexpr long KeyDeleted = 1018;

constexpr std::uint32_t QueryRight = 1;
constexpr std::uint32_t SetRight = 2;
constexpr std::uint32_t EnumerateRight = 8;
constexpr std::uint32_t AllRights = 0x3F;

constexpr std::size_t ClassesRootPlace = 0;
constexpr std::size_t LocalMachinePlace = 1;
constexpr const char* LocalMachineName = "HKEY_LOCAL_MACHINE";

// A handle carries the number of its place, from 1, and above it the serial number that the place had when it was given
// out: so a handle that was closed is never taken for the next one in the same place.
std::uint32_t PlaceOf(RegistryHandle handle) { return static_cast<std::uint32_t>(handle) - 1; }

}  // namespace

RegistryFileStore::RegistryFileStore(std::filesystem::path file, Resolver resolver) : resolver_(std::move(resolver)) {
  settings::RegistryFile& local = FileAt(file);
  RegistryHandle ignored;
  OpenRoot(local, "HKEY_CLASSES_ROOT", ignored);
  OpenRoot(local, LocalMachineName, ignored);
}

RegistryFileStore::~RegistryFileStore() = default;

long RegistryFileStore::Create(const std::filesystem::path& file) { return settings::RegistryFile::Create(file); }

settings::RegistryFile& RegistryFileStore::FileAt(const std::filesystem::path& path) {
  auto& file = files_[path];
  if (!file) file = std::make_unique<settings::RegistryFile>(path);
  return *file;
}

RegistryFileStore::OpenedKey* RegistryFileStore::Look(RegistryHandle handle) {
  if (handle == registry::ClassesRoot) return &opened_[ClassesRootPlace];
  if (handle == registry::LocalMachine) return &opened_[LocalMachinePlace];
  const std::uint32_t place = PlaceOf(handle);
  if (place <= LocalMachinePlace || place >= opened_.size()) return nullptr;
  OpenedKey& opened = opened_[place];
  return opened.IsOpen && opened.Serial == handle >> 32 ? &opened : nullptr;
}

long RegistryFileStore::Resolve(RegistryHandle handle, std::uint32_t access, OpenedKey*& opened) {
  opened = Look(handle);
  if (!opened) return registry::InvalidHandle;
  if ((opened->Access & access) != access) return registry::AccessDenied;
  if (const long status = opened->File->Refresh()) return status;
  if (opened->Revision != opened->File->Revision()) {
    opened->Key = opened->File->Top().Find(opened->Path);
    opened->Revision = opened->File->Revision();
  }
  return opened->Key || opened->IsRoot ? registry::Ok : KeyDeleted;
}

RegistryFileStore::OpenedKey& RegistryFileStore::NewPlace(RegistryHandle& handle) {
  std::size_t place = opened_.size();
  if (closed_.empty()) {
    opened_.emplace_back();
  } else {
    place = closed_.back();
    closed_.pop_back();
  }
  ++opened_[place].Serial;
  opened_[place].IsOpen = true;
  handle = RegistryHandle{opened_[place].Serial} << 32 | (place + 1);
  return opened_[place];
}

// A list is filled by opening one key, reading a value and closing it, ten times for each row: so the key that was
// closed last is tried first, before the path is walked.
RegistryKey* RegistryFileStore::FindBelow(const OpenedKey& root, std::string_view path) const {
  if (!root.Key) return nullptr;
  if (!closed_.empty()) {
    const OpenedKey& last = opened_[closed_.back()];
    const std::string_view lastPath = last.Path;
    const std::size_t above = root.Path.size();
    if (last.File == root.File && last.Revision == root.Revision && lastPath.size() == above + 1 + path.size() &&
        lastPath.ends_with(path) && lastPath.starts_with(root.Path) && !last.IsRoot)
      return last.Key;
  }
  return root.Key->Find(path);
}

long RegistryFileStore::OpenBelow(const OpenedKey& root, std::string_view path, std::uint32_t access,
                                  RegistryHandle& opened) {
  RegistryKey* key = FindBelow(root, path);
  if (!key) return registry::NotFound;
  OpenedKey& below = NewPlace(opened);
  below.File = root.File;
  below.Path.assign(root.Path).append("\\").append(path);
  below.Access = access;
  below.Key = key;
  below.Revision = root.Revision;
  below.IsRoot = false;
  return registry::Ok;
}

void RegistryFileStore::OpenRoot(settings::RegistryFile& file, const char* name, RegistryHandle& opened) {
  OpenedKey& root = NewPlace(opened);
  root.File = &file;
  root.Path = name;
  root.Access = AllRights;
  root.Revision = 0;
  root.IsRoot = true;
}

long RegistryFileStore::OpenKey(RegistryHandle root, std::string_view key, std::uint32_t access,
                                RegistryHandle& opened) {
  opened = 0;
  OpenedKey* base;
  if (const long status = Resolve(root, 0, base)) return status;
  return OpenBelow(*base, key, access, opened);
}

long RegistryFileStore::CreateKey(RegistryHandle root, std::string_view key, std::uint32_t access,
                                  RegistryHandle& opened) {
  opened = 0;
  OpenedKey* base;
  if (const long status = Resolve(root, 0, base)) return status;
  // A key that is there is only opened: that must also work where nothing can be written.
  if (OpenBelow(*base, key, access, opened) == registry::Ok) return registry::Ok;
  const std::string path = base->Path + "\\" + std::string(key);
  if (!RegistryKey::IsPath(path)) return InvalidParameter;
  const long status = base->File->Change([&](RegistryKey& top, bool&) {
    top.Make(path);
    return registry::Ok;
  });
  return status == registry::Ok ? OpenKey(root, key, access, opened) : status;
}

long RegistryFileStore::QueryValue(RegistryHandle key, std::string_view name, RegistryValue& value) {
  OpenedKey* opened;
  if (const long status = Resolve(key, QueryRight, opened)) return status;
  const RegistryEntry* entry = opened->Key ? opened->Key->Values.Find(name) : nullptr;
  if (!entry) return registry::NotFound;
  value = entry->Value;
  return registry::Ok;
}

long RegistryFileStore::SetValue(RegistryHandle key, std::string_view name, const RegistryValue& value) {
  OpenedKey* opened;
  if (const long status = Resolve(key, SetRight, opened)) return status;
  if (!RegistryKey::IsValueName(name)) return InvalidParameter;
  return opened->File->Change([&](RegistryKey& top, bool& changed) {
    RegistryKey* present = opened->IsRoot ? &top.Make(opened->Path) : top.Find(opened->Path);
    if (!present) return KeyDeleted;
    RegistryEntry* entry = present->Values.Find(name);
    // The preferences write all their values each time: those that stay the same need no disk.
    changed = !entry || entry->Value.Type != value.Type || entry->Value.Bytes != value.Bytes;
    if (changed) present->Values.Make(name).Value = value;
    return registry::Ok;
  });
}

long RegistryFileStore::DeleteKey(RegistryHandle root, std::string_view key) {
  OpenedKey* base;
  if (const long status = Resolve(root, 0, base)) return status;
  while (key.ends_with('\\')) key.remove_suffix(1);
  const std::string path = base->Path + "\\" + std::string(key);
  const std::size_t nameAt = path.rfind('\\') + 1;
  // The roots themselves cannot be deleted.
  if (base->IsRoot && key.empty()) return registry::AccessDenied;
  return base->File->Change([&](RegistryKey& top, bool&) {
    RegistryKey* parent = top.Find(std::string_view(path).substr(0, nameAt));
    const RegistryKey* victim = parent ? parent->Keys.Find(std::string_view(path).substr(nameAt)) : nullptr;
    if (!victim) return registry::NotFound;
    if (victim->Keys.Size() > 0) return registry::AccessDenied;
    parent->Keys.Remove(victim->Name);
    return registry::Ok;
  });
}

long RegistryFileStore::DeleteValue(RegistryHandle key, std::string_view name) {
  OpenedKey* opened;
  if (const long status = Resolve(key, SetRight, opened)) return status;
  return opened->File->Change([&](RegistryKey& top, bool&) {
    RegistryKey* present = top.Find(opened->Path);
    return present && present->Values.Remove(name) ? registry::Ok : registry::NotFound;
  });
}

long RegistryFileStore::EnumValue(RegistryHandle key, std::uint32_t index, std::string& name, RegistryValue& value) {
  OpenedKey* opened;
  if (const long status = Resolve(key, QueryRight, opened)) return status;
  if (!opened->Key || index >= opened->Key->Values.Size()) return registry::NoMoreItems;
  const RegistryEntry& entry = opened->Key->Values[index];
  name = entry.Name;
  value = entry.Value;
  return registry::Ok;
}

long RegistryFileStore::EnumKey(RegistryHandle key, std::uint32_t index, std::string& name) {
  OpenedKey* opened;
  if (const long status = Resolve(key, EnumerateRight, opened)) return status;
  if (!opened->Key || index >= opened->Key->Keys.Size()) return registry::NoMoreItems;
  name = opened->Key->Keys[index].Name;
  return registry::Ok;
}

long RegistryFileStore::Connect(const std::string& computer, RegistryHandle root, RegistryHandle& connected) {
  connected = 0;
  // Another computer shows its machine's root only; its classes are no root of their own.
  if (root != registry::LocalMachine) return registry::InvalidHandle;
  const std::size_t name = computer.find_first_not_of('\\');
  if (name == std::string::npos || !resolver_) return registry::NetworkPathNotFound;
  std::filesystem::path path;
  if (const long status = resolver_(computer.substr(name), path)) return status;
  settings::RegistryFile& file = FileAt(path);
  if (const long status = file.Refresh()) return status;
  OpenRoot(file, LocalMachineName, connected);
  return registry::Ok;
}

long RegistryFileStore::CloseKey(RegistryHandle key) {
  if (key == registry::ClassesRoot || key == registry::LocalMachine) return registry::Ok;
  OpenedKey* opened = Look(key);
  if (!opened) return registry::InvalidHandle;
  opened->IsOpen = false;
  closed_.push_back(PlaceOf(key));
  return registry::Ok;
}

}  // namespace corvane
