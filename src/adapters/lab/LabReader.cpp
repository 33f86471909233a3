#include "adapters/lab/LabReader.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <limits>

#include "platform/Conversions.h"
#include "platform/ServiceManager.h"

namespace corvane {
namespace {

using Entry = LabFile::Entry;
using Section = LabFile::Section;

constexpr std::uint32_t SecondsOfDay = 86400;
constexpr std::uint32_t LongestWait = 600000;
constexpr std::uint32_t LastModem = 99;
// What still fits into the 32 bits of a registry value, in bytes and in seconds.
constexpr std::uint32_t LargestKilobytes = 4194303, LongestDays = 49710;

struct SystemDraft {
  std::string Name, Product;
  int Major = 0, Minor = 0;
};

struct ComputerDraft {
  LabComputer Computer;
  std::string System, Unit;
  /// What every computer has unless its section says otherwise.
  std::vector<std::string> Accounts = {"Administrator", "Guest"};
  bool NamesAccounts = false;
};

struct DomainDraft {
  LabDomain Domain;
  std::vector<std::string> Units;
};

template <class T>
struct Field {
  std::string_view Key;
  void (*Set)(T&, const Entry&);
};

[[noreturn]] void RaiseValue(const Entry& entry) {
  LabFile::RaiseAt(entry.Line, "\"" + entry.Value + "\" cannot be " + entry.Key);
}

std::uint32_t ToNumber(std::string_view text, const Entry& entry,
                       std::uint32_t limit = std::numeric_limits<std::uint32_t>::max()) {
  std::uint32_t number = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (status != std::errc() || end != text.data() + text.size() || number > limit) RaiseValue(entry);
  return number;
}

int ToMilliseconds(const Entry& entry) { return static_cast<int>(ToNumber(entry.Value, entry, LongestWait)); }

// The number of the word in the list of words that the value may be.
std::size_t ToChoice(const Entry& entry, std::initializer_list<std::string_view> words) {
  const auto found = std::find_if(words.begin(), words.end(), [&](auto word) { return SameText(word, entry.Value); });
  if (found == words.end()) RaiseValue(entry);
  return static_cast<std::size_t>(found - words.begin());
}

std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(separator, at), text.size());
    const std::string part = Trim(text.substr(at, end - at));
    if (!part.empty()) parts.push_back(part);
    at = end + 1;
  }
  return parts;
}

template <class T>
void Fill(T& target, const Section& section, std::initializer_list<Field<T>> fields,
          bool (*other)(T&, const Entry&) = nullptr) {
  std::vector<std::string> seen;
  for (const Entry& entry : section.Entries) {
    const std::string key = UpperCase(entry.Key);
    if (std::find(seen.begin(), seen.end(), key) != seen.end())
      LabFile::RaiseAt(entry.Line, entry.Key + " stands twice");
    seen.push_back(key);
    const auto field =
        std::find_if(fields.begin(), fields.end(), [&](const Field<T>& f) { return SameText(f.Key, entry.Key); });
    if (field != fields.end())
      field->Set(target, entry);
    else if (!other || !other(target, entry))
      LabFile::RaiseAt(entry.Line, entry.Key + " is not known here");
  }
}

template <class Items>
void RequireNew(const Items& items, const std::string& name, const Section& section) {
  if (name.empty()) LabFile::RaiseAt(section.Line, "a name is missing");
  for (const auto& item : items)
    if (SameText(item.Name, name)) LabFile::RaiseAt(section.Line, name + " stands twice");
}

// What the logs of systems older than channels are called on the disk.
std::string LogFileOf(const LabComputer& computer, const std::string& log) {
  if (computer.Major >= 6) return "%SystemRoot%\\System32\\Winevt\\Logs\\" + log + ".evtx";
  static constexpr std::pair<std::string_view, std::string_view> Short[] = {
      {"Application", "AppEvent"}, {"System", "SysEvent"},        {"Security", "SecEvent"},
      {"DNS Server", "DnsEvent"},  {"Directory Service", "NTDS"}, {"File Replication Service", "NtFrs"},
  };
  std::string name = log;
  for (const auto& [full, file] : Short)
    if (SameText(full, log)) name = file;
  return "%SystemRoot%\\System32\\config\\" + name + ".Evt";
}

