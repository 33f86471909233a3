#pragma once

#include <string>
#include <vector>

namespace corvane {

/// The account directory of a domain, bound to by `WinNT://` paths, and directory searches below a unit.
class DirectoryProvider {
 public:
  virtual ~DirectoryProvider() = default;

  /// Names of the children of a container that are of the class (here "computer"). Raises when it cannot be bound.
  virtual std::vector<std::string> Children(const std::string& path, const std::string& objectClass) = 0;
  /// `UserFlags` of an account object, such as `WinNT://DOMAIN/SERVER1$`. 8192 and above: a domain controller.
  /// Raises when it cannot be bound.
  virtual long UserFlags(const std::string& path) = 0;
};

/// An organizational unit or container of a directory, told by the path that binds to it.
struct DirectoryContainer {
  std::string Name;
  std::string Path;
};

/// Queries in the directory search language `<path>;(filter);attributes;scope`, and the containers that a path of such
/// a query may name. `LDAP://` and the name of a domain is the top of its directory.
class UnitQuery {
 public:
  virtual ~UnitQuery() = default;

  /// The wanted attribute of every object found, in the directory's order. Raises when the path cannot be searched.
  virtual std::vector<std::string> Search(const std::string& commandText) = 0;
  /// The containers directly within that of a path, in the directory's order. Raises when the path cannot be bound.
  virtual std::vector<DirectoryContainer> Containers(const std::string& path) = 0;
};

}  // namespace corvane
