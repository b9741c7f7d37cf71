// The Options form: what applying stores, and the rules that hold values back.
#include <gtest/gtest.h>

#include <fstream>

#include "admin/options.h"
#include "admin/options_lines_directory.h"
#include "support/league_fixture.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {
namespace {

using test::Harness;

// A league of `teams` teams loaded and its Options form opened.
class OptionsForm : public ::testing::Test {
 protected:
  Options Open(int teams = 4) {
    h.load(test::StandardLeague(teams));
    return Options(h.state);
  }
  Harness h;
};

template <class P>
class OptionsCases : public OptionsForm, public ::testing::WithParamInterface<P> {};

struct RoundsCase {
  int teams;
  const char* typed;
  int stored;
};

class DraftRounds : public ::testing::TestWithParam<RoundsCase> {};

// Rounds below 1 become 1, more than 255 picks a draft cut the rounds to what
// fits, and 9 is the most.
TEST_P(DraftRounds, ApplyKeepsTheDraftWithin255PicksAnd9Rounds) {
  const auto& p = GetParam();
  EXPECT_EQ(DraftRoundsFor(Val(p.typed), p.teams), p.stored);
}

INSTANTIATE_TEST_SUITE_P(Options, DraftRounds,
                         ::testing::Values(RoundsCase{30, "9", 8},  // 270 picks
                                           RoundsCase{29, "9", 8}, RoundsCase{28, "9", 9},  // 252 picks fit
                                           RoundsCase{50, "9", 5}, RoundsCase{8, "12", 9}, RoundsCase{8, "0", 1},
                                           RoundsCase{8, "-4", 1}, RoundsCase{8, "x", 1}, RoundsCase{0, "9", 9}));

TEST_F(OptionsForm, LeavingTheRoundsBoxWithTooManyPicksTellsAndCuts) {
  Options o = Open(30);
  o.set("DraftRounds", "9");
  EXPECT_TRUE(h.ui.told("You can only draft a maximum of 255 players\nper draft or maximum 9 draft rounds.", "Options"));
  EXPECT_EQ(o.controls().txtDraftRounds, "8");
  o.cmdApply();
  EXPECT_EQ(h.state.league.DraftRounds, 8);
}

TEST_F(OptionsForm, RoundsThatFitAreNotTold) {
  Options o = Open(28);
  o.set("DraftRounds", "9");
  EXPECT_TRUE(h.ui.callsOf("tell").empty());
  EXPECT_EQ(o.controls().txtDraftRounds, "9");
}

struct NumberCase {
  const char* name;
  const char* typed;
  int stored;  // what the header holds afterwards
};

class Numbers : public OptionsCases<NumberCase> {
 protected:
  int Stored(const League& lg, const std::string& name) {
    if (name == "TradeDeadline") return lg.TradeDeadline;
    if (name == "UnresAge") return lg.UnresAge;
    if (name == "TwoWayAfter") return lg.TwoWayAfter;
    if (name == "AgeExempt") return lg.AgeExempt;
    if (name == "MinGP") return lg.MinGP;
    return lg.CurrentYear;
  }
};

// Out of the field's range the old value stays; the defaults are 80, 30, 50, 23, 25 and year 1.
TEST_P(Numbers, AreStoredWhenTheyFitTheFieldAndHeldOtherwise) {
  const auto& p = this->GetParam();
  Options o = Open();
  o.set(p.name, p.typed);
  o.cmdApply();
  EXPECT_EQ(Stored(h.state.league, p.name), p.stored);
}

INSTANTIATE_TEST_SUITE_P(
    Options, Numbers,
    ::testing::Values(NumberCase{"TradeDeadline", "75", 75}, NumberCase{"TradeDeadline", "256", 80},
                      NumberCase{"TradeDeadline", "-1", 80}, NumberCase{"TradeDeadline", "255", 255},
                      NumberCase{"UnresAge", "31.5", 32}, NumberCase{"UnresAge", "28.5", 28},  // halves to even
                      NumberCase{"TwoWayAfter", "1000", 50}, NumberCase{"AgeExempt", "abc", 0},
                      NumberCase{"MinGP", "0", 0}, NumberCase{"CurrentYear", "2024", 2024},
                      NumberCase{"CurrentYear", "40000", 1}, NumberCase{"CurrentYear", "-3", -3}));

TEST_F(OptionsForm, PathsAreCutAtTwentyAndPadded) {
  Options o = Open();
  o.set("OutputDir", "/home/commissioner/league/pages");
  o.set("RootDir", "/kvl");
  o.cmdApply();
  EXPECT_EQ(h.state.league.OutputDir.raw(), "/home/commissioner/l");  // 20 characters
  EXPECT_EQ(h.state.league.RootDir.raw(), "/kvl                ");
}

TEST(OptionsFormPlayoffs, SizeIsNotChangedOnceThePlayoffsRun) {
  for (bool playoffs : {false, true}) {
    Harness h;
    h.load(test::StandardLeague(4));
    h.state.league.InPlayoffs = ToBool16(playoffs);
    Options o(h.state);
    o.set("PlayoffSize", "2");
    o.cmdApply();
    EXPECT_EQ(h.state.league.PlayoffSize, playoffs ? 0 : 2) << playoffs;
  }
}

TEST_F(OptionsForm, TheTreeChoiceSelectsThePlayoffSize) {
  Options o = Open();
  o.set("PlayoffTree", "0");
  EXPECT_EQ(o.controls().Option4, 1);
  o.set("PlayoffTree", "1");
  o.cmdApply();
  EXPECT_EQ(h.state.league.PlayoffSize, 2);
}

TEST_F(OptionsForm, TicksSlidersAndPointSystemAreStored) {
  Options o = Open();
  for (auto [name, value] : {std::pair{"OptMoney", "on"}, {"OptInjuries", "off"}, {"OptFarmStreaks", "yes"},
                             {"OptLottery", "off"}, {"SeedDivLeaders", "on"}, {"OutputPage16", "on"},
                             {"OutputPage1", "off"}, {"OptAutoOutput", "off"}, {"ShotsLevel", "7"},
                             {"InjuriesLevel", "1"}, {"PointSystem", "3"}})
    o.set(name, value);
  o.cmdApply();
  const League& lg = h.state.league;
  EXPECT_EQ(lg.OptMoney, kTrue);
  EXPECT_EQ(lg.OptInjuries, kFalse);
  EXPECT_EQ(lg.OptFarmStreaks, 1);
  EXPECT_EQ(lg.OptLottery, kFalse);
  EXPECT_EQ(lg.SeedDivLeaders, kTrue);
  EXPECT_EQ(lg.CheckFlags[16], 1);
  EXPECT_EQ(lg.CheckFlags[1], 0);
  EXPECT_EQ(lg.CheckFlags[2], 1);  // ticked by the 255 of a new league, stored as 1
  EXPECT_EQ(lg.OptAutoOutput, kFalse);
  EXPECT_EQ(lg.ShotsLevel(), 7);
  EXPECT_EQ(lg.InjuriesLevel(), 1);
  EXPECT_EQ(lg.GoalsLevel(), 5);
  EXPECT_EQ(lg.PointSystem, 3);
  EXPECT_TRUE(h.state.Dirty);
}

struct BadSetting {
  const char* name;
  const char* value;
  const char* told;
};

using BadSettings = OptionsCases<BadSetting>;

TEST_P(BadSettings, AreToldAndLeaveTheFormUnchanged) {
  const auto& p = this->GetParam();
  Options o = Open();
  EXPECT_THROW(o.set(p.name, p.value), Refused);
  EXPECT_TRUE(h.ui.told(p.told, "Options")) << h.ui.calls().back().text;
  EXPECT_FALSE(o.dirty());
}

INSTANTIATE_TEST_SUITE_P(
    Options, BadSettings,
    ::testing::Values(BadSetting{"ShotsLevel", "10", "ShotsLevel takes a whole number from 1 to 9, not \"10\"."},
                      BadSetting{"GoalsLevel", "0", "GoalsLevel takes a whole number from 1 to 9, not \"0\"."},
                      BadSetting{"PointSystem", "1.5", "PointSystem takes a whole number from 0 to 3, not \"1.5\"."},
                      BadSetting{"PlayoffSize", "", "PlayoffSize takes a whole number from 0 to 2, not \"\"."},
                      BadSetting{"OptMoney", "maybe", "OptMoney is on or off, not \"maybe\"."},
                      BadSetting{"Overtime", "on", "There is no option \"Overtime\"; the command options lists them all."}));

TEST(OptionsFormClose, WithChangesAsksAndAppliesOnYes) {
  for (const char* answer : {"yes", "no"}) {
    Harness h;
    h.load(test::StandardLeague(4));
    Options o(h.state);
    o.set("ShotsLevel", "2");
    h.ui.push(answer);
    o.cmdClose();
    ASSERT_EQ(h.ui.callsOf("ask").size(), 1u);
    EXPECT_EQ(h.ui.callsOf("ask")[0].text, "Keep Changes?");
    EXPECT_EQ(h.ui.callsOf("ask")[0].title, "Keep Changes");
    EXPECT_EQ(h.state.league.ShotsLevel(), std::string(answer) == "yes" ? 2 : 5);
  }
}

TEST_F(OptionsForm, ClosingUnchangedAsksNothing) {
  Open().cmdClose();
  EXPECT_TRUE(h.ui.calls().empty());
  EXPECT_FALSE(h.state.Dirty);
}

TEST_F(OptionsForm, LinesDirectoryIsCreatedWithTheHomeFolderWhenMissing) {
  h.load(test::StandardLeague(4));
  fs::remove(LinesDirectoryFile(h.home));
  Options o(h.state);
  EXPECT_EQ(o.controls().Text1[5], h.home.string());
  EXPECT_TRUE(fs::exists(LinesDirectoryFile(h.home)));
  EXPECT_EQ(ReadLinesDirectory(h.home), h.home.string());
}

TEST_F(OptionsForm, LinesDirectoryIsWrittenTrimmedAndEndingInASeparator) {
  h.load(test::StandardLeague(4));
  for (auto [typed, stored] : {std::pair{"  /srv/lines  ", "/srv/lines/"}, {"/srv/lines/", "/srv/lines/"}}) {
    Options o(h.state);
    o.set("LinesDirectory", typed);
    o.cmdApply();
    std::ifstream in(LinesDirectoryFile(h.home));
    std::string line, more;
    std::getline(in, line);
    EXPECT_EQ(line, std::string(stored) + "\r");
    EXPECT_FALSE(std::getline(in, more));  // the file holds this one line
    EXPECT_EQ(Options(h.state).controls().Text1[5], stored);
  }
}

}  // namespace
}  // namespace kvl
