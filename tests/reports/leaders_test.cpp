// The order of the leaders' tables and the goalies' minimum.
#include "reports/player_lists.h"

#include <gtest/gtest.h>

#include "support/league_fixture.h"

namespace kvl::test {
namespace {

RosterEntry Scorer(int gp, int g, int a, const std::string& name) {
  RosterEntry e;
  e.p = MakePlayer(name, kCentre, 50);
  e.p.GP = static_cast<u8>(gp), e.p.G = static_cast<u8>(g), e.p.A = static_cast<u8>(a);
  return e;
}

std::vector<std::string> Names(const std::vector<RosterEntry>& rows) {
  std::vector<std::string> out;
  for (const RosterEntry& e : rows) out.push_back(e.p.Name.str());
  return out;
}

TEST(Leaders, ScoringOrder) {
  struct Case {
    const char* rule;
    std::vector<RosterEntry> candidates;
    std::vector<std::string> order;
  };
  const std::vector<Case> cases{
      {"more points", {Scorer(10, 1, 1, "a"), Scorer(10, 2, 1, "b")}, {"b", "a"}},
      {"equal points: fewer games", {Scorer(10, 2, 2, "a"), Scorer(9, 1, 3, "b")}, {"b", "a"}},
      {"then more goals", {Scorer(10, 1, 3, "a"), Scorer(10, 3, 1, "b")}, {"b", "a"}},
      {"equal on all three: the first met stays ahead", {Scorer(10, 2, 2, "a"), Scorer(10, 2, 2, "b")}, {"a", "b"}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(Names(RankPlayers(c.candidates, 30,
                                [](const RosterEntry& a, const RosterEntry& r) { return OutScores(a.p, r.p); })),
              c.order)
        << c.rule;
}

TEST(Leaders, TableKeepsItsSize) {
  std::vector<RosterEntry> c;
  for (int i = 0; i < 5; ++i) c.push_back(Scorer(10, i, 0, std::string(1, static_cast<char>('a' + i))));
  auto more = [](const RosterEntry& a, const RosterEntry& r) { return OutScores(a.p, r.p); };
  EXPECT_EQ(Names(RankPlayers(c, 3, more)), (std::vector<std::string>{"e", "d", "c"}));
}

TEST(Leaders, MinGoalieGP) {
  struct Case {
    int teams, gamesPlayed;
    bool playoffs;
    int round, minimum;
  };
  // Four tenths of the average team's games, rounded half up; the round in the playoffs.
  const std::vector<Case> cases{{4, 0, false, 0, 0}, {4, 2, false, 0, 0},  {4, 4, false, 0, 1},
                                {24, 792, false, 0, 26}, {24, 30, false, 0, 1}, {24, 792, true, 3, 3}};
  for (const Case& c : cases) {
    Harness h;
    h.state.league.NumTeams = static_cast<u8>(c.teams);
    h.state.league.GamesPlayed = static_cast<i16>(c.gamesPlayed);
    h.state.league.InPlayoffs = c.playoffs ? kTrue : kFalse;
    h.state.Playoff.PlayoffRound = static_cast<u8>(c.round);
    EXPECT_EQ(MinGoalieGP(h.state), c.minimum) << c.teams << " teams, " << c.gamesPlayed << " games";
  }
}

}  // namespace
}  // namespace kvl::test
