// The roster editor: its lists and caption, moves and their refusals, the automatic roster's
// shortage text, protection limits, and leaving. An injured scratch refused both ways is the e2e tests'.
#include "team/roster_editor.h"

#include <algorithm>

#include "support/kvl_test.h"
#include "support/team_rosters.h"
#include "team/protection.h"
#include "team/roster_rules.h"

namespace kvl::test {
namespace {

struct RosterEditorTest : ::testing::Test {
  Harness h;
  void open(const std::vector<Player>& roster) {
    LeaguePlan plan = StandardLeague(2);
    plan.rosters[0] = roster;
    h.load(plan);
  }
  Player& at(int i) { return h.state.player(0, i); }
  std::vector<int> indexes(const RosterEditor& e, int list) {
    std::vector<int> out;
    for (const auto& entry : e.list(list)) out.push_back(entry.index);
    return out;
  }
};

TEST_F(RosterEditorTest, CaptionCallsARosterCompleteOnlyWhenItFitsTheRules) {
  struct Case {
    std::array<int, 5> dressed;
    const char* caption;
  } cases[] = {
      // Twenty dressed with one short position each (D, C, LW, RW, a third goalie), then 17 and 21.
      {{4, 4, 3, 7, 2}, "Roster Complete"},  {{3, 3, 3, 9, 2}, "Roster Complete"},
      {{5, 4, 4, 5, 2}, "20 Total Players"}, {{2, 4, 4, 8, 2}, "20 Total Players"},
      {{4, 2, 4, 8, 2}, "20 Total Players"}, {{4, 4, 2, 8, 2}, "20 Total Players"},
      {{4, 4, 3, 6, 3}, "20 Total Players"}, {{3, 3, 3, 6, 2}, "17 Total Players"},
      {{4, 4, 4, 7, 2}, "21 Total Players"},
  };
  for (const auto& c : cases) {
    open(Join({Squad(c.dressed, 70), Squad({1, 1, 1, 1, 1}, 40, 100)}));
    EXPECT_EQ(RosterEditor(h.state, 0).caption(), c.caption);
  }
}

TEST_F(RosterEditorTest, MovesAreRefusedWithTheSystemsWordsAndChangeNothing) {
  std::vector<Player> r = Squad({4, 4, 4, 6, 2}, 70);
  r.push_back(Rated(kCentre, 61, 100));  // 20: a suspended scratch
  r[20].Suspended = 3;
  open(r);
  RosterEditor e(h.state, 0);
  auto before = e.TempStatus;
  e.cmdMovePlayer(RosterMove::ScratchToDressed, {20});
  e.cmdMovePlayer(RosterMove::ScratchToMinors, {20});
  EXPECT_TRUE(h.ui.told("C 61 is unavailable", "Set Roster"));
  EXPECT_TRUE(h.ui.told("C 61 cannot be sent to farm", "Set Roster"));
  EXPECT_EQ(e.TempStatus, before);
  // A player dressed at opening and sent down cannot come back in this sitting.
  e.cmdMovePlayer(RosterMove::DressedToScratch, {0});
  e.cmdMovePlayer(RosterMove::ScratchToDressed, {0});
  EXPECT_TRUE(h.ui.told("C 70 is unavailable", "Set Roster"));
  EXPECT_EQ(e.TempStatus[0], 100);
  EXPECT_EQ(e.caption(), "19 Total Players");
  e.cmdMovePlayer(RosterMove::MinorsToScratch, {0});  // not in the minors: ignored
  EXPECT_EQ(e.TempStatus[0], 100);
}

TEST_F(RosterEditorTest, TheTwentySixthPlayerIsRefusedUnlessAHoldOutMakesRoom) {
  std::vector<Player> r = Join(
      {Squad({4, 4, 4, 6, 2}, 70), Squad({1, 1, 1, 1, 1}, 50, 100), {Rated(kCentre, 40, 0), Rated(kCentre, 41, 0)}});
  open(r);
  {
    RosterEditor e(h.state, 0);
    EXPECT_EQ(e.ProCount, 25);
    e.cmdMovePlayer(RosterMove::MinorsToScratch, {25, 26});
    EXPECT_TRUE(h.ui.told("Roster is full", "Set Roster"));
    EXPECT_EQ(e.TempStatus[25], 0);
    EXPECT_EQ(e.TempStatus[26], 0);
  }
  at(20).Suspended = kHoldOut;
  SaveTeam(h.state, 0, 0);
  RosterEditor e(h.state, 0);
  EXPECT_EQ(e.ProCount, 24);
  e.cmdMovePlayer(RosterMove::MinorsToScratch, {25});
  EXPECT_EQ(e.TempStatus[25], 100);
}

TEST_F(RosterEditorTest, AutoNamesEveryShortage) {
  open(Squad({2, 4, 4, 4, 1}, 70, 100));
  RosterEditor e(h.state, 0);
  e.cmdAuto();
  EXPECT_TRUE(
      h.ui.told("Not enough players:\r\n- only 15 of 20 players available\r\n"
                "- only 2 of the 3 required Centres available\r\n"
                "- only 4 of 5 required Defencemen available\r\n"
                "- only 1 of 2 required Goaltenders available\r\n",
                "Auto Roster"));
  EXPECT_EQ(e.caption(), "0 Total Players");
}

TEST_F(RosterEditorTest, LeavingWithYesStoresTheListsAndClearsTheLinesOfTheUndressed) {
  std::vector<Player> r = Join({Squad({4, 4, 4, 6, 2}, 70), Squad({1, 0, 0, 0, 0}, 50, 100)});
  r[1].Status = 204;  // dressed but hurt
  open(r);
  Team& team = h.state.team(0);
  team.Lines.cells.fill(kNoPlayer);
  team.Lines.at(0, 0) = 0;
  team.Lines.at(4, 0) = 0;
  team.Lines.at(12, 1) = 0;
  team.Lines.at(12, 4) = 0;  // never examined
  team.Lines.at(1, 0) = 1;
  team.Lines.at(2, 0) = 2;
  team.LinesOK = kTrue;
  RosterEditor e(h.state, 0);
  EXPECT_EQ(e.TempStatus[1], 104);
  e.cmdMovePlayer(RosterMove::DressedToScratch, {0});
  e.cmdMovePlayer(RosterMove::ScratchToMinors, {0});
  e.cmdMovePlayer(RosterMove::ScratchToDressed, {20});
  h.ui.push("yes");
  EXPECT_TRUE(e.cmdExit());
  EXPECT_TRUE(h.ui.told("Roster not complete", "Edit Roster")) << "19 dressed: told, and kept all the same";
  loadteam(h.state, 0, 0);
  EXPECT_EQ((std::array{int(at(0).Status), int(at(1).Status), int(at(20).Status)}), (std::array{0, 104, 200}));
  // The player sent down and the hurt one leave every examined slot; the rest stay.
  EXPECT_EQ((std::array{team.Lines.at(0, 0), team.Lines.at(4, 0), team.Lines.at(12, 1), team.Lines.at(12, 4),
                        team.Lines.at(1, 0), team.Lines.at(2, 0)}),
            (std::array<u8, 6>{kNoPlayer, kNoPlayer, kNoPlayer, 0, kNoPlayer, 2}));
  EXPECT_EQ(team.LinesOK, kFalse);
}

TEST_F(RosterEditorTest, ReleasedPlayersGoToTheFreeAgentsOnce) {
  open(Squad({4, 4, 4, 6, 3}, 70));
  for (int round = 0; round < 2; ++round) {
    RosterEditor e(h.state, 0);
    if (round == 1) at(20) = Rated(kGoalie, 68, 100);  // the same name, again
    e.SetRelease(20, true);
    for (int list : {kMinorsList, kScratchList, kDressedList}) {
      std::vector<int> listed = indexes(e, list);
      EXPECT_EQ(std::count(listed.begin(), listed.end(), 20), 0);
    }
    h.ui.push("yes");
    e.cmdExit();
    EXPECT_TRUE(at(20).empty());
  }
  RecordFile db(h.state.swap(swp::Database), DbRecord::kSize);
  ASSERT_EQ(db.count(), 2u) << "the fixture's one blank record, then the player";
  DbRecord rec = db.getRecord<DbRecord>(2);
  EXPECT_EQ(rec.P.Name.str(), "G 68");
  EXPECT_EQ(rec.P.Release + rec.DbFlag, 0) << "a free agent, no longer marked for release";
}

TEST_F(RosterEditorTest, NameAndRatingEditsAndLeavingWithNoOrClosingKeepsNothing) {
  open(Squad({4, 4, 4, 6, 2}, 70));
  h.state.Dirty = false;
  RosterEditor e(h.state, 0);
  e.SetName(0, "A Name Much Longer Than Twenty-Two");
  EXPECT_EQ(at(0).Name.raw(), "A Name Much Longer Tha");
  struct Case {
    const char* text;
    int stored;
  } cases[] = {{"15", 15}, {"14", 70}, {"99.7", 99}, {"100", 70}, {"abc", 70}, {"42x", 42}};
  for (auto c : cases) {
    at(1).rating(kSco) = 70;
    e.SetRating(1, kSco, c.text);
    EXPECT_EQ(at(1).rating(kSco), c.stored) << c.text;
  }
  e.cmdMovePlayer(RosterMove::DressedToScratch, {0});
  h.ui.push("no");
  EXPECT_FALSE(e.cmdExit());
  loadteam(h.state, 0, 0);
  EXPECT_EQ(at(0).Status, 200);
  EXPECT_FALSE(h.state.Dirty);
  RosterEditor again(h.state, 0);
  again.SetName(3, "Renamed");
  again.cmdClose();
  EXPECT_TRUE(h.ui.told("Changes were not saved", "Edit Roster"));
}

TEST(ProtectionTest, LimitsTightenAsMarksAreSpent) {
  struct Case {
    int f, d, g, fl, dl, gl;
  } cases[] = {{0, 0, 0, 10, 6, 2}, {0, 6, 0, 9, 6, 1}, {10, 0, 0, 10, 5, 1}, {0, 5, 0, 10, 6, 1}, {9, 0, 0, 10, 6, 1},
               {0, 0, 2, 8, 4, 2},  {0, 4, 2, 7, 4, 2}, {8, 4, 2, 7, 3, 2},   {10, 6, 0, 9, 5, 1}};
  for (auto c : cases) {
    ProtectionLimits l = LimitsFor(c.f, c.d, c.g);
    EXPECT_EQ((std::array{l.forwards, l.defence, l.goalies}), (std::array{c.fl, c.dl, c.gl})) << c.f << c.d << c.g;
  }
}

TEST_F(RosterEditorTest, MarksBeyondTheLimitAreRefusedSilentlyUnmarkingNever) {
  open(Squad({4, 4, 4, 7, 3}, 70));
  RosterEditor e(h.state, 0);
  e.chkProtect(true);
  for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}) EXPECT_TRUE(e.ToggleProtect(i));
  EXPECT_FALSE(e.ToggleProtect(10)) << "an eleventh forward";
  for (int i : {12, 13, 14, 15, 16}) EXPECT_TRUE(e.ToggleProtect(i));
  EXPECT_FALSE(e.ToggleProtect(17)) << "ten forwards leave room for five D";
  EXPECT_TRUE(e.ToggleProtect(19));
  EXPECT_FALSE(e.ToggleProtect(20)) << "and one goalie only";
  EXPECT_TRUE(e.ToggleProtect(0)) << "unmarking";
  EXPECT_EQ(at(0).Protected, 0);
  EXPECT_EQ(e.list(kDressedList)[1].text, "C 69*");
  EXPECT_EQ(h.ui.callsOf("tell").size(), 0u);
}

}  // namespace
}  // namespace kvl::test
