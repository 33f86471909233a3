#pragma once

#include <string>

namespace corvane {

/// Domain controllers and trusts, for systems that have a directory. Calls may raise a `RuntimeError`.
class DirectoryApi {
 public:
  static constexpr int DirectlyTrusted = 2;
  static constexpr int PrimaryDomain = 8;

  virtual ~DirectoryApi() = default;

  /// Name of a controller of the domain (DNS or flat name), with or without leading `\\`; empty when none is found.
  virtual std::string DsGetFlatDCName(const std::string& domain) = 0;
  /// Flat name of a domain in the trust list of `server`. An empty server is this computer. `index` counts from 1.
  virtual std::string DsGetDomainTrustInfo(const std::string& server, int flags, int index) = 0;
  /// How many domains of the flagged kind `server` trusts.
  virtual int DsGetNumberOfTrusts(const std::string& server, int flags) = 0;
};

}  // namespace corvane
