// The entry draft with its lottery, and the expansion draft. A draft continued after a save and a
// load to its end, the picks of later years coming a year nearer, and the pages, are the e2e tests'
// (golden/drafts.txt).
#include "transactions/entry_draft.h"

#include <fstream>

#include "support/kvl_test.h"
#include "transactions/database_players.h"
#include "transactions/draft_list.h"
#include "transactions/draft_lottery.h"
#include "transactions/draft_picks.h"
#include "transactions/expansion_draft.h"

namespace kvl::test {
namespace {

constexpr const char* kTitle = "Entry Draft";

// The u that draws `winner` from the box.
double DrawFor(const std::vector<int>& box, int winner) {
  const auto at = std::find(box.begin(), box.end(), winner) - box.begin();
  return (static_cast<double>(at) + 0.5) / static_cast<double>(box.size());
}

struct LotteryRow {
  int teams, playoffSize;
  int winnerPlace;  // -1: no draw
  std::vector<int> firstPlaces;
  const char* why;
};

TEST(DraftLottery, TicketsAndTheOneMove) {
  const LotteryRow rows[] = {
      {16, 0, -1, {0, 1, 2, 3}, "every team in the playoffs: no tickets"},
      {12, 0, -1, {0, 1, 2, 3}, "too few teams: C below 0, order by Priority"},
      {17, 0, 0, {0, 1, 2, 3}, "C = 1: the last team's one ticket, it stays first"},
      {24, 0, 2, {2, 0, 1, 3}, "from place 2 to the first place"},
      {30, 0, 9, {0, 1, 2, 3, 4, 9, 5, 6, 7, 8, 10}, "from place 9 to place 5"},
      {20, 1, 4, {4, 0, 1, 2, 3, 5}, "top 8: from place 4 to 0"},
  };
  for (const LotteryRow& r : rows) {
    // Team t holds waiver place (t * 7) % teams, so places and numbers differ.
    std::vector<int> priority(static_cast<std::size_t>(r.teams));
    for (int t = 0; t < r.teams; ++t) priority[static_cast<std::size_t>(t)] = (t * 7) % r.teams;
    const std::vector<int> byPlace = TeamsByPlace(priority);
    const int missed = TeamsOutOfPlayoffs(r.teams, r.playoffSize);
    const LotteryDraw probe = DrawDraftLottery(priority, missed, 0);
    int total = 0;
    for (int t = 0; t < r.teams; ++t) {
      const int p = priority[static_cast<std::size_t>(t)];
      EXPECT_EQ(probe.tickets[static_cast<std::size_t>(t)], p < missed ? missed - p : 0) << r.why;
      total += probe.tickets[static_cast<std::size_t>(t)];
    }
    EXPECT_EQ(probe.ticketBox.size(), static_cast<std::size_t>(total)) << r.why;
    const double u =
        r.winnerPlace < 0 ? 0.5 : DrawFor(probe.ticketBox, byPlace[static_cast<std::size_t>(r.winnerPlace)]);
    const LotteryDraw d = DrawDraftLottery(priority, missed, u);
    ASSERT_EQ(d.order.size(), byPlace.size()) << r.why;
    for (std::size_t place = 0; place < r.firstPlaces.size(); ++place)
      EXPECT_EQ(d.order[place], byPlace[static_cast<std::size_t>(r.firstPlaces[place])]) << r.why << " place " << place;
    EXPECT_EQ(d.winner, r.winnerPlace < 0 ? -1 : byPlace[static_cast<std::size_t>(r.winnerPlace)]) << r.why;
  }
}

struct Draft {
  explicit Draft(int teams = 8) {
    test::NewBundledLeague(h, teams);
    h.state.LeaguePath = (h.home / "draft").string();
    h.state.LeagueShort = "draft";
    h.state.league.DraftRounds = 2;
    h.state.league.OptLottery = kFalse;
    // Waiver places the reverse of team numbers: the last team picks first.
    for (int t = 0; t < teams; ++t) h.state.team(t).Priority = static_cast<u8>(teams - 1 - t);
    for (const DbRecord& r : ReadDatabase(h.state)) names.push_back(r.P.Name.str());
  }
  std::filesystem::path listFile(const std::string& text) {
    const auto path = h.home / "list.txt";
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  bool begin(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += names[static_cast<std::size_t>(i)] + "\n";
    h.ui.push("yes");
    return EntryDraft(h.state, listFile(text));
  }
  test::Harness h;
  std::vector<std::string> names;
};

// The items a list leaves out, named by line, are the drafts transcript's (e2e/golden/drafts.txt).
TEST(EntryDraft, AListNotTextOrOfNobodyDraftableStartsNothing) {
  Draft d;
  EXPECT_THROW(ReadDraftListFile(d.h.state, d.listFile(std::string("Name\0X", 6))), KvlError);
  d.h.ui.push("yes");
  EXPECT_FALSE(EntryDraft(d.h.state, d.listFile("\n\nNobody\n"))) << "nothing to draft";
  EXPECT_FALSE(d.h.state.league.EntryDraftOn);
  EXPECT_TRUE(ReadDraftList(d.h.state).empty()) << "nothing half-read";
}

TEST(EntryDraft, OrderByPriorityWithATradedPickAndAPickNobodyHolds) {
  Draft d;
  // Team 7 (first place) has traded its first-round pick to team 2; team 6's is gone.
  DraftPickRecord from = ReadDraftPicks(d.h.state, 7), to = ReadDraftPicks(d.h.state, 2);
  to.Pick[60] = from.Pick[1];
  from.Pick[1] = DraftPick{};
  WriteDraftPicks(d.h.state, 7, from);
  WriteDraftPicks(d.h.state, 2, to);
  DraftPickRecord gone = ReadDraftPicks(d.h.state, 6);
  gone.Pick[1] = DraftPick{};
  WriteDraftPicks(d.h.state, 6, gone);

  ASSERT_TRUE(d.begin(40));
  DraftNew form(d.h.state);
  EXPECT_EQ((std::array{form.turn().origTeam, form.turn().holder}), (std::array{7, 2}));
  ASSERT_TRUE(form.cmdAdd(1));
  EXPECT_EQ((std::array{form.turn().origTeam, form.turn().overall}), (std::array{5, 3})) << "team 6's pick is passed";
  const std::vector<MadePick> made = form.picks();
  ASSERT_EQ(made.size(), 1u);
  EXPECT_EQ(made[0].team + " from " + made[0].fromTeam, "Club2 from Club7");
  loadteam(d.h.state, 2, 0);
  EXPECT_EQ(d.h.state.player(0, 0).Name.str(), d.names[0]);
  EXPECT_EQ(d.h.state.player(0, 0).Status, 0) << "a draftee starts in the minors";
  EXPECT_NE(ReadDatabase(d.h.state)[0].DbFlag, 0) << "no longer a free agent";
}

TEST(EntryDraft, RefusedPicksChangeNothing) {
  Draft d;
  ASSERT_TRUE(d.begin(40));
  DraftNew form(d.h.state);
  ASSERT_TRUE(form.cmdProspect(1));
  EXPECT_TRUE(d.h.ui.told(d.names[0] + " added to prospect list", kTitle));
  EXPECT_FALSE(form.cmdAdd(1));
  EXPECT_TRUE(d.h.ui.told(d.names[0] + " has been drafted already.", kTitle));
  // The team at the turn has a full roster.
  const int holder = form.turn().holder;
  loadteam(d.h.state, holder, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot) d.h.state.player(0, slot).Name.set("Filler" + std::to_string(slot));
  SaveTeam(d.h.state, holder, 0);
  EXPECT_FALSE(form.cmdAdd(2));
  EXPECT_TRUE(d.h.ui.told("No room on roster", kTitle));
  EXPECT_EQ(form.turn().overall, 2) << "the turn stays";
  EXPECT_EQ(form.cmdAuto(1), 1) << "auto goes to the prospect list";
}

constexpr const char* kExpansionTitle = "Expansion Draft";
constexpr int kNew = 7;  // the expansion team

// Eight teams; the last is new and empty; each other team protects its
// first three players.
struct Expansion {
  Expansion() {
    test::LeaguePlan plan = test::StandardLeague(8);
    plan.rosters[kNew].clear();
    plan.teams[kNew].Expansion = 1;
    for (int t = 0; t < kNew; ++t)
      for (int slot = 0; slot < 3; ++slot)
        plan.rosters[static_cast<std::size_t>(t)][static_cast<std::size_t>(slot)].Protected = kTrue;
    h.load(plan);
  }
  bool begin() {
    h.ui.push("yes");
    return ExpansionDraft(h.state);
  }
  std::vector<Player> roster(int team) {
    loadteam(h.state, team, 0);
    std::vector<Player> out;
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (!h.state.player(0, slot).empty()) out.push_back(h.state.player(0, slot));
    return out;
  }
  test::Harness h;
};

TEST(ExpansionDraft, AutoTakesTheQuotaByPositionAndNeverAProtectedPlayer) {
  Expansion e;
  ASSERT_TRUE(e.begin());
  ExpansionDraftForm form(e.h.state);
  for (const UnprotectedEntry& u : form.unprotected()) {
    EXPECT_NE(u.team, kNew);
    EXPECT_GE(u.slot, 3) << u.name << " is protected";
  }
  EXPECT_EQ(form.cmdAuto(), 24);
  const Team& t = e.h.state.team(kNew);
  EXPECT_EQ(std::vector<int>({t.ExpFwd, t.ExpDef, t.ExpGoal}), std::vector<int>({13, 8, 3}));
  EXPECT_FALSE(e.h.state.league.ExpansionDraftOn);
  EXPECT_EQ(t.Expansion, 0) << "stocked";
  int dressed = 0;
  for (const Player& p : e.roster(kNew)) dressed += p.list() == 2;
  EXPECT_EQ(dressed, 20) << "dressed at the end of the draft";
  for (int team = 0; team < kNew; ++team) {
    const std::vector<Player> left = e.roster(team);
    EXPECT_EQ(std::count_if(left.begin(), left.end(), [](const Player& p) { return p.Protected != 0; }), 3);
  }
}

TEST(ExpansionDraft, RefusedTakesChangeNothing) {
  Expansion e;
  ASSERT_TRUE(e.begin());
  ExpansionDraftForm form(e.h.state, {1, 1, 1});
  struct Row {
    int team, from, slot;
    std::string told;
  };
  // Slot 3 of StandardLeague is a centre, slot 7 a left wing.
  ASSERT_TRUE(form.cmdAdd(kNew, 0, 3));
  const Row rows[] = {
      {kNew, 0, 0, "Team0 has no unprotected player in slot 1."},
      {kNew, 0, 3, "Team0 has no unprotected player in slot 4."},
      {kNew, 1, 7, "Team7 have taken all the forwards an expansion team may take."},
      {2, 1, 7, "Team2 is not an expansion team."},
  };
  for (const Row& r : rows) {
    EXPECT_FALSE(form.cmdAdd(r.team, r.from, r.slot)) << r.told;
    EXPECT_TRUE(e.h.ui.told(r.told, kExpansionTitle)) << r.told;
  }
  EXPECT_EQ(e.roster(kNew).size(), 1u);
  EXPECT_EQ(e.roster(1).size(), 24u);
}

TEST(ExpansionDraft, NoLeavesTheLeagueAsItWasAndAFullExpansionTeamTakesNobody) {
  Expansion e;
  loadteam(e.h.state, kNew, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot)
    e.h.state.player(0, slot) = test::MakePlayer("Full" + std::to_string(slot), kCentre, 50);
  SaveTeam(e.h.state, kNew, 0);
  e.h.ui.push("no");
  EXPECT_FALSE(ExpansionDraft(e.h.state));
  EXPECT_FALSE(e.h.state.league.ExpansionRounds || e.h.state.league.ExpansionDraftOn || e.h.state.Dirty);
  ASSERT_TRUE(e.begin());
  ExpansionDraftForm form(e.h.state);
  EXPECT_TRUE(form.over());
  EXPECT_FALSE(form.cmdAdd(kNew, 0, 5));
  EXPECT_TRUE(e.h.ui.told("No room on roster", "Transfer Player"));
}

}  // namespace
}  // namespace kvl::test
