#pragma once

namespace corvane::tour {

class Script;

/// The catalogue of alarms maintained: a category renamed, an alarm written, a bundle made with it, and both written into
/// the file `alarms.ini` among the pictures.
void AddAlarmCatalogue(Script& script);

/// That file, from the folder `alarm-catalogue` beside that of the pictures, merged into the catalogue of another
/// installation.
void AddAlarmImport(Script& script);

}  // namespace corvane::tour
