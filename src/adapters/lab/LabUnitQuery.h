#pragma once

#include "adapters/lab/LabNetwork.h"
#include "platform/DirectoryProvider.h"

namespace corvane {

/// Searches for computers in the directories of the lab network. Settings: the network. Knows the filter
/// `(objectClass=computer)` (RFC 4515), the attribute `name` and the scopes `subtree` and `onelevel`; the path is
/// `LDAP://server/unit` or `LDAP://unit` with the unit's distinguished name.
class LabUnitQuery : public UnitQuery {
 public:
  explicit LabUnitQuery(LabNetwork& network);

  /// Names in the order of the lab file, computers that are off among them. Raises 440 for any other query, a unit that
  /// is not there and a server that does not answer.
  std::vector<std::string> Search(const std::string& commandText) override;

 private:
  void RequireUnit(const LabModel& model, const std::string& server, const std::string& unit);

  LabNetwork& network_;
};

}  // namespace corvane
