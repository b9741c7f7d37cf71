// A small league's whole year from the command line: the season, checked by its
// invariants (the saved team records, player totals, schedule scores and box
// scores tell the same story), the playoffs to a champion, the re-rate, the new
// season, and a second year after it.
#include <map>

#include "season/schedule_file.h"
#include "support/kvl_test.h"
#include "support/league_cli.h"
#include "support/schedule_leagues.h"

namespace kvl::test {
namespace {

struct Record {
  int w = 0, l = 0, t = 0, gf = 0, ga = 0;
};

// The played season's schedule, team records and player totals agree.
void ExpectSeasonAgrees(const std::string& path, const fs::path& transfer) {
  Harness h;
  LoadLg(h.state, path);
  const std::vector<ScheduleRecord> games = ReadSchedule(path + ".scx");
  ASSERT_EQ(static_cast<int>(games.size()), h.state.league.LeagueGames);
  std::map<int, Record> fromSchedule;
  for (const ScheduleRecord& g : games) {
    ASSERT_NE(g.Played, 0) << "game " << g.GameNumber;
    EXPECT_TRUE(fs::exists(transfer / (fs::path(path).filename().string() + std::to_string(g.GameNumber) + ".html")));
    Record &home = fromSchedule[g.HomeTeam], &away = fromSchedule[g.AwayTeam];
    home.gf += g.HomeScore, home.ga += g.AwayScore, away.gf += g.AwayScore, away.ga += g.HomeScore;
    int sign = (g.HomeScore > g.AwayScore) - (g.HomeScore < g.AwayScore);
    (sign > 0 ? home.w : sign < 0 ? home.l : home.t)++;
    (sign > 0 ? away.l : sign < 0 ? away.w : away.t)++;
  }
  for (int t = 0; t < h.state.numTeams(); ++t) {
    const Team& team = h.state.team(t);
    const Record& r = fromSchedule[t];
    EXPECT_EQ((std::array{int(team.W[0]), int(team.L[0]), int(team.T[0]), int(team.GF), int(team.GA)}),
              (std::array{r.w, r.l, r.t, r.gf, r.ga}))
        << "team " << t;
    loadteam(h.state, t, 0);
    int skaterGoals = 0, goalsAgainst = 0, goalieDecisions = 0, skaterGames = 0;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = h.state.player(0, slot);
      if (p.Pos == kGoalie)
        goalsAgainst += p.PIM, goalieDecisions += p.SH + p.GW + p.GT;
      else
        skaterGoals += p.G, skaterGames += p.GP;
    }
    // Every dressed skater counts a game: eighteen a game, none short after a
    // suspension or an injury.
    const int games = r.w + r.l + r.t;
    EXPECT_EQ((std::array{skaterGoals, goalsAgainst, goalieDecisions, skaterGames}),
              (std::array{r.gf, r.ga, games, 18 * games}))
        << "team " << t;
  }
}

TEST(YearCommands, ASeasonThePlayoffsToAChampionANewSeasonAndASecondYear) {
  LeaguePlan plan = AlignedLeague({{2, 2}, {2, 2}});
  plan.header.PlayoffSize = 1;  // four a conference
  // Minor leaguers to call up when injuries and suspensions thin the roster.
  for (std::size_t t = 0; t < plan.rosters.size(); ++t)
    for (int pos : {kCentre, kLeftWing, kRightWing, kDefence, kDefence})
      plan.rosters[t].push_back(MakePlayer("Depth " + std::to_string(t) + std::to_string(pos), pos, 55, 0));
  CliLeague lg(plan, "year", {"--seed", "4"});
  // The season profile plays the suggested schedule on a copy, the same on two threads.
  const ProgramRun profile = lg.kvl({"sim-profile", "--season"});
  EXPECT_EQ(lg.kvl({"sim-profile", "--season", "--jobs", "2"}).out, profile.out);
  const fs::path folder = lg.dir.path() / "league";
  lg.kvlEach({{"--yes", "make-schedule"},
              {"--yes", "start-playoffs"},  // not before the season is over
              {"--yes", "play-games", "--days", "0"},
              {"--yes", "play-games", "--days", "two"},
              {"--yes", "play-games", "--days", "2"},
              {"--yes", "play-games", "--season"},
              {"--yes", "play-games"}});
  ExpectSeasonAgrees(lg.path, lg.home / "Transfer");
  auto files = [](const std::string& base) {
    std::map<std::string, Bytes> out;
    for (const char* ext : {".lge", ".tms", ".ros", ".scx", ".pct"}) out[ext] = ReadFileBytes(base + ext);
    return out;
  };
  const auto season = files(lg.path);

  // From here on each run opens the league the one before left open, as a
  // commissioner's next command does: the playoffs, then each save under a new
  // name (a name without a folder goes to the home folder).
  lg.pinLeague = false;
  lg.kvlEach({{"--yes", "start-playoffs"}, {"info"}, {"--yes", "play-games", "--season", "--save-as", "rerated"}, {"info"},
              {"--no", "rerate"}});  // re-rated after the final: a second one is asked about
  const std::string rerated = (lg.home / "rerated").string(), next = (folder / "next").string();
  EXPECT_EQ(files((folder / "year").string()), season) << "the regular season's files stay as they were";
  Harness before;
  LoadLg(before.state, rerated);
  before.state.leagueLock.release();  // read only; the next command opens it
  const League& l = before.state.league;
  EXPECT_TRUE(l.OffSeason && !l.InPlayoffs && !l.SeasonOver);
  int alive = 0;
  for (int t = 0; t < before.state.numTeams(); ++t) alive += before.state.team(t).PlayoffOut == 0;
  EXPECT_EQ(alive, 1) << "one champion";
  // The final's schedule stays: its winner has four wins, and the games left
  // after the fourth are struck, never played.
  std::map<int, int> wins;
  int played = 0, most = 0;
  const std::vector<ScheduleRecord> final = ReadSchedule(rerated + ".scx");
  for (const ScheduleRecord& g : final) {
    ASSERT_NE(g.Played, 0);
    if (g.HomeScore + g.AwayScore == 0) continue;
    ++played;
    most = std::max(most, ++wins[g.HomeScore > g.AwayScore ? g.HomeTeam : g.AwayTeam]);
  }
  EXPECT_EQ(std::tuple(final.size(), most), std::tuple(7u, 4));
  EXPECT_GE(played, 4);

  lg.kvlEach({{"--yes", "new-season", "--save-as", next + ".lge"}, {"info"}});
  // --yes does not write over a league; --overwrite does.
  const Bytes old = ReadFileBytes(rerated + ".ros");
  lg.kvl({"--yes", "save-as", rerated});
  EXPECT_EQ(ReadFileBytes(rerated + ".ros"), old);
  Harness after;
  LoadLg(after.state, next);
  after.state.leagueLock.release();
  EXPECT_EQ((std::pair{before.state.league.LgByteB, after.state.league.LgByteB}), (std::pair<u8, u8>{'R', 0}))
      << "the re-rate's mark, cleared by the new season";
  for (int t = 0; t < after.state.numTeams(); ++t) {
    EXPECT_EQ(after.state.team(t).W[0] + after.state.team(t).L[0] + after.state.team(t).GF, 0) << "team " << t;
    loadteam(before.state, t, 0);
    loadteam(after.state, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player &old = before.state.player(0, slot), &now = after.state.player(0, slot);
      if (old.empty()) continue;
      EXPECT_EQ(now.Age, old.Age + 1);
      EXPECT_EQ(now.Contract, old.Contract > 0 ? old.Contract - 1 : 0);
      EXPECT_EQ(now.GP + now.G + now.A + now.StarPoints, 0);
    }
  }
  lg.kvlEach({{"--yes", "make-schedule"}, {"--yes", "play-games", "--season"}, {"--overwrite", "--yes", "save-as", rerated}});
  EXPECT_NE(ReadFileBytes(rerated + ".ros"), old);
  lg.expectTranscript(__FILE__, "year.txt");
}

}  // namespace
}  // namespace kvl::test
