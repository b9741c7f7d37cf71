// A small league's whole season played from the command line, then checked by
// its invariants: the saved team records, player totals, schedule scores and
// box score pages all tell the same story.
#include <gtest/gtest.h>

#include <map>

#include "league/league_files.h"
#include "season/schedule_file.h"
#include "support/league_cli.h"
#include "support/schedule_leagues.h"

namespace kvl::test {
namespace {

struct Record {
  int w = 0, l = 0, t = 0, gf = 0, ga = 0;
};

TEST(PlayGamesCommand, PlaysASeasonWhoseRecordsAgree) {
  CliLeague lg(AlignedLeague({{2, 2}, {2, 2}}), "season", {"--seed", "3"});
  ASSERT_EQ(lg.kvl({"--yes", "make-schedule"}).status, 0);
  EXPECT_EQ(lg.kvl({"--yes", "play-games", "--days", "0"}).status, 2) << "not a positive count";
  EXPECT_EQ(lg.kvl({"--yes", "play-games", "--days", "two"}).status, 2);
  ProgramRun two = lg.kvl({"--yes", "play-games", "--days", "2"});
  ASSERT_EQ(two.status, 0) << two.out << two.err;
  EXPECT_NE(two.out.find("in 2 game days"), std::string::npos) << two.out;
  ProgramRun rest = lg.kvl({"--yes", "play-games", "--season"});
  ASSERT_EQ(rest.status, 0) << rest.out << rest.err;
  EXPECT_NE(rest.out.find("The season is over."), std::string::npos) << rest.out;
  ProgramRun after = lg.kvl({"--yes", "play-games"});
  EXPECT_EQ(after.status, 1);
  EXPECT_NE(after.out.find("Season is over"), std::string::npos) << after.out;

  Harness h;
  LoadLg(h.state, lg.path);
  const std::vector<ScheduleRecord> games = ReadSchedule(lg.path + ".scx");
  ASSERT_EQ(static_cast<int>(games.size()), h.state.league.LeagueGames);
  std::map<int, Record> fromSchedule;
  for (const ScheduleRecord& g : games) {
    ASSERT_NE(g.Played, 0) << "game " << g.GameNumber;
    EXPECT_TRUE(fs::exists(lg.home / "Transfer" / ("season" + std::to_string(g.GameNumber) + ".html")));
    Record &home = fromSchedule[g.HomeTeam], &away = fromSchedule[g.AwayTeam];
    home.gf += g.HomeScore, home.ga += g.AwayScore, away.gf += g.AwayScore, away.ga += g.HomeScore;
    if (g.HomeScore == g.AwayScore)
      ++home.t, ++away.t;
    else if (g.HomeScore > g.AwayScore)
      ++home.w, ++away.l;
    else
      ++home.l, ++away.w;
  }
  int wins = 0, losses = 0;
  for (int t = 0; t < h.state.numTeams(); ++t) {
    const Team& team = h.state.team(t);
    const Record& r = fromSchedule[t];
    EXPECT_EQ(team.W[0], r.w) << "team " << t;
    EXPECT_EQ(team.L[0], r.l) << "team " << t;
    EXPECT_EQ(team.T[0], r.t) << "team " << t;
    EXPECT_EQ(team.GF, r.gf) << "team " << t;
    EXPECT_EQ(team.GA, r.ga) << "team " << t;
    wins += team.W[0], losses += team.L[0];
    loadteam(h.state, t, 0);
    int skaterGoals = 0, goalsAgainst = 0, goalieDecisions = 0;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = h.state.player(0, slot);
      if (p.Pos == kGoalie)
        goalsAgainst += p.PIM, goalieDecisions += p.SH + p.GW + p.GT;
      else
        skaterGoals += p.G;
    }
    EXPECT_EQ(skaterGoals, team.GF) << "team " << t;
    EXPECT_EQ(goalsAgainst, team.GA) << "team " << t;
    EXPECT_EQ(goalieDecisions, r.w + r.l + r.t) << "team " << t;
  }
  EXPECT_EQ(wins, losses);
}

}  // namespace
}  // namespace kvl::test
