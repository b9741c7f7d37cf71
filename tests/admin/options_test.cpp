// The Options form: what applying stores, and the rules that hold values back.
// ShotsLevel and OptMoney set and saved, and a slider out of range, are the e2e tests'.
#include "admin/options.h"

#include "admin/options_lines_directory.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "util/numbers.h"

namespace kvl::test {
namespace {

// Rounds below 1 become 1, more than 255 picks a draft cut the rounds to what
// fits, and 9 is the most.
TEST(OptionsRules, DraftRoundsKeepTheDraftWithin255PicksAnd9Rounds) {
  struct Case {
    int teams;
    const char* typed;
    int stored;
  } cases[] = {{29, "9", 8}, {28, "9", 9}, {50, "9", 5}, {8, "12", 9}, {8, "0", 1}, {8, "x", 1}, {0, "9", 9}};
  for (const auto& c : cases) EXPECT_EQ(DraftRoundsFor(Val(c.typed), c.teams), c.stored) << c.teams << " " << c.typed;
}

struct OptionsForm : ::testing::Test {
  Options Open(int teams = 4) {
    h.load(StandardLeague(teams));
    return Options(h.state);
  }
  Harness h;
};

TEST_F(OptionsForm, LeavingTheRoundsBoxWithTooManyPicksTellsAndCuts) {
  Options o = Open(29);
  o.set("DraftRounds", "9");
  EXPECT_TRUE(
      h.ui.told("You can only draft a maximum of 255 players\nper draft or maximum 9 draft rounds.", "Options"));
  EXPECT_EQ(o.controls().txtDraftRounds, "8");
  o.cmdApply();
  EXPECT_EQ(h.state.league.DraftRounds, 8);
  Harness fits;
  fits.load(StandardLeague(28));
  Options(fits.state).set("DraftRounds", "9");
  EXPECT_TRUE(fits.ui.callsOf("tell").empty());
}

// Out of the field's range the old value stays; the defaults are 80 and year 1.
TEST_F(OptionsForm, NumbersAreStoredWhenTheyFitTheFieldAndHeldOtherwise) {
  struct Case {
    const char* name;
    const char* typed;
    int stored;
    int (*read)(const League&);
  };
  auto deadline = [](const League& l) { return int(l.TradeDeadline); };
  auto year = [](const League& l) { return int(l.CurrentYear); };
  auto unres = [](const League& l) { return int(l.UnresAge); };
  const Case cases[] = {
      {"TradeDeadline", "256", 80, deadline},
      {"TradeDeadline", "-1", 80, deadline},
      {"TradeDeadline", "255", 255, deadline},
      {"UnresAge", "31.5", 32, unres},
      {"UnresAge", "28.5", 28, unres},  // halves to even
      {"AgeExempt", "abc", 0, [](const League& l) { return int(l.AgeExempt); }},
      {"MinGP", "0", 0, [](const League& l) { return int(l.MinGP); }},
      {"CurrentYear", "40000", 1, year},
      {"CurrentYear", "-3", -3, year},
  };
  h.load(StandardLeague(4));
  const League fresh = h.state.league;
  for (const auto& c : cases) {
    h.state.league = fresh;
    Options o(h.state);
    o.set(c.name, c.typed);
    o.cmdApply();
    EXPECT_EQ(c.read(h.state.league), c.stored) << c.name << "=" << c.typed;
  }
}

// The other ticks, sliders and choices are stored as set: the e2e tests set and read back two.
TEST_F(OptionsForm, PageTicksAndFarmStreaksAreStoredAsOneAndPathsAreCutAtTwenty) {
  Options o = Open();
  for (auto [name, value] : {std::pair{"OptFarmStreaks", "yes"},
                             {"OutputPage16", "on"},
                             {"OutputPage1", "off"},
                             {"OutputDir", "/home/commissioner/league/pages"},
                             {"RootDir", "/kvl"}})
    o.set(name, value);
  o.cmdApply();
  const League& lg = h.state.league;
  EXPECT_EQ(lg.OptFarmStreaks, 1);
  // Page 2 was ticked by the 255 of a new league, and is stored as 1.
  EXPECT_EQ((std::array{lg.CheckFlags[16], lg.CheckFlags[1], lg.CheckFlags[2]}), (std::array<u8, 3>{1, 0, 1}));
  EXPECT_EQ(lg.OutputDir.raw(), "/home/commissioner/l");
  EXPECT_EQ(lg.RootDir.raw(), "/kvl                ");
}

TEST_F(OptionsForm, BadSettingsAreToldAndLeaveTheFormUnchanged) {
  Options o = Open();
  for (auto [name, value, told] : {
           std::tuple{"GoalsLevel", "0", "GoalsLevel takes a whole number from 1 to 9, not \"0\"."},
           {"PointSystem", "1.5", "PointSystem takes a whole number from 0 to 3, not \"1.5\"."},
           {"PlayoffSize", "", "PlayoffSize takes a whole number from 0 to 2, not \"\"."},
           {"OptMoney", "maybe", "OptMoney is on or off, not \"maybe\"."},
           {"Overtime", "on", "There is no option \"Overtime\"; the command options lists them all."}}) {
    EXPECT_THROW(o.set(name, value), Refused) << name;
    EXPECT_TRUE(h.ui.told(told, "Options")) << h.ui.calls().back().text;
    EXPECT_FALSE(o.dirty()) << name;
  }
}

TEST_F(OptionsForm, TheTreeSelectsThePlayoffSizeWhichIsNotChangedOnceThePlayoffsRun) {
  Options o = Open();
  o.set("PlayoffTree", "0");
  EXPECT_EQ(o.controls().Option4, 1);
  o.set("PlayoffTree", "1");
  o.cmdApply();
  EXPECT_EQ(h.state.league.PlayoffSize, 2);
  h.state.league.InPlayoffs = kTrue;
  o.set("PlayoffSize", "0");
  o.cmdApply();
  EXPECT_EQ(h.state.league.PlayoffSize, 2);
}

TEST(OptionsFormClose, AsksOnlyWithChangesAndAppliesOnYes) {
  for (const char* answer : std::initializer_list<const char*>{"yes", "no", nullptr}) {
    Harness h;
    h.load(StandardLeague(4));
    Options o(h.state);
    if (answer) o.set("ShotsLevel", "2"), h.ui.push(answer);
    o.cmdClose();
    EXPECT_EQ(h.ui.callsOf("ask").size(), answer ? 1u : 0u);
    EXPECT_EQ(h.state.league.ShotsLevel(), answer && *answer == 'y' ? 2 : 5);
    EXPECT_TRUE(answer || !h.state.Dirty);
  }
}

TEST_F(OptionsForm, LinesDirectoryIsMadeWhenMissingAndWrittenTrimmedWithASeparator) {
  h.load(StandardLeague(4));
  fs::remove(LinesDirectoryFile(h.home));
  EXPECT_EQ(Options(h.state).controls().Text1[5], h.home.string());
  EXPECT_EQ(ReadLinesDirectory(h.home), h.home.string());
  for (auto [typed, stored] : {std::pair{"  /srv/lines  ", "/srv/lines/"}, {"/srv/lines/", "/srv/lines/"}}) {
    Options o(h.state);
    o.set("LinesDirectory", typed);
    o.cmdApply();
    EXPECT_EQ(ReadAll(LinesDirectoryFile(h.home)), std::string(stored) + "\r\n") << "the file holds this one line";
    EXPECT_EQ(Options(h.state).controls().Text1[5], stored);
  }
}

}  // namespace
}  // namespace kvl::test
