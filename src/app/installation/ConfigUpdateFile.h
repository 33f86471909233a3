#pragma once

#include <string>

#include "app/installation/Catalogue.h"

namespace corvane {

/// The content of configupdate01.dat, by which the console gives a database that knows the older OS classes only its
/// newest one, with the categories and alarms that the catalogue has for it: one statement per line.
std::string ConfigUpdateText(const Catalogue& catalogue);

}  // namespace corvane