void SetLogWord(LabLog& log, const std::string& words, const Entry& entry) {
  const std::size_t blank = words.find(' ');
  const std::string word = words.substr(0, blank);
  const std::string value = blank == words.npos ? "" : Trim(words.substr(blank));
  if (SameText(word, "oldest"))
    log.Oldest = ToNumber(value, entry);
  else if (SameText(word, "count"))
    log.Count = ToNumber(value, entry);
  else if (SameText(word, "size"))
    log.MaxSize = ToNumber(value, entry, LargestKilobytes) * 1024;
  else if (SameText(word, "keep") && SameText(value, "forever"))
    log.Retention = std::numeric_limits<std::uint32_t>::max();
  else if (SameText(word, "keep"))
    log.Retention = ToNumber(value, entry, LongestDays) * SecondsOfDay;
  else if (SameText(words, "off"))
    log.File.clear();
  else
    RaiseValue(entry);
}

bool AddLog(ComputerDraft& draft, const Entry& entry) {
  if (!SameText(entry.Key.substr(0, 4), "Log ")) return false;
  LabLog log{Trim(entry.Key.substr(4)), 0, 0, 512 * 1024, 7 * SecondsOfDay, "on"};
  for (const std::string& words : SplitAt(entry.Value, ',')) SetLogWord(log, words, entry);
  draft.Computer.Logs.push_back(log);
  return true;
}

bool AddRight(ComputerDraft& draft, const Entry& entry) {
  if (!SameText(entry.Key.substr(0, 6), "Right ")) return false;
  draft.Computer.Rights.push_back({Trim(entry.Key.substr(6)), SplitAt(entry.Value, ',')});
  return true;
}

class Reader {
 public:
  explicit Reader(const LabFile& file) {
    for (const Section& section : file.Sections()) Read(section);
    for (const auto& [section, draft] : computers_) Finish(*section, draft);
    CheckTrusts(file);
    if (!Model.FindComputer("")) LabFile::RaiseAt(0, "the local computer stands nowhere");
  }

  LabModel Model;

 private:
  void Read(const Section& section) {
    const std::size_t blank = std::min(section.Name.find(' '), section.Name.size());
    const std::string kind = section.Name.substr(0, blank), name = Trim(section.Name.substr(blank));
    if (SameText(kind, "Lab"))
      ReadLab(section);
    else if (SameText(kind, "System"))
      ReadSystem(section, name);
    else if (SameText(kind, "Domain"))
      ReadDomain(section, name);
    else if (SameText(kind, "Workgroup"))
      ReadWorkgroup(section, name);
    else if (SameText(kind, "Computer"))
      ReadComputer(section, name);
    else if (SameText(kind, "Service"))
      ReadService(section, name);
    else if (SameText(kind, "Modem"))
      ReadModem(section, name);
    else
      LabFile::RaiseAt(section.Line, kind + " is no kind of section");
  }

  void ReadLab(const Section& section) {
    Fill<LabModel>(Model, section,
                   {{"LocalComputer", [](LabModel& m, const Entry& e) { m.LocalComputer = e.Value; }},
                    {"User", [](LabModel& m, const Entry& e) { m.User = e.Value; }},
                    {"TimeoutMs", [](LabModel& m, const Entry& e) { m.TimeoutMs = ToMilliseconds(e); }}});
  }

  void ReadSystem(const Section& section, const std::string& name) {
    RequireNew(systems_, name, section);
    SystemDraft& system = systems_.emplace_back();
    system.Name = name;
    Fill<SystemDraft>(system, section,
                      {{"Product", [](SystemDraft& s, const Entry& e) { s.Product = e.Value; }},
                       {"Version", [](SystemDraft& s, const Entry& e) {
                          const std::vector<std::string> parts = SplitAt(e.Value, '.');
                          if (parts.size() != 2) RaiseValue(e);
                          s.Major = static_cast<int>(ToNumber(parts[0], e));
                          s.Minor = static_cast<int>(ToNumber(parts[1], e));
                        }}});
  }

  void ReadWorkgroup(const Section& section, const std::string& name) {
    RequireNew(Model.Domains, name, section);
    LabDomain& workgroup = Model.Domains.emplace_back();
    workgroup.Name = name;
    workgroup.IsWorkgroup = true;
    Fill<LabDomain>(workgroup, section, {});
  }

