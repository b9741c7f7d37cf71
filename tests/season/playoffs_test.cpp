// Seeding by each point system and its ties, division leaders, the bracket's
// stages, series that end at four wins, and re-rating's classes and clamps.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <functional>

#include "league/league_files.h"
#include "season/new_season.h"
#include "season/playoff_bracket.h"
#include "season/playoff_series.h"
#include "season/playoffs.h"
#include "season/points.h"
#include "season/rerate.h"
#include "season/schedule_file.h"
#include "support/golden.h"
#include "support/league_fixture.h"
#include "support/schedule_leagues.h"

namespace kvl::test {
namespace {

TEST(SeedOrder, PointsThenWinsThenGoalDifferenceThenTeamOrder) {
  Harness h;
  h.load(AlignedLeague({{2, 2}, {2, 2}}));
  const int rows[][5] = {
      {10, 10, 0, 50, 50},  // 20 points
      {9, 9, 2, 60, 40},    // 20 points, fewer wins
      {10, 10, 0, 55, 50},  // 20 points, as many wins, better difference
      {10, 10, 0, 50, 50},  // equal to team 0 in all three: behind it
      {11, 9, 0, 40, 60},   // 22 points
      {0, 20, 0, 0, 0},    {0, 20, 0, 0, 0}, {0, 20, 0, 0, 0},
  };
  for (int t = 0; t < 8; ++t) {
    const auto& [w, l, ties, gf, ga] = rows[t];
    Team& team = h.state.team(t);
    team.W[0] = static_cast<u8>(w), team.L[0] = static_cast<u8>(l), team.T[0] = static_cast<u8>(ties);
    team.GF = static_cast<i16>(gf), team.GA = static_cast<i16>(ga);
  }
  EXPECT_EQ(SeedOrder(h.state), (std::vector<int>{4, 2, 0, 3, 1, 5, 6, 7}));
}

// An eight-team league seeded from these wins (team order by default).
struct Bracket {
  explicit Bracket(int playoffSize, bool leaders = false, std::function<int(const Team&, int)> wins = nullptr) {
    h.load(AlignedLeague({{2, 2}, {2, 2}}));
    h.state.league.PlayoffSize = static_cast<u8>(playoffSize);
    h.state.league.SeedDivLeaders = leaders ? kTrue : kFalse;
    for (int t = 0; t < 8; ++t) h.state.team(t).W[0] = static_cast<u8>(wins ? wins(team(t), t) : 20 - t);
    h.state.Playoff = PlayoffState{};
    h.state.Playoff.PlayoffRound = 1;
    MakePlayoffSeeds(h.state);
  }
  const Team& team(int t) { return h.state.team(t); }
  Harness h;
};

// Each team's conference, division, wins and whether it is out; the seeds (*
// a division leader) and every series set up, by stage.
std::string Listed(Bracket& b) {
  const PlayoffState& p = b.h.state.Playoff;
  std::string out = fmt::format("{} teams qualify\n", b.h.state.league.PlayoffTeams);
  for (int t = 0; t < 8; ++t)
    out += fmt::format("Team{} conf {} div {} wins {}{}\n", t, b.team(t).Conf, b.team(t).Div, b.team(t).W[0],
                       b.team(t).PlayoffOut ? " out" : "");
  out += "seeds:";
  for (std::size_t i = 0; i < 8; ++i) out += fmt::format(" {}{}", p.Seeds[i], p.DivLeader[i] ? "*" : "");
  for (int stage = 0; stage < 5; ++stage)
    for (int series = 0; series < SeriesInStage(stage); ++series) {
      const std::size_t i = PlayoffState::Index(stage, series);
      if (p.SeriesHome[i] || p.SeriesAway[i])
        out += fmt::format("\nstage {} series {}: Team{} hosts Team{}", stage, series, p.SeriesHome[i], p.SeriesAway[i]);
    }
  return out + "\n";
}

// A top-four bracket starts at stage 2, the better seed hosting a team of its
// conference. Conference 0's division 1 is weak: its best misses the cut, unless
// division leaders are seeded, when all four leaders take a place.
TEST(MakePlayoffSeeds, TopFourBracketsWithAndWithoutDivisionLeaders) {
  auto wins = [](const Team& t, int n) { return t.Conf == 0 && t.Div == 1 ? 1 + n : 10 + n; };
  Bracket topFour(2), plain(2, false, wins), leaders(2, true, wins);
  ExpectGolden(__FILE__, "top_four_brackets.txt",
               "--- by team order\n" + Listed(topFour) + "--- a weak division\n" + Listed(plain) +
                   "--- a weak division, leaders seeded\n" + Listed(leaders));
}

// (Before the season's end and with too few teams a conference are refused by
// running kvl.)
TEST(Playoffs, ALeagueWithoutAFileNameIsRefusedBeforeAnythingIsWritten) {
  Harness h;
  h.load(AlignedLeague({{2, 2}, {2, 2}}));
  h.state.league.SeasonOver = kTrue;
  h.state.league.PlayoffSize = 1;
  h.state.LeaguePath.clear();
  EXPECT_FALSE(Playoffs(h.state));
  ASSERT_FALSE(h.ui.calls().empty());
  EXPECT_EQ(h.ui.calls().back().text.rfind("The league has no file name yet", 0), 0u) << h.ui.calls().back().text;
  EXPECT_FALSE(h.state.league.InPlayoffs);
  EXPECT_TRUE(h.state.LeaguePath.empty());
}

// (That the games left are struck is checked over a whole year played by kvl.)
TEST(SeriesWin, EndsAtExactlyFour) {
  Bracket b(2);
  LeagueState& s = b.h.state;
  CreatePlayoffSchedule(s);
  const std::size_t i = PlayoffState::Index(2, 0);
  const int host = s.Playoff.SeriesHome[i], other = s.Playoff.SeriesAway[i];
  for (int n = 0; n < 3; ++n) SeriesWin(s, other, host);
  EXPECT_FALSE(s.Playoff.SeriesDone[i]);
  for (int n = 0; n < 4; ++n) SeriesWin(s, host, other);
  EXPECT_TRUE(s.Playoff.SeriesDone[i]);
  EXPECT_EQ(s.Playoff.HomeWins[i], 4);
  EXPECT_EQ(s.team(other).PlayoffOut, 1);
  SeriesWin(s, other, host);
  EXPECT_EQ(s.Playoff.AwayWins[i], 3) << "a decided series takes no more results";
  EXPECT_EQ(EndPlayoffDay(s), PlayoffProgress::RoundGoesOn) << "the other series is open";
}

TEST(GrowthClass, RangesByAge) {
  struct Row {
    int age, low, high;
  } rows[] = {{16, 2, 4}, {20, 0, 2}, {27, 1, 2}, {33, -1, 1}, {38, -5, 0}, {45, -6, 0}};
  Rnd rnd(3);
  for (const Row& r : rows) {
    int lo = 99, hi = -99;
    for (int n = 0; n < 2000; ++n) {
      const int g = GrowthClass(rnd, r.age);
      lo = std::min(lo, g), hi = std::max(hi, g);
    }
    EXPECT_GE(lo, r.low) << "age " << r.age;
    EXPECT_LE(hi, r.high) << "age " << r.age;
    EXPECT_LT(lo, hi) << "age " << r.age << " draws more than one class";
  }
}

TEST(RerateOne, ClampsEvenTheRatingsAGoalieSkipsAndA99DoesNotGrow) {
  Rnd rnd(5);
  Player g = MakePlayer("Old Goalie", kGoalie, 60);
  g.Age = 45;
  g.rating(kDef) = 10;
  g.rating(kSco) = 120;
  RerateOne(rnd, g);
  EXPECT_EQ(std::tuple(g.rating(kDef), g.rating(kSco)), std::tuple(25, 99));
  for (int i = 0; i <= kSco; ++i) EXPECT_GE(g.rating(i), 25);
  Player p = MakePlayer("Young Star", kCentre, 99);
  p.Age = 16;  // grows by class 2 to 4
  RerateOne(rnd, p);
  for (int i = 0; i <= kSco; ++i) EXPECT_EQ(p.rating(i), 99);
}

TEST(RerateOne, TheOldestLoseMostButNeverBelowTheFloor) {
  // Age 45, a rating of 30: the worst draw takes Int(-6 x 0.99 x 7) x 69 / 100,
  // -28.98, leaving 1.02: above 0, so it is taken, then lifted to the floor.
  Rnd rnd(9);
  int lowest = 99;
  for (int n = 0; n < 500; ++n) {
    Player p = MakePlayer("Old Skater", kCentre, 30);
    p.Age = 45;
    p.rating(kExp) = 0;
    RerateOne(rnd, p);
    for (int i = 0; i <= kSco; ++i) lowest = std::min<int>(lowest, p.rating(i));
    EXPECT_LE(p.rating(kInt), 30);
  }
  EXPECT_EQ(lowest, 25);
}

}  // namespace
}  // namespace kvl::test
