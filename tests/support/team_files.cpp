#include "support/team_files.h"

#include <fstream>

#include "league/league_files.h"
#include "support/league_fixture.h"

namespace kvl::test {

std::vector<std::string> TransactionLines(const LeagueState& s) {
  std::ifstream in(s.swap(swp::Transactions), std::ios::binary);
  std::vector<std::string> out;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    out.push_back(line);
  }
  return out;
}

void HireStandardCoaches(LeagueSpec& spec) {
  for (std::size_t t = 0; t < spec.teams.size(); ++t) {
    spec.teams[t].CoachRec = static_cast<u8>(t + 1);
    spec.teams[t].Coach.Name = spec.coaches[t].Name;
    spec.teams[t].Coach.Salary = spec.coaches[t].Salary;
    spec.coaches[t].Team = static_cast<u8>(t + 1);
  }
}

}  // namespace kvl::test
