#include "core/Reghack.h"

#include <utility>

namespace corvane {
namespace {

constexpr long UnknownType = -1;

constexpr std::size_t WindowsFolderBuffer = 144;
constexpr std::size_t ComputerNameBuffer = 50;
// The buffers of an enumeration; what does not fit is cut. The first call gets one character more than the others.
constexpr std::size_t FirstRoom = 256;
constexpr std::size_t FurtherRoom = 255;

bool IsString(std::uint32_t type) { return type == registry::String || type == registry::ExpandString; }

std::string NumberBytes(std::int32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(static_cast<std::uint32_t>(number) >> shift);
  return bytes;
}

std::string NumberText(std::string_view bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < bytes.size() && i < 4; ++i)
    number |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
  return std::to_string(static_cast<std::int32_t>(number));
}

std::string Cut(std::string text, std::size_t room) {
  if (text.size() > room) text.resize(room);
  return text;
}

}  // namespace

Reghack::Reghack(RegistryStore& store, System& system, std::function<void()> yield)
    : store_(store), system_(system), yield_(std::move(yield)) {}

bool Reghack::Create(std::string_view key, RegistryHandle root, std::uint32_t access) {
  RegistryHandle made = 0;
  if (store_.CreateKey(root, key, access, made) != registry::Ok) return false;
  store_.CloseKey(made);
  return true;
}

bool Reghack::CreateNewRemoteKey(std::string_view key, RegistryHandle root) {
  return Create(key, root, registry::AllButLinks);
}

bool Reghack::CreateNewKey(std::string_view key, RegistryHandle root) {
  return Create(key, root, registry::CreateSubKey);
}

void Reghack::SetKeyValueHKCR(std::string_view key, std::string_view name, const Value& value, std::uint32_t type) {
  SetRemoteKeyValue(key, name, value, type, registry::ClassesRoot);
}

void Reghack::SetKeyValue(std::string_view key, std::string_view name, const Value& value, std::uint32_t type) {
  SetRemoteKeyValue(key, name, value, type, registry::LocalMachine);
}

bool Reghack::SetRemoteKeyValue(std::string_view key, std::string_view name, const Value& value, std::uint32_t type,
                                RegistryHandle root) {
  RegistryHandle opened = 0;
  if (store_.OpenKey(root, key, registry::Write, opened) != registry::Ok) return false;
  const long status = SetValueEx(opened, name, type, value);
  store_.CloseKey(opened);
  return status == registry::Ok;
}

long Reghack::SetValueEx(RegistryHandle handle, std::string_view name, std::uint32_t type, const Value& value) {
  if (type == registry::String) return store_.SetValue(handle, name, {type, ToText(value) + '\0'});
  if (type == registry::Number) return store_.SetValue(handle, name, {type, NumberBytes(ToNumber(value))});
  return registry::Ok;
}

std::string Reghack::Get(std::string_view key, std::string_view name, RegistryHandle root, std::uint32_t access) const {
  RegistryHandle opened = 0;
  if (store_.OpenKey(root, key, access, opened) != registry::Ok) return {};
  std::string value;
  QueryValueEx(opened, name, value);
  store_.CloseKey(opened);
  return value;
}

std::string Reghack::GetRemoteKeyValue(std::string_view key, std::string_view name, RegistryHandle root) const {
  return Get(key, name, root, registry::Read);
}

std::string Reghack::GetKeyValueHKCR(std::string_view key, std::string_view name) const {
  return Get(key, name, registry::ClassesRoot, registry::Read);
}

std::string Reghack::GetKeyValue64(std::string_view key, std::string_view name) const {
  return Get(key, name, registry::LocalMachine, registry::Read64);
}

std::string Reghack::GetKeyValue(std::string_view key, std::string_view name) const {
  return Get(key, name, registry::LocalMachine, registry::Read);
}