  void ReadDomain(const Section& section, const std::string& name) {
    RequireNew(Model.Domains, name, section);
    DomainDraft draft;
    draft.Domain.Name = name;
    Fill<DomainDraft>(
        draft, section,
        {{"Dns", [](DomainDraft& d, const Entry& e) { d.Domain.DnsName = e.Value; }},
         {"Trusts", [](DomainDraft& d, const Entry& e) { d.Domain.Trusts = SplitAt(e.Value, ','); }},
         {"Units", [](DomainDraft& d, const Entry& e) { d.Units = SplitAt(e.Value, ','); }},
         {"Accounts", [](DomainDraft& d, const Entry& e) { d.Domain.Accounts = SplitAt(e.Value, ','); }}});
    if (!draft.Domain.DnsName.empty()) BuildDirectory(draft);
    Model.Domains.push_back(draft.Domain);
  }

  static void BuildDirectory(DomainDraft& draft) {
    LabDomain& domain = draft.Domain;
    for (const std::string& label : SplitAt(domain.DnsName, '.'))
      domain.Root += (domain.Root.empty() ? "DC=" : ",DC=") + label;
    domain.Units = {{"Computers", "CN=Computers," + domain.Root},
                    {"Domain Controllers", "OU=Domain Controllers," + domain.Root}};
    for (const std::string& path : draft.Units) {
      std::string name = domain.Root;
      for (const std::string& part : SplitAt(path, '/')) name = "OU=" + part + "," + name;
      domain.Units.push_back({path, name});
    }
  }

  void ReadComputer(const Section& section, const std::string& name) {
    for (const auto& [other, draft] : computers_)
      if (SameText(draft.Computer.Name, name)) LabFile::RaiseAt(section.Line, name + " stands twice");
    ComputerDraft draft;
    draft.Computer.Name = name;
    Fill<ComputerDraft>(draft, section,
                        {{"Domain", [](ComputerDraft& c, const Entry& e) { c.Computer.Domain = e.Value; }},
                         {"System", [](ComputerDraft& c, const Entry& e) { c.System = e.Value; }},
                         {"Role",
                          [](ComputerDraft& c, const Entry& e) {
                            c.Computer.Role = static_cast<LabRole>(ToChoice(e, {"member", "controller"}));
                          }},
                         {"State",
                          [](ComputerDraft& c, const Entry& e) {
                            c.Computer.State = static_cast<LabState>(ToChoice(e, {"on", "off", "refusing"}));
                          }},
                         {"Address", [](ComputerDraft& c, const Entry& e) { c.Computer.Address = e.Value; }},
                         {"DelayMs", [](ComputerDraft& c, const Entry& e) { c.Computer.DelayMs = ToMilliseconds(e); }},
                         {"Ping",
                          [](ComputerDraft& c, const Entry& e) {
                            c.Computer.AnswersPing = ToChoice(e, {"blocked", "answered"}) == 1;
                          }},
                         {"Unit", [](ComputerDraft& c, const Entry& e) { c.Unit = e.Value; }},
                         {"Accounts",
                          [](ComputerDraft& c, const Entry& e) {
                            c.Accounts = SplitAt(e.Value, ',');
                            c.NamesAccounts = true;
                          }}},
                        [](ComputerDraft& c, const Entry& e) { return AddLog(c, e) || AddRight(c, e); });
    computers_.emplace_back(&section, draft);
  }

  // A computer may stand before the domain and the system that it names.
  void Finish(const Section& section, const ComputerDraft& draft) {
    LabComputer computer = draft.Computer;
    const LabDomain* domain = Model.FindDomain(computer.Domain);
    const auto system = std::find_if(systems_.begin(), systems_.end(),
                                     [&](const SystemDraft& s) { return SameText(s.Name, draft.System); });
    if (!domain) LabFile::RaiseAt(section.Line, "its domain stands nowhere");
    if (system == systems_.end()) LabFile::RaiseAt(section.Line, "its system stands nowhere");
    if (computer.Name.empty() || computer.Address.empty()) LabFile::RaiseAt(section.Line, "name or address is missing");
    if (domain->IsWorkgroup && computer.Role == LabRole::Controller)
      LabFile::RaiseAt(section.Line, "a workgroup has no controller");
    if (computer.Role == LabRole::Controller && draft.NamesAccounts)
      LabFile::RaiseAt(section.Line, "a controller has no accounts of its own");
    computer.Domain = domain->Name;
    if (computer.Role == LabRole::Member) computer.Accounts = draft.Accounts;
    computer.Product = system->Product;
    computer.Major = system->Major;
    computer.Minor = system->Minor;
    computer.Unit = UnitOf(section, draft, *domain);
    for (LabLog& log : computer.Logs)
      if (!log.File.empty()) log.File = LogFileOf(computer, log.Name);
    Model.Computers.push_back(std::move(computer));
  }

