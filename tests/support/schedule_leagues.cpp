#include "support/schedule_leagues.h"

#include <fmt/format.h>

namespace kvl::test {

int TeamCount(const Alignment& a) {
  int n = 0;
  for (const auto& conf : a)
    for (int size : conf) n += size;
  return n;
}

LeaguePlan AlignedLeague(const Alignment& a, unsigned seed) {
  LeaguePlan plan = StandardLeague(TeamCount(a), seed);
  std::vector<std::pair<int, int>> divisions;
  for (std::size_t c = 0; c < a.size(); ++c) {
    Conference& conf = plan.header.Conf[c];
    conf.Name.set(fmt::format("CONF {}", c + 1));
    conf.NumDivs = static_cast<u8>(a[c].size());
    for (std::size_t d = 0; d < 4; ++d) {
      conf.Div[d] = Division{};
      conf.Div[d].Name.set(fmt::format("DIV {}", d + 1));
    }
    for (std::size_t d = 0; d < a[c].size(); ++d) divisions.emplace_back(static_cast<int>(c), static_cast<int>(d));
  }
  std::size_t next = 0;
  for (auto& team : plan.teams) {
    // The next division in turn that still has room.
    while (true) {
      auto [c, d] = divisions[next++ % divisions.size()];
      Division& div = plan.header.Conf[static_cast<std::size_t>(c)].Div[static_cast<std::size_t>(d)];
      if (div.NumTeams >= a[static_cast<std::size_t>(c)][static_cast<std::size_t>(d)]) continue;
      if (div.NumTeams < div.Team.size()) div.Team[div.NumTeams] = static_cast<u8>(&team - plan.teams.data());
      ++div.NumTeams;
      team.Conf = static_cast<u8>(c);
      team.Div = static_cast<u8>(d);
      break;
    }
  }
  return plan;
}

}  // namespace kvl::test