long Reghack::QueryValueEx(RegistryHandle handle, std::string_view name, std::string& value) const {
  // Takes the memory of the text that comes in along: lists read many values into one.
  RegistryValue stored{0, std::move(value)};
  value.clear();
  if (const long status = store_.QueryValue(handle, name, stored)) return status;
  if (!IsString(stored.Type) && stored.Type != registry::Number) return UnknownType;
  value = stored.Type == registry::Number ? NumberText(stored.Bytes) : std::move(stored.Bytes);
  return registry::Ok;
}

RegistryHandle Reghack::OpenKeyToRead(std::string_view key, RegistryHandle root) const {
  RegistryHandle opened = 0;
  return store_.OpenKey(root, key, registry::Read, opened) == registry::Ok ? opened : 0;
}

RegistryHandle Reghack::OpenKey(std::string_view key, RegistryHandle root) const {
  RegistryHandle opened = 0;
  return store_.OpenKey(root, key, registry::AllButLinks, opened) == registry::Ok ? opened : 0;
}

std::string Reghack::WinDirectory() const {
  const std::string folder = system_.WindowsFolder();
  return folder.size() < WindowsFolderBuffer ? folder : std::string();
}

bool Reghack::DeleteKey(std::string_view key, RegistryHandle root) {
  return store_.DeleteKey(root, key) == registry::Ok;
}

bool Reghack::DeleteRemoteKeyValue(std::string_view key, std::string_view name, RegistryHandle root) {
  const RegistryHandle opened = OpenKey(key, root);
  if (opened == 0) return false;
  const long status = store_.DeleteValue(opened, name);
  store_.CloseKey(opened);
  return status == registry::Ok;
}

bool Reghack::DeleteKeyValue(std::string_view key, std::string_view name) {
  return DeleteRemoteKeyValue(key, name, registry::LocalMachine);
}

std::string Reghack::DeNullString(std::string_view text) {
  return std::string(text.substr(0, text.empty() ? 0 : text.size() - 1));
}

std::string Reghack::FindCompName() const {
  const auto name = system_.ComputerName();
  return name && name->size() < ComputerNameBuffer ? *name : std::string();
}

RegistryHandle Reghack::OpenRemoteReg(std::string_view computer, RegistryHandle root) const {
  const std::string name = (computer.starts_with('\\') ? "" : "\\\\") + std::string(computer);
  RegistryHandle connected = 0;
  return store_.Connect(name, root, connected) == registry::Ok ? connected : 0;
}

void Reghack::CloseKeyHandle(RegistryHandle handle) const { store_.CloseKey(handle); }

bool Reghack::EnumerateUpToEnd(const std::function<long(std::uint32_t index, std::size_t room)>& step) const {
  for (std::uint32_t index = 0;; ++index) {
    if (yield_) yield_();
    const long status = step(index, index == 0 ? FirstRoom : FurtherRoom);
    if (status == registry::NoMoreItems) return true;
    if (status != registry::Ok && status != registry::MoreData) return false;
  }
}

void Reghack::EnumSubValues(std::vector<std::string>& names, std::vector<std::string>& values, int& count,
                            RegistryHandle handle) const {
  names.clear();
  values.clear();
  const bool isWhole = EnumerateUpToEnd([&](std::uint32_t index, std::size_t room) {
    std::string name;
    RegistryValue value;
    const long status = store_.EnumValue(handle, index, name, value);
    if ((status == registry::Ok || status == registry::MoreData) && IsString(value.Type)) {
      names.push_back(Cut(std::move(name), room));
      values.push_back(Cut(std::move(value.Bytes), room));
    }
    return status;
  });
  if (!isWhole) {
    names.clear();
    values.clear();
  }
  count = static_cast<int>(names.size());
}

void Reghack::EnumSubkeys(std::vector<std::string>& names, int& count, RegistryHandle handle) const {
  names.clear();
  const bool isWhole = EnumerateUpToEnd([&](std::uint32_t index, std::size_t room) {
    std::string name;
    const long status = store_.EnumKey(handle, index, name);
    if (status == registry::Ok || status == registry::MoreData) names.push_back(Cut(std::move(name), room));
    return status;
  });
  if (!isWhole) names.clear();
  count = static_cast<int>(names.size());
}

}  // namespace corvane
