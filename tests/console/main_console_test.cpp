// The console's menu as a function of the header, and its own commands: load, save, exit, rename.
#include "console/main_console.h"

#include <gtest/gtest.h>

#include "console/menu.h"
#include "league/league_files.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

std::string StoredName(const std::string& path) {
  Bytes lge = ReadFileBytes(path + ".lge");
  return Condense(std::string(lge.begin(), lge.begin() + 25));
}

// A loaded league "first" renamed in memory (Dirty), and a second league beside it.
struct TwoLeagues {
  Harness h;
  std::string first, second;
  TwoLeagues() {
    first = test::WriteLeagueIn(h, StandardLeague(8, 1), false, "first");
    second = test::WriteLeagueIn(h, StandardLeague(10, 2), false, "second");
    LoadLg(h.state, first);
    h.state.league.LeagueName.set("Renamed");
    h.state.Dirty = true;
    h.ui = ScriptedUi{};
  }
};

TEST(LoadCommand, AsksToSaveThenLoads) {
  struct Case {
    const char* name;
    std::vector<std::string> answers;  // "<second>" stands for the second league's file
    bool dialog, firstSaved, second;   // second: the second league is loaded
  } cases[] = {
      {"yes then cancel keeps the saved league", {"yes", "<cancel>"}, true, true, false},
      {"yes then load", {"yes", "<second>"}, true, true, true},
      {"no then load", {"no", "<second>"}, true, false, true},
      {"cancel ends the command", {"cancel"}, false, false, false},
  };
  for (const auto& c : cases) {
    TwoLeagues t;
    for (const auto& a : c.answers) t.h.ui.push(a == "<second>" ? t.second + ".lge" : a);
    MainConsole(t.h.state).LoadLeague();
    EXPECT_EQ(t.h.ui.callsOf("ask").size(), 1u) << c.name;
    EXPECT_EQ(t.h.ui.callsOf("chooseFile").size(), c.dialog ? 1u : 0u) << c.name;
    EXPECT_EQ(StoredName(t.first), c.firstSaved ? "Renamed" : "Test League") << c.name;
    EXPECT_EQ(t.h.state.LeaguePath, c.second ? t.second : t.first) << c.name;
    EXPECT_TRUE(t.h.ui.callsOf("tell").empty()) << "the save inside Load tells nothing";
    EXPECT_TRUE(c.dialog || (t.h.state.Dirty && t.h.state.league.LeagueName.str() == "Renamed")) << "work kept";
  }
  TwoLeagues t;
  t.h.state.Dirty = false;
  MainConsole(t.h.state).LoadLeague(fs::path(t.second + ".lge"));
  EXPECT_TRUE(t.h.ui.callsOf("ask").empty()) << "nothing to save";
  EXPECT_EQ(t.h.state.LeaguePath, t.second);
  EXPECT_EQ(t.h.state.numTeams(), 10);
}

TEST(SaveCommand, SavesAndTellsThePath) {
  TwoLeagues t;
  MainConsole(t.h.state).SaveLeague();
  EXPECT_TRUE(t.h.ui.told(t.first + " saved", "Save League"));
  EXPECT_EQ(StoredName(t.first), "Renamed");
  EXPECT_FALSE(t.h.state.Dirty);
}

TEST(SaveCommand, AnUnnamedLeagueGoesThroughSaveAs) {
  for (bool cancel : {true, false}) {
    TwoLeagues t;
    t.h.state.LeaguePath.clear();
    std::string target = (test::LeagueDir(t.h) / "named").string();
    t.h.ui.push(cancel ? "<cancel>" : target + ".lge");
    MainConsole(t.h.state).SaveLeague();
    EXPECT_EQ(t.h.ui.callsOf("chooseFile").size(), 1u);
    EXPECT_EQ(t.h.ui.told(target + " saved", "Save League"), !cancel);
    EXPECT_EQ(fs::exists(target + ".lge"), !cancel);
    EXPECT_EQ(t.h.state.Dirty, cancel);
  }
}

TEST(ExitCommand, OffersToKeepChanges) {
  struct Case {
    const char* name;
    bool dirty, unnamed;
    std::vector<std::string> answers;
    bool saved;
  } cases[] = {{"clean", false, false, {}, false},
               {"yes", true, false, {"yes"}, true},
               {"no", true, false, {"no"}, false},
               {"unnamed, yes", true, true, {"yes", "<named>"}, true}};
  for (const auto& c : cases) {
    TwoLeagues t;
    t.h.state.Dirty = c.dirty;
    std::string target = (test::LeagueDir(t.h) / "named").string();
    if (c.unnamed) t.h.state.LeaguePath.clear();
    for (const auto& a : c.answers) t.h.ui.push(a == "<named>" ? target + ".lge" : a);
    MainConsole(t.h.state).Exit();
    EXPECT_EQ(t.h.ui.callsOf("ask").size(), c.dirty ? 1u : 0u) << c.name;
    std::string where = c.unnamed ? target : t.first;
    EXPECT_EQ(fs::exists(where + ".lge") && StoredName(where) == "Renamed", c.saved) << c.name;
    EXPECT_EQ(t.h.ui.callsOf("chooseFile").size(), c.unnamed && c.saved ? 1u : 0u) << c.name;
  }
}

