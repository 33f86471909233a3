#pragma once

#include <string>

namespace corvane {

/// The program's version: major, minor and revision joined by ".".
std::string VersionText();

}  // namespace corvane
