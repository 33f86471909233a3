#pragma once

#include <string>
#include <vector>

#include "app/installation/Catalogue.h"

namespace corvane {

/// Values of a statement, as they stand between its parentheses.
std::string JoinValues(const std::vector<std::string>& values);

/// The statement that puts an OS class, 1 to 3, into a configuration database.
std::string InsertOsClass(int os);
std::string InsertCategory(const CatalogueCategory& category);
/// The database gives the alarm its number.
std::string InsertAlarm(const CatalogueAlarm& alarm);

}  // namespace corvane