TEST(RenameLeague, IsCutToTwentyFive) {
  struct Case {
    std::string answer;
    std::string name;
    bool dirty;
  };
  for (const Case& c :
       {Case{"Northern League", "Northern League", true},
        Case{"A Name Much Longer Than Twenty-Five", "A Name Much Longer Than T", true}, Case{"", "Test League", false},
        Case{"<cancel>", "Test League", false}, Case{std::string(30, 'x'), std::string(25, 'x'), true}}) {
    Harness h;
    h.load(StandardLeague(8));
    const bool given = c.answer.size() == 30;  // named on the command line: nothing is asked
    if (given)
      MainConsole(h.state).RenameLeague(c.answer);
    else
      h.ui.push(c.answer), MainConsole(h.state).RenameLeague();
    EXPECT_EQ(h.ui.callsOf("prompt").size(), given ? 0u : 1u);
    EXPECT_EQ(h.state.league.LeagueName.str(), c.name) << c.answer;
    EXPECT_EQ(h.state.Dirty, c.dirty) << c.answer;
  }
}

struct MenuCase {
  const char* name;
  // Header fields.
  bool scheduleMade;
  int gamesPlayed;
  bool seasonOver, inPlayoffs, offSeason, entryDraft, expansionDraft;
  // Expected.
  bool playoffs, beginEntry, align, review, newSeason, rerateShown, continueEntry;
  const char* entryCaption;
  const char* expansionCaption;
};

void PrintTo(const MenuCase& c, std::ostream* os) { *os << c.name; }

class MenuStates : public ::testing::TestWithParam<MenuCase> {};

TEST_P(MenuStates, EnableAndCaption) {
  const auto& c = GetParam();
  League lg;
  lg.ScheduleMade = ToBool16(c.scheduleMade);
  lg.GamesPlayed = static_cast<i16>(c.gamesPlayed);
  lg.SeasonOver = ToBool16(c.seasonOver);
  lg.InPlayoffs = ToBool16(c.inPlayoffs);
  lg.OffSeason = ToBool16(c.offSeason);
  lg.EntryDraftOn = ToBool16(c.entryDraft);
  lg.ExpansionDraftOn = ToBool16(c.expansionDraft);
  auto menu = ComputeMenu(lg, {true, false});
  auto at = [&](const char* cmd) {
    const MenuEntry* e = FindEntry(menu, cmd);
    EXPECT_NE(e, nullptr) << cmd;
    return e ? *e : MenuEntry{};
  };
  EXPECT_EQ(at("Playoffs").enabled, c.playoffs);
  EXPECT_EQ(at("EntryDraft").enabled, c.beginEntry);
  EXPECT_EQ(at("align").enabled, c.align);
  EXPECT_EQ(at("RevSched").enabled, c.review);
  EXPECT_EQ(at("NewSeason").enabled, c.newSeason);
  EXPECT_EQ(at("ReRatePlayers").visible, c.rerateShown);
  EXPECT_EQ(at("ConEntryDraft").enabled, c.continueEntry);
  EXPECT_EQ(at("EntryDraft").caption, c.entryCaption);
  EXPECT_EQ(at("ExpansionDraft").caption, c.expansionCaption);
  // Whatever the state, the rest of the league commands stay on.
  for (const char* cmd : {"SaveAs", "PlayGames", "cmdSchedule", "Trade", "SetLines", "OutputHTML", "ExpansionDraft"})
    EXPECT_TRUE(at(cmd).enabled) << cmd;
  EXPECT_FALSE(at("SaveLeague").enabled) << "nothing to save";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    States, MenuStates,
    ::testing::Values(
        //       name                  sched  gp  over   playo  offs   entry  expan | playo  begin  align  review newS   rerate cont
        MenuCase{"PreSeason",          false, 0,  false, false, false, false, false, false, true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"ScheduleMade",       true,  0,  false, false, false, false, false, false, true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"RegularSeason",      true,  40, false, false, false, false, false, true,  true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"SeasonOver",         true,  80, true,  false, false, false, false, true,  false, false, true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"Playoffs",           true,  15, true,  true,  false, false, false, false, false, false, false, false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"OffSeason",          false, 0,  false, false, true,  false, false, false, true,  true,  true,  true,  true,  false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"OffSeasonEntryDraft", false, 0, false, false, true,  true,  false, false, true,  true,  true,  true,  true,  true,
                 "Re-Start Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"PreSeasonExpansion", false, 0,  false, false, false, false, true,  false, true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Continue Expansion Draft"},
        MenuCase{"EntryDraftInPlayoffs", true, 5, true,  true,  false, true,  false, false, false, false, false, false, false, true,
                 "Re-Start Entry Draft", "Begin E&xpansion Draft"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

TEST(Menu, WithoutALeagueOnlyFileToolsAndInfoWork) {
  League lg;
  lg.OffSeason = lg.EntryDraftOn = kTrue;  // ignored without a league
  for (const auto& e : ComputeMenu(lg, {false, true})) {
    bool on = e.command == "LoadLeague" || e.command == "CreateLeague" || e.command == "database" ||
              e.command == "exit" || e.menu == "&Tools" || e.menu == "I&nfo";
    EXPECT_EQ(e.enabled, on) << e.command;
  }
}

TEST(Menu, SaveFollowsDirty) {
  League lg;
  for (bool dirty : {false, true}) EXPECT_EQ(FindEntry(ComputeMenu(lg, {true, dirty}), "SaveLeague")->enabled, dirty);
}

TEST(Menu, EntriesAreFoundByCodeOrCommandLineName) {
  auto menu = ComputeMenu(League{}, {true, false});
  EXPECT_EQ(FindEntry(menu, "cmdSchedule"), FindEntry(menu, "make-schedule"));
  EXPECT_EQ(FindEntry(menu, "make-schedule")->caption, "&Make Schedule");
  EXPECT_EQ(FindEntry(menu, "nonsense"), nullptr);
  EXPECT_EQ(PlainCaption("Begin E&xpansion Draft"), "Begin Expansion Draft");
}

}  // namespace
}  // namespace kvl::test
