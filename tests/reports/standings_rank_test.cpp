// How teams are ranked, seeded and marked in the standings.
#include "reports/standings_rank.h"

#include <gtest/gtest.h>

#include "support/league_fixture.h"

namespace kvl::test {
namespace {

// Teams given as (wins, losses, ties, goals for, goals against), conference
// 0 division 0 unless set.
struct Standing {
  int w, l, t, gf, ga, conf = 0, div = 0;
};

struct RankLeague {
  explicit RankLeague(const std::vector<Standing>& teams, int leagueGames = 0) {
    LeagueState& s = h.state;
    s.league.NumTeams = static_cast<u8>(teams.size());
    s.league.LeagueGames = static_cast<i16>(leagueGames);
    s.league.Conf[0].NumDivs = s.league.Conf[1].NumDivs = 2;
    for (std::size_t i = 0; i < teams.size(); ++i) {
      Team& t = s.Teams[i];
      const Standing& d = teams[i];
      t.W[0] = static_cast<u8>(d.w), t.L[0] = static_cast<u8>(d.l), t.T[0] = static_cast<u8>(d.t);
      t.GF = static_cast<i16>(d.gf), t.GA = static_cast<i16>(d.ga);
      t.Conf = static_cast<u8>(d.conf), t.Div = static_cast<u8>(d.div);
    }
  }
  std::vector<int> order() {
    std::vector<int> out;
    for (const StandingRow& r : RankTeams(h.state)) out.push_back(r.team);
    return out;
  }
  Harness h;
};

TEST(Standings, RankingTieRules) {
  struct Case {
    const char* rule;
    std::vector<Standing> teams;
    std::vector<int> order;
  };
  const std::vector<Case> cases{
      {"more points first", {{1, 1, 0, 5, 5}, {2, 0, 0, 5, 5}}, {1, 0}},
      {"equal points: fewer games first", {{2, 1, 0, 5, 5}, {2, 0, 0, 5, 5}}, {1, 0}},
      {"then more wins", {{1, 1, 2, 5, 5}, {2, 2, 0, 5, 5}}, {1, 0}},
      {"then goal difference", {{1, 1, 0, 5, 6}, {1, 1, 0, 5, 4}}, {1, 0}},
      {"then goals for", {{1, 1, 0, 5, 5}, {1, 1, 0, 7, 7}}, {1, 0}},
      {"a full tie keeps team order", {{1, 1, 0, 5, 5}, {1, 1, 0, 5, 5}, {1, 1, 0, 5, 5}}, {0, 1, 2}},
      {"before any game the order is reversed", {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}}, {2, 1, 0}},
  };
  for (const Case& c : cases) EXPECT_EQ(RankLeague(c.teams).order(), c.order) << c.rule;
}

TEST(Standings, PointsFollowThePointSystemAndClassicInThePlayoffs) {
  Team t;
  t.W = {10, 2, 0}, t.L = {5, 3, 0}, t.T = {4, 0, 0};
  League lg;
  const std::vector<std::pair<int, int>> expected{{0, 24}, {1, 27}, {2, 20}, {3, 35}};
  for (auto [system, points] : expected) {
    lg.PointSystem = static_cast<u8>(system);
    EXPECT_EQ(TeamPoints(lg, t), points) << "system " << system;
  }
  lg.InPlayoffs = kTrue;
  EXPECT_EQ(TeamPoints(lg, t), 24);
}

// The first team of each division moves to the head; only team and points
// travel, the other columns stay with their place.
TEST(Standings, SeedingMovesTeamAndPointsOnly) {
  RankLeague lg({{5, 0, 0, 20, 5, 0, 0}, {4, 1, 0, 15, 8, 0, 0}, {3, 2, 0, 12, 10, 0, 1}, {2, 3, 0, 9, 9, 1, 0},
                 {1, 4, 0, 6, 12, 1, 1}});
  lg.h.state.league.Conf[0].NumDivs = 2;  // four leaders seeded
  lg.h.state.league.SeedDivLeaders = kTrue;
  std::vector<StandingRow> rows = RankTeams(lg.h.state);
  std::vector<int> teams, points, gf;
  for (const StandingRow& r : rows) teams.push_back(r.team), points.push_back(r.Points), gf.push_back(r.GF);
  EXPECT_EQ(teams, (std::vector<int>{0, 2, 3, 4, 1}));
  EXPECT_EQ(points, (std::vector<int>{10, 6, 4, 2, 8}));
  EXPECT_EQ(gf, (std::vector<int>{20, 15, 12, 9, 6}));  // still in the unseeded order
}

TEST(Standings, ClinchMarks) {
  struct Case {
    const char* what;
    std::vector<Standing> teams;
    int leagueGames;
    std::vector<std::string> marks;
  };
  // A team plays 2 x league games / teams; two berths (PlayoffSize 2).
  const std::vector<Case> cases{
      {"season over: leader z, second of the other division y, then x",
       {{6, 0, 0, 0, 0, 0, 0}, {4, 2, 0, 0, 0, 0, 1}, {2, 4, 0, 0, 0, 0, 0}, {0, 6, 0, 0, 0, 0, 1}},
       12,
       {"z", "y", " ", " "}},
      {"everyone can still catch up: nothing clinched",
       {{1, 0, 0, 0, 0, 0, 0}, {1, 0, 0, 0, 0, 0, 1}, {0, 1, 0, 0, 0, 0, 0}, {0, 1, 0, 0, 0, 0, 1}},
       20,
       {" ", " ", " ", " "}},
      {"the division won while the conference is not: y",
       {{9, 0, 0, 0, 0, 0, 0}, {0, 9, 0, 0, 0, 0, 0}, {8, 0, 0, 0, 0, 0, 1}},
       20,
       {"y", "y", " "}},
      {"a rival of the division can still pass: x while challengers are fewer than berths",
       {{5, 0, 0, 0, 0, 0, 0}, {4, 0, 0, 0, 0, 0, 0}, {0, 5, 0, 0, 0, 0, 1}},
       9,
       {"x", "x", "y"}},  // the last is alone in its division
  };
  for (const Case& c : cases) {
    RankLeague lg(c.teams, c.leagueGames);
    lg.h.state.league.PlayoffSize = 2;
    EXPECT_EQ(ClinchMarks(lg.h.state, RankTeams(lg.h.state), GameWalk{}), c.marks) << c.what;
  }
}

TEST(Standings, WalkOfPlayedGames) {
  RankLeague lg({{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 1, 0}, {0, 0, 0, 0, 0}});
  lg.h.state.league.GamesPlayed = 3;
  auto game = [](int home, int away, int hs, int as, int ot) {
    ScheduleRecord r;
    r.HomeTeam = static_cast<u8>(home), r.AwayTeam = static_cast<u8>(away);
    r.HomeScore = static_cast<u8>(hs), r.AwayScore = static_cast<u8>(as), r.Overtime = static_cast<u8>(ot);
    r.Played = kTrue;
    return r;
  };
  // 0 beats 1 at home; 1 beats 0 in overtime at home; 0 and 2 tie at 2; a 4th
  // game not yet played is left out.
  std::vector<ScheduleRecord> games{game(0, 1, 3, 1, 0), game(1, 0, 2, 1, 1), game(2, 0, 2, 2, 0), game(0, 2, 9, 0, 0)};
  lg.h.state.league.PointSystem = 1;  // Modern: the overtime loser takes 1
  GameWalk w = WalkGames(lg.h.state, games);
  EXPECT_EQ(w.HeadToHead[0][1], 4 + 1);
  EXPECT_EQ(w.HeadToHead[1][0], 4);
  EXPECT_EQ(w.HeadToHead[0][2], 1 + 1);  // a tie: 1, and 1 more to the visitor
  EXPECT_EQ(w.HeadToHead[2][0], 1 + 2);  // and 2 to the host
  const TeamSplits& zero = w.splits[0];
  EXPECT_EQ(std::vector<int>({zero.HomeW, zero.HomeL, zero.ConfW, zero.ConfL, zero.ConfT}),
            std::vector<int>({1, 0, 0, 0, 1}));
  EXPECT_EQ(std::vector<int>({zero.L10W, zero.L10L, zero.L10T, zero.seen}), std::vector<int>({1, 1, 1, 3}));
}

}  // namespace
}  // namespace kvl::test
