#pragma once

#include <string>

namespace corvane {

class Connection;
class Files;
class modMain;
struct Platform;

/// The connection string of a file; `version` is that of the provider, "3.51" or "4.0".
std::string JetString(const char* version, const std::string& path);

/// Makes the shared connection and recordset and opens the configuration database: provider 3.51 first, 4.0 as the
/// fallback. A file that neither opens leaves the connection closed.
void OpenConfigDatabase(modMain& main);

/// Opens a connection on a file with provider 4.0. True when no failure arose.
bool OpenWithJet40(Connection& connection, const std::string& path);

/// Creates an empty file-based database, in format 4.0 or else 3.51. False when both fail.
bool CreateAccessDatabase(modMain& main, const std::string& path);

/// Brings a database of an older version up to date with the statements of configupdate01.dat, once.
void ApplyConfigUpdate(modMain& main);

/// Tells the monitoring service that the configuration has changed.
void StampLastDBUpdate(modMain& main);

/// What a routine of several statements does when one of them fails.
enum class OnFailure { Raise, GoOn };

/// Deletes the alarms, notifications and bundles attached to a log, table by table.
void DeleteAlarmsAndNots(modMain& main, const std::string& idName, const std::string& domain,
                         OnFailure failure = OnFailure::Raise);
/// Deletes the ignore events and bundles of ignore events attached to a log, table by table.
void DeleteDenyAlarms(modMain& main, const std::string& idName, const std::string& domain,
                      OnFailure failure = OnFailure::Raise);

}  // namespace corvane