  static std::string UnitOf(const Section& section, const ComputerDraft& draft, const LabDomain& domain) {
    if (domain.Units.empty() && draft.Unit.empty()) return "";
    const bool controller = draft.Computer.Role == LabRole::Controller;
    const std::string path = !draft.Unit.empty() ? draft.Unit : controller ? "Domain Controllers" : "Computers";
    for (const LabUnit& unit : domain.Units)
      if (SameText(unit.Path, path)) return unit.DistinguishedName;
    LabFile::RaiseAt(section.Line, "its unit stands nowhere");
  }

  void ReadService(const Section& section, const std::string& name) {
    RequireNew(Model.Services, name, section);
    LabService& read = Model.Services.emplace_back();
    read.Name = name;
    read.State = service::Stopped;
    Fill<LabService>(read, section,
                     {{"State",
                       [](LabService& s, const Entry& e) {
                         const auto choice = ToChoice(e, {"stopped", "start pending", "stop pending", "running"});
                         s.State = service::Stopped + static_cast<std::uint32_t>(choice);
                       }},
                      {"Until",
                       [](LabService& s, const Entry& e) {
                         const auto number = ParseNumber(e.Value);
                         if (!number || *number < 0 || *number > 9e15) RaiseValue(e);
                         s.Until = static_cast<std::int64_t>(*number);
                       }},
                      {"StartMs", [](LabService& s, const Entry& e) { s.StartMs = ToMilliseconds(e); }},
                      {"StopMs", [](LabService& s, const Entry& e) { s.StopMs = ToMilliseconds(e); }},
                      {"Start",
                       [](LabService& s, const Entry& e) {
                         s.StartsBySystem = ToChoice(e, {"manual", "automatic"}) == 1;
                       }},
                      {"Account", [](LabService& s, const Entry& e) { s.Account = e.Value; }},
                      {"Logon",
                       [](LabService& s, const Entry& e) {
                         s.LogonIsGood = ToChoice(e, {"bad", "good"}) == 1;
                       }},
                      {"Refuses", [](LabService& s, const Entry& e) {
                         const auto choice = ToChoice(e, {"nothing", "control", "everything"});
                         s.RefusesControl = choice >= 1;
                         s.RefusesRead = choice == 2;
                       }}});
  }

  void ReadModem(const Section& section, const std::string& name) {
    LabModem read;
    read.Number = ToNumber(name, {"the number of a modem", name, section.Line}, LastModem);
    if (Model.FindModem(read.Number)) LabFile::RaiseAt(section.Line, "modem " + name + " stands twice");
    Fill<LabModem>(read, section,
                   {{"Name", [](LabModem& m, const Entry& e) { m.Name = e.Value; }},
                    {"MediaModes", [](LabModem& m, const Entry& e) { m.MediaModes = ToNumber(e.Value, e); }},
                    {"BearerModes", [](LabModem& m, const Entry& e) { m.BearerModes = ToNumber(e.Value, e); }},
                    {"LineFeatures", [](LabModem& m, const Entry& e) { m.LineFeatures = ToNumber(e.Value, e); }},
                    {"Answer",
                     [](LabModem& m, const Entry& e) {
                       m.Answer = static_cast<LabAnswer>(
                           ToChoice(e, {"connect", "busy", "no carrier", "no dial tone", "nothing"}));
                     }},
                    {"After", [](LabModem& m, const Entry& e) { m.AfterMs = ToMilliseconds(e); }}});
    Model.Modems.push_back(read);
  }

  void CheckTrusts(const LabFile& file) const {
    for (const LabDomain& domain : Model.Domains)
      for (const std::string& trusted : domain.Trusts)
        if (!Model.FindDomain(trusted)) LabFile::RaiseAt(LineOf(file, domain), trusted + " stands nowhere");
  }

  static std::size_t LineOf(const LabFile& file, const LabDomain& domain) {
    for (const Section& section : file.Sections())
      if (SameText(section.Name, "Domain " + domain.Name)) return section.Line;
    return 0;
  }

  std::vector<SystemDraft> systems_;
  std::vector<std::pair<const Section*, ComputerDraft>> computers_;
};

}  // namespace

LabModel ReadLabModel(const LabFile& file) { return Reader(file).Model; }

}  // namespace corvane
