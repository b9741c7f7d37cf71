#include "support/schedule_leagues.h"

#include <fmt/format.h>

namespace kvl::test {

int TeamCount(const Alignment& a) {
  int n = 0;
  for (const auto& conf : a)
    for (int size : conf) n += size;
  return n;
}

void ApplyAlignment(League& header, std::vector<Team>& teams, const Alignment& a) {
  std::vector<std::pair<int, int>> divisions;
  for (std::size_t c = 0; c < a.size(); ++c) {
    Conference& conf = header.Conf[c];
    conf.Name.set(fmt::format("CONF {}", c + 1));
    conf.NumDivs = static_cast<u8>(a[c].size());
    for (std::size_t d = 0; d < 4; ++d) {
      conf.Div[d] = Division{};
      conf.Div[d].Name.set(fmt::format("DIV {}", d + 1));
    }
    for (std::size_t d = 0; d < a[c].size(); ++d) divisions.emplace_back(static_cast<int>(c), static_cast<int>(d));
  }
  std::size_t next = 0;
  for (auto& team : teams) {
    // The next division in turn that still has room.
    while (true) {
      auto [c, d] = divisions[next++ % divisions.size()];
      Division& div = header.Conf[static_cast<std::size_t>(c)].Div[static_cast<std::size_t>(d)];
      if (div.NumTeams >= a[static_cast<std::size_t>(c)][static_cast<std::size_t>(d)]) continue;
      if (div.NumTeams < div.Team.size()) div.Team[div.NumTeams] = static_cast<u8>(&team - teams.data());
      ++div.NumTeams;
      team.Conf = static_cast<u8>(c);
      team.Div = static_cast<u8>(d);
      break;
    }
  }
}

void AlignInMemory(LeagueState& s, const Alignment& a) {
  int n = TeamCount(a);
  std::vector<Team> teams(static_cast<std::size_t>(n));
  for (int t = 0; t < n; ++t) teams[static_cast<std::size_t>(t)].Name.set(fmt::format("Team{}", t));
  s.league.NumTeams = static_cast<u8>(n);
  ApplyAlignment(s.league, teams, a);
  for (int t = 0; t < n; ++t) s.team(t) = teams[static_cast<std::size_t>(t)];
}

LeaguePlan AlignedLeague(const Alignment& a, unsigned seed) {
  LeaguePlan plan = StandardLeague(TeamCount(a), seed);
  ApplyAlignment(plan.header, plan.teams, a);
  return plan;
}

}  // namespace kvl::test
