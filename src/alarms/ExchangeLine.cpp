#include "alarms/ExchangeLine.h"

#include "core/SqlText.h"
#include "platform/RuntimeError.h"
#include "platform/data/Recordset.h"

namespace corvane {

ExchangeLine::ExchangeLine(std::string_view line) {
  for (std::size_t begin = 0, end = 0; end != line.npos; begin = end + 1) {
    end = line.find('|', begin);
    fields_.emplace_back(line.substr(begin, end - begin));
  }
}

const std::string& ExchangeLine::operator[](std::size_t place) const {
  if (place >= fields_.size()) throw RuntimeError(errors::SubscriptOutOfRange, "Subscript out of range");
  return fields_[place];
}

std::string JoinFields(const Recordset& row, std::span<const char* const> columns) {
  std::string line;
  for (const char* column : columns) {
    if (column != columns.front()) line += '|';
    line += NullToEmpty(row.Field(column));
  }
  return line;
}

}  // namespace corvane
