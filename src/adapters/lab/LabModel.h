#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvane {

/// An event log of a lab computer.
struct LabLog {
  std::string Name;
  /// Number of the oldest record, 0 in an empty log, and how many records there are.
  std::uint32_t Oldest = 0, Count = 0;
  /// Largest size in bytes. Age in seconds from which a record may be overwritten: 0 any, 4294967295 none.
  std::uint32_t MaxSize = 0, Retention = 0;
  /// Path as that computer's registry shows it; empty for a log that is known there but switched off.
  std::string File;
};

/// A user right and the accounts, as `DOMAIN\Account`, that hold it.
struct LabRight {
  std::string Name;
  std::vector<std::string> Holders;
};

enum class LabRole { Member, Controller };
enum class LabState { On, Off, Refusing };

/// A computer of the lab network.
struct LabComputer {
  std::string Name;
  /// Flat name of its domain or workgroup.
  std::string Domain;
  LabRole Role = LabRole::Member;
  LabState State = LabState::On;
  /// The system's name as the computer's registry shows it, and its version.
  std::string Product;
  int Major = 0, Minor = 0;
  std::string Address;
  /// How long it takes to answer any request, in milliseconds.
  int DelayMs = 0;
  bool AnswersPing = true;
  /// Distinguished name of the unit it stands in (RFC 4514); empty without a directory.
  std::string Unit;
  std::vector<LabLog> Logs;
  /// Its own accounts; a controller has none beside those of its domain.
  std::vector<std::string> Accounts;
  std::vector<LabRight> Rights;

  /// The log of that name, or nothing.
  const LabLog* FindLog(const std::string& name) const;
};

/// An organizational unit or container of a domain's directory.
struct LabUnit {
  /// The names down to it, parted by `/`.
  std::string Path;
  std::string DistinguishedName;
};

/// A domain or a workgroup.
struct LabDomain {
  std::string Name;
  /// Empty for a workgroup and for a domain without a directory.
  std::string DnsName;
  bool IsWorkgroup = false;
  /// Flat names of the domains that it trusts directly.
  std::vector<std::string> Trusts;
  /// Distinguished name of the domain itself; empty without a directory.
  std::string Root;
  std::vector<LabUnit> Units;
  std::vector<std::string> Accounts;
};

/// A service of the local computer.
struct LabService {
  std::string Name;
  /// One of the states of the service manager.
  std::uint32_t State = 0;
  /// When a pending state ends, in milliseconds since 1970; 0 for one that lasts.
  std::int64_t Until = 0;
  /// How long starting and stopping take, in milliseconds.
  int StartMs = 0, StopMs = 0;
  bool RefusesRead = false, RefusesControl = false;
  bool StartsBySystem = false;
  /// What it logs on as, empty for the system itself, and whether it was given the right password for that.
  std::string Account;
  bool LogonIsGood = true;

  /// The state at a moment in milliseconds since 1970.
  std::uint32_t StateAt(std::int64_t now) const;
};

/// How the other end of a call takes it.
enum class LabAnswer { Connect, Busy, NoCarrier, NoDialTone, Nothing };

/// A line device of the local computer: a modem, unless its capabilities say otherwise.
struct LabModem {
  std::uint32_t Number = 0;
  /// As the computer's registry shows it; may be empty.
  std::string Name;
  /// Sums of the bits of the telephone port.
  std::uint32_t MediaModes = 16, BearerModes = 64, LineFeatures = 8;
  LabAnswer Answer = LabAnswer::Connect;
  /// How long after dialling the answer comes, in milliseconds.
  int AfterMs = 0;
};

/// The whole lab network, as its file says.
struct LabModel {
  std::string LocalComputer, User;
  /// How long a request waits for a computer that does not answer, in milliseconds.
  int TimeoutMs = 0;
  std::vector<LabDomain> Domains;
  std::vector<LabComputer> Computers;
  std::vector<LabService> Services;
  std::vector<LabModem> Modems;

  /// By flat name, full DNS name or address, with or without leading `\\`; an empty name is the local computer.
  const LabComputer* FindComputer(const std::string& name) const;
  /// By flat or DNS name.
  const LabDomain* FindDomain(const std::string& name) const;
  const LabService* FindService(const std::string& name) const;
  const LabModem* FindModem(std::uint32_t number) const;
  /// The first controller of the domain that is switched on.
  const LabComputer* FindController(const std::string& domain) const;
  /// The names of the accounts that a computer keeps: its own, or those of its domain for a controller.
  const std::vector<std::string>& AccountsOf(const LabComputer& computer) const;
  /// The account `DOMAIN\Account` or `COMPUTER\Account` as the file spells it. Empty for one that the computer does not
  /// know: it knows its own, those of its domain and those of the domains that this one trusts.
  std::string FindAccount(const LabComputer& computer, const std::string& name) const;

 private:
  /// Whether accounts of the one domain may be used in the other.
  bool Reaches(const LabDomain& home, const LabDomain& other) const;
};

}  // namespace corvane
