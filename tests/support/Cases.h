#pragma once

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "app/installation/TextFile.h"

namespace corvane::test {

/// A cell of a table: its escapes `\n`, `\r`, `\t`, `\\` and `\xHH` stand for bytes, and `\e` for nothing.
inline std::string Unescaped(const std::string& cell) {
  std::string text;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    const char escape = cell[i] == '\\' ? cell.at(++i) : '\0';
    if (escape == 'x') {
      text += static_cast<char>(std::stoi(cell.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else if (escape != 'e') {
      text += escape == '\0' ? cell[i] : escape == 'n' ? '\n' : escape == 'r' ? '\r' : escape == 't' ? '\t' : escape;
    }
  }
  return text;
}

/// The rows of a table of cases in a file below tests/, such as "lab/Units.txt". Tabs part the cells; empty lines and
/// those that begin with "#" are passed over. A name in braces stands for its text.
inline std::vector<std::vector<std::string>> Cases(const std::string& file,
                                                   const std::map<std::string, std::string>& texts = {}) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(ReadTextFile(CORVANE_SOURCE_DIR "/tests/" + file));
  for (std::string line, cell; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream cells(line);
    rows.emplace_back();
    while (std::getline(cells, cell, '\t')) {
      if (cell.empty()) continue;
      std::string& text = rows.back().emplace_back(Unescaped(cell));
      for (const auto& [name, stands] : texts)
        if (const std::size_t at = text.find("{" + name + "}"); at != text.npos)
          text.replace(at, name.size() + 2, stands);
    }
  }
  if (rows.empty()) throw std::runtime_error("no cases in " + file);
  return rows;
}

}  // namespace corvane::test
