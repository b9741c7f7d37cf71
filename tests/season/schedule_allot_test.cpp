#include <fmt/format.h>
#include <gtest/gtest.h>

#include <fstream>

#include "season/schedule_alignment.h"
#include "season/schedule_allot.h"
#include "support/golden.h"
#include "support/league_fixture.h"
#include "support/schedule_leagues.h"

namespace kvl {
namespace {

using test::Alignment;

const Alignment kDemo{{6, 6}, {6, 6}};

struct Allotted {
  bool ok = false;
  ScheduleMatrices m;
  std::vector<std::string> log;
};

std::vector<std::string> LogLines(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

// Allots with the given minimums; GPTeam is the suggestion unless given.
Allotted Allot(const Alignment& a, int vsDiv, int vsConf, int vsLg, int gpTeam = 0, int unaligned = -1) {
  test::Harness h;
  h.load(test::AlignedLeague(a));
  if (unaligned >= 0) h.state.team(unaligned).Conf = kNoConference;
  ScheduleParams p = DefaultScheduleParams(h.state.numTeams());
  p.vsDiv = vsDiv;
  p.vsConf = vsConf;
  p.vsLg = vsLg;
  p.GPTeam = gpTeam ? gpTeam : *SuggestedGamesPerTeam(h.state, vsDiv, vsConf, vsLg);
  Allotted r;
  AllotGameLog log(h.home, h.clock.now());
  r.ok = AllotGames(h.state, p, r.m, log);
  r.log = LogLines(log.path());
  return r;
}

// In a balanced league at the suggested total every pair meets exactly as the
// minimums ask, split evenly, and no top-up game is needed.
TEST(Allotment, EveryPairMeetsAsTheMinimumsAsk) {
  const int rows[][4] = {{6, 2, 2, 66}, {4, 4, 2, 68}, {2, 0, 0, 10}, {8, 2, 0, 52}};  // div, conf, lg, games
  test::Harness h;
  h.load(test::AlignedLeague(kDemo));
  for (const auto& [vsDiv, vsConf, vsLg, gamesPerTeam] : rows) {
    ASSERT_EQ(*SuggestedGamesPerTeam(h.state, vsDiv, vsConf, vsLg), gamesPerTeam);
    Allotted r = Allot(kDemo, vsDiv, vsConf, vsLg);
    ASSERT_TRUE(r.ok);
    for (int a = 0; a < 24; ++a) {
      EXPECT_EQ(r.m.TotalGP[a], gamesPerTeam);
      EXPECT_EQ(r.m.HomeGP[a], gamesPerTeam / 2);
      for (int b = 0; b < 24; ++b) {
        if (a == b) continue;
        const int games = h.state.team(a).Conf != h.state.team(b).Conf ? vsLg
                          : h.state.team(a).Div == h.state.team(b).Div ? vsDiv
                                                                       : vsConf;
        EXPECT_EQ(r.m.Matchups(a, b), games) << a << " v " << b;
        EXPECT_EQ(r.m.HomeMatchups(a, b), games / 2) << a << " hosting " << b;
        EXPECT_FALSE(r.m.ExtraGame(a, b));
      }
    }
  }
}

// Each pair's two hosted counts must add up to its games, or placement cannot
// use them all up. An odd division count splits each pair between its hosts. The
// inter-conference parity runs on across the whole order, so an odd count of
// such games splits evenly only when the first conference has an even number of
// teams; otherwise every inter-conference pair is out of step.
TEST(Allotment, OddCountsSplitBetweenTheTwoHosts) {
  struct Row {
    Alignment a;
    int vsDiv, vsLg, outOfStep;
  } rows[] = {{kDemo, 5, 2, 0}, {kDemo, 6, 3, 0}, {{{6, 5}, {6, 6}}, 6, 3, 11 * 12}};
  for (const Row& r : rows) {
    Allotted allotted = Allot(r.a, r.vsDiv, 2, r.vsLg);
    const int n = test::TeamCount(r.a);
    int bad = 0;
    for (int a = 0; a < n; ++a)
      for (int b = a + 1; b < n; ++b)
        bad += allotted.m.HomeMatchups(a, b) + allotted.m.HomeMatchups(b, a) != allotted.m.Matchups(a, b);
    EXPECT_EQ(bad, r.outOfStep) << n << " teams, " << r.vsDiv << " " << r.vsLg;
  }
  Allotted r = Allot(kDemo, 5, 2, 2);
  for (int a = 0; a < 24; ++a) EXPECT_EQ(r.m.HomeGP[a], 31);
}

TEST(Allotment, HalfOfAnOddTotalGoesToTheEvenNeighbour) {
  for (auto [gp, half] : {std::pair{81, 40}, {83, 42}, {82, 41}, {66, 33}, {1, 0}, {3, 2}})
    EXPECT_EQ(HalfGamesPerTeam(gp), half) << gp;
}

// Two games above the minimum: one more home game each. Partners are taken from
// the end of the allotment order, each once, until none is left.
TEST(Allotment, TopUpTakesPartnersFromTheEndOfTheOrderOnce) {
  Allotted r = Allot(kDemo, 6, 2, 2, 68);
  ASSERT_TRUE(r.ok);
  auto at = [&](int place) { return static_cast<int>(r.m.AllotOrder[place]); };
  for (int i = 0; i < 12; ++i) {
    EXPECT_TRUE(r.m.ExtraGame(at(i), at(23 - i))) << "place " << i;
    EXPECT_EQ(r.m.HomeMatchups(at(i), at(23 - i)), 2) << "place " << i;
  }
  // Place 12 already has a top-up game with place 11, so it takes place 10;
  // place 13 then finds places 12 and below full up to 11.
  EXPECT_EQ(r.m.HomeMatchups(at(12), at(10)), 2);
  EXPECT_EQ(r.m.HomeMatchups(at(12), at(11)), 1);
  EXPECT_EQ(r.m.HomeMatchups(at(13), at(11)), 2);
  for (int t = 0; t < 24; ++t) EXPECT_EQ(r.m.HomeGP[t], 34);
}

TEST(Allotment, OrderRunsByConferenceDivisionAndTeamNumber) {
  Allotted r = Allot(kDemo, 6, 2, 2);
  // Teams are dealt round the four divisions: 0, 4, 8 ... share the first.
  std::vector<int> order(r.m.AllotOrder.cells.begin(), r.m.AllotOrder.cells.begin() + 24);
  std::vector<int> expected;
  for (int group = 0; group < 4; ++group)
    for (int t = group; t < 24; t += 4) expected.push_back(t);
  EXPECT_EQ(order, expected);
}

// Below the minimum a team already has more home games than half the total;
// the top-up cannot take games away and runs out of partners. A team without a
// conference stops the allotment at once.
TEST(Allotment, FailsBelowTheMinimumsAndForATeamWithoutConference) {
  Allotted below = Allot(kDemo, 6, 2, 2, 60), unaligned = Allot(kDemo, 6, 2, 2, 66, 3);
  EXPECT_FALSE(below.ok);
  ASSERT_FALSE(below.log.empty());
  EXPECT_EQ(below.log.back(), "Requested games allocated for all teams.");
  EXPECT_FALSE(unaligned.ok);
  ASSERT_EQ(unaligned.log.size(), 5u);  // date, heading, teams 0 to 2
  EXPECT_EQ(unaligned.log.back().substr(0, 10), "Team2     ");
}

// The whole log of an eight-team allotment: the date, the alignment checks and
// every pair's games in the order they were allotted.
TEST(AllotmentLog, ReadsAsTheAllotmentWentInOrdinaryUse) {
  Allotted r = Allot({{2, 2}, {2, 2}}, 6, 2, 2);
  ASSERT_TRUE(r.ok);
  std::string text;
  for (const std::string& line : r.log) text += line + "\n";
  test::ExpectGolden(__FILE__, "allot_log_8_teams.txt", text);
}

// The suggestion: (largest division - 1) x vsDiv + (largest conference - that
// division) x vsConf + largest conference x vsLg.
TEST(Alignment, SuggestedGamesCountByTheLargestDivisionAndBalanceAllowsOneTeamOfDifference) {
  struct Row {
    Alignment a;
    int vsDiv, vsConf, vsLg, suggested;
    bool balanced;
    const char* why;
  };
  const std::vector<Row> rows{
      {kDemo, 6, 2, 2, 66, true, "the demo"},
      {{{5, 5, 5}, {5, 5, 5}}, 6, 2, 2, 74, true, "three divisions"},
      {{{7, 6}, {6, 6}}, 6, 2, 2, 74, true, "13 against 12: the larger conference stands for the other as well"},
      {kDemo, 5, 2, 2, 62, true, "an odd total is raised to the next even number"},
      {{{7, 6, 6, 6}, {7, 6, 6, 6}}, 16, 10, 10, 254, true, "the byte sum stops at 254"},
      {{{7, 7}, {6, 6}}, 6, 2, 2, 78, false, "conferences 14 and 12"},
      {{{7, 5}, {6, 6}}, 6, 2, 2, 70, false, "divisions 7 and 5"},
      {{{6, 6, 0}, {6, 6}}, 6, 2, 2, 66, false, "an empty third division counts"},
  };
  for (const Row& r : rows) {
    test::Harness h;
    h.load(test::AlignedLeague(r.a));
    EXPECT_EQ(SuggestedGamesPerTeam(h.state, r.vsDiv, r.vsConf, r.vsLg), r.suggested) << r.why;
    EXPECT_EQ(CheckAlignmentBalance(h.state), r.balanced) << r.why;
  }
}

// The golden holds the defaults and the reach of GPDay, Variance and GPTeam (at
// a suggestion of 66) by league size.
TEST(ScheduleParams, DefaultsAndReachFollowTheLeagueSize) {
  std::string text;
  for (int n : {8, 24, 25, 30}) {
    const ScheduleParams p = DefaultScheduleParams(n);
    text += fmt::format("{} teams: vsDiv {} vsConf {} vsLg {} GPDay {} Variance {} VarTotalGP {} VarHomeGP {}; reach",
                        n, p.vsDiv, p.vsConf, p.vsLg, p.GPDay, p.Variance, p.VarTotalGP, p.VarHomeGP);
    for (ScheduleParam param : {ScheduleParam::GPDay, ScheduleParam::Variance, ScheduleParam::GPTeam})
      text += fmt::format(" {}..{}", RangeOf(param, n, 66).lo, RangeOf(param, n, 66).hi);
    text += "\n";
  }
  test::ExpectGolden(__FILE__, "schedule_params.txt", text);
}

}  // namespace
}  // namespace kvl
