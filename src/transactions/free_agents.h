#pragma once
// Free agents: the database players no team holds, signed by a team at a
// salary and length the commissioner enters; and random contracts for the
// whole league.
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr double kMaxSalary = 100000000;  // a salary stays below this
constexpr int kMaxContractYears = 10;

struct FreeAgentEntry {
  int record = 0;  // in the database, from 1
  std::string name;
  int pos = 0, age = 0, overall = 0;
  i32 salary = 0;
  bool unrestricted = false;  // "UFA", else "RFA"
};

// The terms of a signing; what is not given is asked.
struct ContractTerms {
  std::optional<double> salary;
  std::optional<int> years;
};

// The free-agent mode of the draft console.
class FreeAgents {
 public:
  explicit FreeAgents(LeagueState& s) : s_(s) {}
  std::vector<FreeAgentEntry> list() const;
  // Signs database record `record` for `team`. False when refused or an
  // answer was left empty.
  bool cmdAdd(int team, int record, const ContractTerms& terms = {});
  // Writes Transfer/<league>FreeAgents.html, the free agents by position, and
  // tells so; returns its path.
  fs::path cmdOutput();

 private:
  std::optional<double> AskSalary(const std::string& shortName, std::optional<double> given);
  std::optional<int> AskYears(const std::string& shortName, std::optional<int> given);
  LeagueState& s_;
};

// Asks, then gives every named player of the league a contract of 1 to 4
// years; salaries stay. False when the commissioner said no.
bool RandomContracts(LeagueState& s);

}  // namespace kvl
