#include "support/team_rosters.h"

#include <fmt/format.h>

#include "support/league_fixture.h"

namespace kvl::test {

Player Rated(int pos, int level, int status) {
  return MakePlayer(fmt::format("{} {}", "CLRDG"[pos], level), pos, level, status);
}

void PutRoster(LeagueState& s, int side, const std::vector<Player>& players) {
  for (int i = 0; i < kRosterSlots; ++i)
    s.player(side, i) = static_cast<std::size_t>(i) < players.size() ? players[static_cast<std::size_t>(i)] : Player{};
}

std::vector<Player> Several(int pos, int count, int start, int status) {
  std::vector<Player> out;
  for (int k = 0; k < count; ++k) out.push_back(Rated(pos, start - k, status));
  return out;
}

std::vector<Player> Squad(const std::array<int, 5>& counts, int level, int status) {
  std::vector<Player> out;
  for (int pos = 0; pos < 5; ++pos) {
    auto group = Several(pos, counts[static_cast<std::size_t>(pos)], level, status);
    out.insert(out.end(), group.begin(), group.end());
  }
  return out;
}

std::vector<Player> Join(std::vector<std::vector<Player>> groups) {
  std::vector<Player> out;
  for (auto& g : groups) out.insert(out.end(), g.begin(), g.end());
  return out;
}

}  // namespace kvl::test
