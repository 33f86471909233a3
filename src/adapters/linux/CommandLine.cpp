#include "adapters/linux/CommandLine.h"

namespace corvane {
namespace {

constexpr std::string_view Blanks = " \t";

bool IsBlank(char c) { return Blanks.find(c) != Blanks.npos; }

class Splitter {
 public:
  explicit Splitter(std::string_view text) : text_(text) {}

  std::vector<std::string> Arguments() {
    std::vector<std::string> arguments;
    while (SkipBlanks()) arguments.push_back(arguments.empty() ? ProgramName() : Argument());
    return arguments;
  }

 private:
  bool SkipBlanks() {
    at_ = std::min(text_.find_first_not_of(Blanks, at_), text_.size());
    return at_ < text_.size();
  }

  std::string ProgramName() {
    std::string name;
    for (bool quoted = false; at_ < text_.size() && (quoted || !IsBlank(text_[at_])); ++at_) {
      if (text_[at_] == '"')
        quoted = !quoted;
      else
        name += text_[at_];
    }
    return name;
  }

  std::string Argument() {
    std::string argument;
    bool quoted = false;
    while (at_ < text_.size() && (quoted || !IsBlank(text_[at_]))) {
      if (text_[at_] == '\\') {
        Backslashes(argument);
      } else if (text_[at_] != '"') {
        argument += text_[at_++];
      } else if (quoted && text_.substr(at_, 2) == "\"\"") {
        argument += '"';
        at_ += 2;
      } else {
        quoted = !quoted;
        ++at_;
      }
    }
    return argument;
  }

  // Backslashes count by two only where a quote follows them; an odd one takes the quote with it.
  void Backslashes(std::string& argument) {
    const std::size_t end = std::min(text_.find_first_not_of('\\', at_), text_.size());
    const std::size_t count = end - at_;
    at_ = end;
    if (end == text_.size() || text_[end] != '"') {
      argument.append(count, '\\');
      return;
    }
    argument.append(count / 2, '\\');
    if (count % 2 == 1) argument += text_[at_++];
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view commandLine) { return Splitter(commandLine).Arguments(); }

}  // namespace corvane
