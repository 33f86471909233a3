#pragma once

#include "adapters/lab/LabFile.h"
#include "adapters/lab/LabModel.h"

namespace corvane {

/// Reads the network out of a lab file. Raises 380, with the line, for a section, key or value that it does not know, a
/// name that stands twice, and a name that is used but stands nowhere.
LabModel ReadLabModel(const LabFile& file);

}  // namespace corvane
