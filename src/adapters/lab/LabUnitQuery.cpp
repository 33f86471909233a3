#include "adapters/lab/LabUnitQuery.h"

#include "adapters/lab/LabErrors.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

constexpr std::string_view Scheme = "LDAP://";

struct Query {
  std::string Path;
  bool Subtree = true;
};

[[noreturn]] void RaiseSyntax() { throw RuntimeError(errors::AutomationError, "The search query is not understood."); }

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && SameText(std::string_view(text).substr(text.size() - end.size()), end);
}

Query ParseQuery(const std::string& text) {
  const std::size_t end = text.find(">;");
  if (text.empty() || text.front() != '<' || end == text.npos) RaiseSyntax();
  Query query{text.substr(1, end - 1)};
  const std::string rest = text.substr(end + 2);
  query.Subtree = SameText(rest, "(objectClass=computer);name;subtree");
  if (!query.Subtree && !SameText(rest, "(objectClass=computer);name;onelevel")) RaiseSyntax();
  return query;
}

const LabDomain* DomainOfUnit(const LabModel& model, const std::string& unit) {
  for (const LabDomain& domain : model.Domains) {
    if (domain.Root.empty()) continue;
    if (SameText(domain.Root, unit)) return &domain;
    for (const LabUnit& known : domain.Units)
      if (SameText(known.DistinguishedName, unit)) return &domain;
  }
  return nullptr;
}

}  // namespace

LabUnitQuery::LabUnitQuery(LabNetwork& network) : network_(network) {}

LabUnitQuery::Place LabUnitQuery::Parse(const LabModel& model, const std::string& path) {
  if (!SameText(path.substr(0, Scheme.size()), Scheme)) RaiseSyntax();
  const std::string rest = path.substr(Scheme.size());
  const std::size_t slash = rest.find('/');
  if (slash != rest.npos) return {rest.substr(0, slash), rest.substr(slash + 1)};
  if (rest.find('=') != rest.npos) return {"", rest};
  if (const LabDomain* domain = model.FindDomain(rest)) return {"", domain->Root};
  const LabComputer* server = rest.empty() ? nullptr : model.FindComputer(rest);
  return {rest, server ? model.FindDomain(server->Domain)->Root : ""};
}

const LabDomain& LabUnitQuery::RequireUnit(const LabModel& model, const Place& place) {
  const LabDomain* domain = DomainOfUnit(model, place.Unit);
  if (!domain) RaiseNoObject();
  const LabComputer* controller =
      place.Server.empty() ? model.FindController(domain->Name) : model.FindComputer(place.Server);
  LabComputer answering;
  // A name that stands nowhere is asked for all the same: it takes its time to stay without an answer.
  RaiseUnlessOk(network_.Contact(controller ? controller->Name : "no controller", answering));
  if (answering.Domain != domain->Name || answering.Role != LabRole::Controller) RaiseNoObject();
  return *domain;
}

std::vector<std::string> LabUnitQuery::Search(const std::string& commandText) {
  const Query query = ParseQuery(commandText);
  const auto model = network_.Model();
  const Place place = Parse(*model, query.Path);
  RequireUnit(*model, place);
  std::vector<std::string> names;
  for (const LabComputer& computer : model->Computers) {
    const bool direct = SameText(computer.Unit, place.Unit);
    if (direct || (query.Subtree && EndsWith(computer.Unit, "," + place.Unit))) names.push_back(computer.Name);
  }
  return names;
}

std::vector<DirectoryContainer> LabUnitQuery::Containers(const std::string& path) {
  const auto model = network_.Model();
  const Place place = Parse(*model, path);
  const std::string start = std::string(Scheme) + place.Server + (place.Server.empty() ? "" : "/");
  std::vector<DirectoryContainer> containers;
  for (const LabUnit& unit : RequireUnit(*model, place).Units) {
    const std::string above = unit.DistinguishedName.substr(unit.DistinguishedName.find(',') + 1);
    if (SameText(above, place.Unit))
      containers.push_back({unit.Path.substr(unit.Path.rfind('/') + 1), start + unit.DistinguishedName});
  }
  return containers;
}

}  // namespace corvane
