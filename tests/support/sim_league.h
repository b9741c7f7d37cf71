#pragma once
// Leagues ready to play: the standard test league with two goalies dressed and
// a complete, legal line table for every team.
#include <gtest/gtest.h>

#include "sim/game.h"
#include "support/league_fixture.h"

namespace kvl::test {

// Roster slots of the standard league: C 0-3, LW 4-7, RW 8-11, D 12-18, G 19-21.
constexpr int kFirstLW = 4, kFirstRW = 8, kFirstD = 12, kFirstG = 19;

// A legal table for the standard rosters: four lines, both units of each kind,
// the starter in slot 19 and two spares; D 7 and the other goalies on no line.
LineTable StandardLines();

// StandardLeague with D 7 scratched, the second goalie dressed and lines set.
LeaguePlan SimLeague(int teams, unsigned seed = 1);

// The four-team SimLeague loaded with master seed 7 and this schedule of (away,
// home) games, numbered from 1 and marked made.
struct ScheduledLeague {
  explicit ScheduledLeague(const std::vector<std::pair<int, int>>& games, const LeaguePlan& plan = SimLeague(4));
  std::string page(const std::string& name) const;  // Transfer/test<name>
  Harness h;
};

// Links coach record t + 1 of the plan to team t, as the coach check expects.
void HireCoach(LeaguePlan& plan, int team);

// A loaded league and a game over it; `setup` runs SetupGame(0, 1).
struct GameFixture {
  explicit GameFixture(const LeaguePlan& plan, bool setup = true);
  Harness h;
  Game game{h.state};
  GameSide& side(int sd) { return game.sideOf(sd); }
  // Puts these slots in the seats of `sd`, on the ice, the rest on the bench.
  void Seat(int sd, std::initializer_list<int> slots);
};

// Both sides with their first lines on the ice, at `clock` of the first period.
class SeatedGame : public testing::Test {
 protected:
  explicit SeatedGame(int clock = 100) : f(SimLeague(4)) {
    f.Seat(0, {0, 4, 8, 12, 13});
    f.Seat(1, {0, 4, 8, 12, 13});
    g.Period = 1;
    g.Clock = g.notedClock = clock;
  }
  GameFixture f;
  Game& g = f.game;
};

}  // namespace kvl::test
