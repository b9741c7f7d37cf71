#include "season/schedule_form.h"

#include "season/reset_league.h"
#include "season/schedule_allot.h"
#include "season/schedule_file.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/schedule_checker.h"
#include "support/schedule_leagues.h"

namespace kvl {
namespace {

using test::Alignment;

const Alignment kDemo{{6, 6}, {6, 6}};

struct FormLeague {
  explicit FormLeague(const Alignment& a = kDemo) {
    path = h.load(test::AlignedLeague(a));
    h.state.rnd.setMasterSeed(11);
  }
  // What the allotment gives for these parameters, made afresh.
  ScheduleMatrices allotted(const ScheduleParams& p) {
    ScheduleMatrices m;
    AllotGameLog log(h.dir.path(), 0);
    EXPECT_TRUE(AllotGames(h.state, p, m, log));
    return m;
  }
  fs::path scx() const { return h.state.swap(swp::Schedule); }
  test::Harness h;
  std::string path;
};

// The demo league at the suggestion, and 30 teams with top-up games above it.
TEST(NewSchedule, MakesTheAllottedGamesResetsTheLeagueAndKeepsAnOldScd) {
  struct Row {
    Alignment a;
    int suggested, gp;
  } rows[] = {{kDemo, 66, 66}, {{{5, 5, 5}, {5, 5, 5}}, 74, 82}};
  for (const Row& r : rows) {
    FormLeague lg(r.a);
    const int n = test::TeamCount(r.a);
    loadteam(lg.h.state, 5, 0);
    lg.h.state.player(0, 0).G = 9;
    SaveTeam(lg.h.state, 5, 0);
    Bytes old(4642, 0);
    old[0] = 7;
    WriteFileAtomic(lg.path + ".scd", old);
    ScheduleForm form(lg.h.state);
    EXPECT_EQ(form.suggested(), r.suggested);
    form.setParam(ScheduleParam::GPTeam, r.gp);
    ScheduleOutcome out = ScheduleOutcome::PlacementFailed;
    for (int i = 0; i < 100 && out == ScheduleOutcome::PlacementFailed; ++i) out = form.cmdNewSchedule();  // each draws anew
    ASSERT_EQ(out, ScheduleOutcome::Made);
    const League& hd = lg.h.state.league;
    EXPECT_TRUE(lg.h.ui.told("Schedule is complete", "Make Schedule"));
    auto faults = test::CheckMadeSchedule(lg.scx(), n, hd, lg.allotted(form.params()));
    EXPECT_TRUE(faults.empty()) << faults.front();
    EXPECT_EQ(std::tuple(+hd.LeagueGames, hd.NextGameMark, +hd.GamesPlayed), std::tuple(n * r.gp / 2, -1, 0));
    EXPECT_TRUE(hd.ScheduleMade && lg.h.state.Dirty);
    loadteam(lg.h.state, 5, 0);
    EXPECT_EQ(lg.h.state.player(0, 0).G, 0) << "ResetLeague ran";
    EXPECT_TRUE(fs::exists(lg.h.home / "AllotGameLog.txt"));
    EXPECT_FALSE(fs::exists(lg.path + ".scd"));
    EXPECT_EQ(ReadFileBytes(lg.path + ".scdold"), old);
  }
}

// A press that makes nothing says why (the golden holds what each row is told
// or asked) and leaves the header as it was; until placement begins the
// schedule file is untouched too.
TEST(NewSchedule, FailedPressesChangeNothing) {
  struct Row {
    const char* why;
    Alignment a;
    bool scheduleMade;
    int gpOverSuggested;
    ScheduleOutcome out;
  } rows[] = {
      {"unbalanced", {{7, 7}, {6, 6}}, false, 0, ScheduleOutcome::Refused},
      {"a made schedule not to be reset", kDemo, true, 0, ScheduleOutcome::Refused},
      {"below the suggestion", kDemo, false, -6, ScheduleOutcome::AllotFailed},
      // 9 teams at 29 games make 130.5 games in all: the count never meets that, and the days run dry.
      {"a fractional total", {{3, 2}, {2, 2}}, false, 3, ScheduleOutcome::PlacementFailed},
  };
  std::string said;
  for (const Row& r : rows) {
    FormLeague lg(r.a);
    lg.h.state.league.ScheduleMade = r.scheduleMade ? kTrue : kFalse;
    lg.h.state.league.GamesPlayed = 12;
    lg.h.ui.push("no");
    const Bytes schedule(31, 1);
    WriteFileAtomic(lg.scx(), schedule);
    const League before = lg.h.state.league;
    ScheduleForm form(lg.h.state);
    form.setParam(ScheduleParam::GPTeam, form.suggested() + r.gpOverSuggested);
    EXPECT_EQ(form.cmdNewSchedule(), r.out) << r.why;
    ASSERT_FALSE(lg.h.ui.calls().empty());
    said += fmt::format("--- {}\n[{}] {}\n", r.why, lg.h.ui.calls().back().title, lg.h.ui.calls().back().text);
    EXPECT_EQ(EncodeRecord(lg.h.state.league), EncodeRecord(before)) << r.why;
    EXPECT_EQ(fs::exists(lg.h.home / "AllotGameLog.txt"), r.out != ScheduleOutcome::Refused) << r.why;
    EXPECT_TRUE(r.out == ScheduleOutcome::PlacementFailed || ReadFileBytes(lg.scx()) == schedule) << r.why;
  }
  test::ExpectGolden(__FILE__, "failed_presses.txt", said);
}

TEST(EarlierSchedule, NumbersItsDaysAndMakesTheAllottedGames) {
  FormLeague lg;
  ScheduleForm form(lg.h.state);
  form.setParam(ScheduleParam::Variance, 4);  // no draw below 0
  ScheduleOutcome out = ScheduleOutcome::PlacementFailed;
  for (int i = 0; i < 40 && out == ScheduleOutcome::PlacementFailed; ++i) out = form.cmdSchedule();
  ASSERT_EQ(out, ScheduleOutcome::Made);
  std::vector<ScheduleRecord> games = ReadSchedule(lg.scx());
  EXPECT_EQ(games.front().GameDay, 1);
  for (std::size_t k = 1; k < games.size(); ++k) EXPECT_GE(games[k].GameDay, games[k - 1].GameDay);
  auto faults = test::CheckMadeSchedule(lg.scx(), 24, lg.h.state.league, lg.allotted(form.params()), true);
  EXPECT_TRUE(faults.empty()) << faults.front();
  EXPECT_NE(lg.h.state.league.ScheduleMade, 0);
}

// A total of 130.5 games stalls; the day's target was held in a byte, so a draw
// below 0 is a run-time stop.
TEST(EarlierSchedule, StallsOnAFractionalTotalAndStopsOnANegativeDraw) {
  FormLeague odd({{3, 2}, {2, 2}});
  ScheduleForm form(odd.h.state);
  form.setParam(ScheduleParam::GPTeam, form.suggested() + 3);
  form.setParam(ScheduleParam::Variance, 1);
  EXPECT_EQ(form.cmdSchedule(), ScheduleOutcome::PlacementFailed);
  EXPECT_TRUE(odd.h.ui.told("Attempt Failed, Try Again", "Make Schedule"));
  EXPECT_EQ(odd.h.state.league.ScheduleMade, 0);
  FormLeague lg;
  ScheduleForm negative(lg.h.state);
  negative.setParam(ScheduleParam::GPDay, 1);
  negative.setParam(ScheduleParam::Variance, 11);
  EXPECT_THROW(negative.cmdSchedule(), KvlError);
}

// A minimum reruns the suggestion; the exhibition box marks the league changed
// only when it changes.
TEST(ScheduleForm, MinimumsRerunTheSuggestionAndTheExhibitionBox) {
  FormLeague lg;
  ScheduleForm form(lg.h.state);
  form.setParam(ScheduleParam::GPTeam, 80);
  form.setParam(ScheduleParam::vsDiv, 4);
  EXPECT_EQ(form.params().GPTeam, 56);
  form.setParam(ScheduleParam::GPDay, 7);
  EXPECT_EQ(form.params().GPTeam, 56);
  form.chkExhibition(false);
  EXPECT_FALSE(lg.h.state.Dirty) << "unchanged";
  form.chkExhibition(true);
  EXPECT_TRUE(lg.h.state.league.Exhibition && lg.h.state.Dirty);
}

// (Too small a league, a team without a division, and an unstocked expansion
// team before and after its draft are refused or allowed by running kvl.)
TEST(ScheduleFormMayOpen, AllowsAnUnstockedExpansionTeamWhileTheDraftStocksIt) {
  test::LeaguePlan plan = test::StandardLeague(8);
  plan.teams[6].Expansion = 1;
  plan.rosters[6].resize(19);
  plan.header.ExpansionDraftOn = kTrue;
  test::Harness h;
  h.load(plan);
  EXPECT_TRUE(ScheduleFormMayOpen(h.state));
}

// ResetLeague, which a new schedule runs, heals only outside a finished season.
TEST(ResetLeague, ClearsTheFiguresAndHealsOnlyBeforeTheSeasonIsOver) {
  for (bool seasonOver : {false, true}) {
    test::Harness h;
    h.load(test::StandardLeague(8));
    loadteam(h.state, 0, 0);
    Player& hurt = h.state.player(0, 0);
    hurt.Status = 203, hurt.Condition = 60, hurt.G = 12, hurt.Hits = 40;
    SaveTeam(h.state, 0, 0);
    h.state.team(0).W[0] = 5;
    h.state.league.SeasonOver = ToBool16(seasonOver);
    ResetLeague(h.state);
    loadteam(h.state, 0, 0);
    const Player& p = h.state.player(0, 0);
    EXPECT_EQ(std::tuple(p.G, p.Hits, h.state.team(0).W[0]), std::tuple(0, 0, 0));
    EXPECT_EQ(p.Status, seasonOver ? 203 : 200) << "seasonOver=" << seasonOver;
    EXPECT_EQ(p.Condition, seasonOver ? 60 : 100);
  }
}

}  // namespace
}  // namespace kvl
