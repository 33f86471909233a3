#include "adapters/lab/LabUnitQuery.h"

#include "adapters/lab/LabErrors.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

namespace corvane {
namespace {

struct Query {
  std::string Server, Unit;
  bool Subtree = true;
};

[[noreturn]] void RaiseSyntax() { throw RuntimeError(errors::AutomationError, "The search query is not understood."); }

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && SameText(std::string_view(text).substr(text.size() - end.size()), end);
}

Query ParsePath(const std::string& path) {
  constexpr std::string_view Scheme = "LDAP://";
  if (!SameText(path.substr(0, Scheme.size()), Scheme)) RaiseSyntax();
  const std::string rest = path.substr(Scheme.size());
  const std::size_t slash = rest.find('/');
  if (slash == rest.npos) return {"", rest};
  return {rest.substr(0, slash), rest.substr(slash + 1)};
}

Query Parse(const std::string& text) {
  const std::size_t end = text.find(">;");
  if (text.empty() || text.front() != '<' || end == text.npos) RaiseSyntax();
  Query query = ParsePath(text.substr(1, end - 1));
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

void LabUnitQuery::RequireUnit(const LabModel& model, const std::string& server, const std::string& unit) {
  const LabDomain* domain = DomainOfUnit(model, unit);
  if (!domain) RaiseNoObject();
  const LabComputer* controller = server.empty() ? model.FindController(domain->Name) : model.FindComputer(server);
  LabComputer answering;
  // A name that stands nowhere is asked for all the same: it takes its time to stay without an answer.
  RaiseUnlessOk(network_.Contact(controller ? controller->Name : "no controller", answering));
  if (answering.Domain != domain->Name || answering.Role != LabRole::Controller) RaiseNoObject();
}

std::vector<std::string> LabUnitQuery::Search(const std::string& commandText) {
  const Query query = Parse(commandText);
  const auto model = network_.Model();
  RequireUnit(*model, query.Server, query.Unit);
  std::vector<std::string> names;
  for (const LabComputer& computer : model->Computers) {
    const bool direct = SameText(computer.Unit, query.Unit);
    if (direct || (query.Subtree && EndsWith(computer.Unit, "," + query.Unit))) names.push_back(computer.Name);
  }
  return names;
}

}  // namespace corvane
