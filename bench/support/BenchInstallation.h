#pragma once

#include <filesystem>

#include "support/TempFolder.h"

namespace corvane::bench {

/// A fresh installation with the lab network, whose computers answer without delay, grown to a size.
class BenchInstallation {
 public:
  /// With so many logs under watch, their attachments and the statistics of their last scan, and with so many computers
  /// more in the domain.
  explicit BenchInstallation(int logs = 0, int computers = 0);

  std::filesystem::path Folder() const { return place_.Path() / "installation"; }
  std::filesystem::path Database() const;
  /// A database of the same content.
  std::filesystem::path CopyOfDatabase() const;

 private:
  void AnswerAtOnce() const;
  void AddComputers(int count) const;
  void AddLogs(int count) const;
  void AddStatistics(int count) const;

  test::TempFolder place_;
};

}  // namespace corvane::bench
