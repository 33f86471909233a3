#pragma once

#include <deque>
#include <string>

#include "platform/NetX.h"

namespace corvane::test {

/// A network helper that gives the names it was told, in order, and notes what it was asked.
class ToldNetX : public NetX {
 public:
  struct Answer {
    bool More;
    std::string Name;
  };

  bool EnumServers(const std::string& domain, std::string& name, std::uint32_t types, int mode) override {
    Asked += domain + " " + std::to_string(types) + " " + std::to_string(mode) + "; ";
    return Tell(Servers, name);
  }
  bool EnumTrustedDomains(const std::string& controller, std::string& name, int mode) override {
    Asked += controller + " " + std::to_string(mode) + "; ";
    return Tell(Trusts, name);
  }
  bool QueryOSVersion(const std::string&, int&, int&) override { return false; }
  void GetDomainControllerName(const std::string&, std::string& name) override { name.clear(); }
  bool EnumAccounts(const std::string&, std::string&, int) override { return false; }
  bool GrantRight(const std::string&, const std::string&, const std::string&) override { return true; }
  bool SetServiceAccount(const std::string&, const std::string&, const std::string&, const std::string&) override {
    return true;
  }

  std::deque<Answer> Servers, Trusts;
  std::string Asked;

 private:
  // Where it has no name it leaves the caller's as it is.
  static bool Tell(std::deque<Answer>& answers, std::string& name) {
    if (answers.empty()) return false;
    const Answer answer = answers.front();
    answers.pop_front();
    if (!answer.Name.empty()) name = answer.Name;
    return answer.More;
  }
};

}  // namespace corvane::test
