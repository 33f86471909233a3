#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/DirectoryProvider.h"

namespace corvane {

/// Searches for computers in the directories of the lab network. Settings: the network. Knows the filter
/// `(objectClass=computer)` (RFC 4515), the attribute `name` and the scopes `subtree` and `onelevel`; the path is
/// `LDAP://server/unit` or `LDAP://unit` with the unit's distinguished name, or `LDAP://` and the name of a domain or
/// of one of its controllers.
class LabUnitQuery : public UnitQuery {
 public:
  explicit LabUnitQuery(LabNetwork& network);

  /// Names in the order of the lab file, computers that are off among them. Raises 440 for any other query, a unit that
  /// is not there and a server that does not answer.
  std::vector<std::string> Search(const std::string& commandText) override;
  /// In the order of the lab file, behind the two that every directory has. Paths name a server where `path` does.
  std::vector<DirectoryContainer> Containers(const std::string& path) override;

 private:
  /// A server that is asked, empty for any, and the distinguished name of a unit.
  struct Place {
    std::string Server, Unit;
  };

  static Place Parse(const LabModel& model, const std::string& path);
  const LabDomain& RequireUnit(const LabModel& model, const Place& place);

  LabNetwork& network_;
};

}  // namespace corvane
