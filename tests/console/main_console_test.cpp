// The console's menu as a function of the header, and its own commands: load, save, exit, rename.
// Saving a named league and the exit question's yes and no are the e2e tests'.
#include "console/main_console.h"

#include "console/menu.h"
#include "support/found_file_set.h"
#include "support/kvl_test.h"

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
}

TEST(SaveCommand, AnUnnamedLeagueGoesThroughSaveAsFromSaveAndFromExit) {
  struct Case {
    bool exit;  // else Save
    bool cancel;
  } cases[] = {{false, true}, {false, false}, {true, false}};
  for (const auto& c : cases) {
    TwoLeagues t;
    t.h.state.LeaguePath.clear();
    std::string target = (test::LeagueDir(t.h) / "named").string();
    if (c.exit) t.h.ui.push("yes");
    t.h.ui.push(c.cancel ? "<cancel>" : target + ".lge");
    if (c.exit)
      MainConsole(t.h.state).Exit();
    else
      MainConsole(t.h.state).SaveLeague();
    EXPECT_EQ(t.h.ui.callsOf("chooseFile").size(), 1u);
    EXPECT_EQ(t.h.ui.told(target + " saved", "Save League"), !c.cancel && !c.exit) << "Exit saves silently";
    EXPECT_EQ(fs::exists(target + ".lge") && StoredName(target) == "Renamed", !c.cancel);
    EXPECT_EQ(t.h.state.Dirty, c.cancel);
  }
}

// Cut to 25 characters, a name given on the command line included, is the e2e tests'.
TEST(RenameLeague, AsksAndKeepsTheOldNameOnNothingOrCancel) {
  for (const char* answer : {"A Name Much Longer Than Twenty-Five", "", "<cancel>"}) {
    Harness h;
    h.load(StandardLeague(8));
    h.ui.push(answer);
    MainConsole(h.state).RenameLeague();
    const bool renamed = *answer == 'A';
    EXPECT_EQ(h.state.league.LeagueName.str(), renamed ? "A Name Much Longer Than T" : "Test League") << answer;
    EXPECT_EQ(h.state.Dirty, renamed) << answer;
  }
}

TEST(Menu, EnableAndCaptionFollowTheHeader) {
  struct Case {
    const char* name;
    int gamesPlayed;
    bool seasonOver, inPlayoffs, offSeason, entryDraft, expansionDraft;
    // Expected.
    bool playoffs, beginEntry, align, review, newSeason, continueEntry;
  } cases[] = {
      {"PreSeason", 0, false, false, false, false, false, false, true, true, true, false, false},
      {"RegularSeason", 40, false, false, false, false, false, true, true, true, true, false, false},
      {"SeasonOver", 80, true, false, false, false, false, true, false, false, true, false, false},
      {"EntryDraftInPlayoffs", 5, true, true, false, true, false, false, false, false, false, false, true},
      {"OffSeasonDrafts", 0, false, false, true, true, true, false, true, true, true, true, true},
  };
  for (const auto& c : cases) {
    League lg;
    lg.ScheduleMade = ToBool16(c.gamesPlayed > 0);
    lg.GamesPlayed = static_cast<i16>(c.gamesPlayed);
    lg.SeasonOver = ToBool16(c.seasonOver);
    lg.InPlayoffs = ToBool16(c.inPlayoffs);
    lg.OffSeason = ToBool16(c.offSeason);
    lg.EntryDraftOn = ToBool16(c.entryDraft);
    lg.ExpansionDraftOn = ToBool16(c.expansionDraft);
    auto menu = ComputeMenu(lg, {true, false});
    auto at = [&](const char* cmd) { return *FindEntry(menu, cmd); };
    EXPECT_EQ((std::array{at("Playoffs").enabled, at("EntryDraft").enabled, at("align").enabled,
                          at("RevSched").enabled, at("NewSeason").enabled, at("ReRatePlayers").visible,
                          at("ConEntryDraft").enabled}),
              (std::array{c.playoffs, c.beginEntry, c.align, c.review, c.newSeason, c.newSeason, c.continueEntry}))
        << c.name;
    EXPECT_EQ(at("EntryDraft").caption, c.entryDraft ? "Re-Start Entry Draft" : "Begin Entry Draft") << c.name;
    EXPECT_EQ(at("ExpansionDraft").caption, c.expansionDraft ? "Continue Expansion Draft" : "Begin E&xpansion Draft");
    // Whatever the state, the rest of the league commands stay on.
    for (const char* cmd : {"SaveAs", "PlayGames", "cmdSchedule", "Trade", "SetLines", "OutputHTML", "ExpansionDraft"})
      EXPECT_TRUE(at(cmd).enabled) << cmd;
    EXPECT_FALSE(at("SaveLeague").enabled) << "nothing to save";
  }
}

TEST(Menu, WithoutALeagueOnlyFileToolsAndInfoWorkAndEntriesAreFoundByEitherName) {
  League lg;
  lg.OffSeason = lg.EntryDraftOn = kTrue;  // ignored without a league
  for (const auto& e : ComputeMenu(lg, {false, true})) {
    bool on = e.command == "LoadLeague" || e.command == "CreateLeague" || e.command == "database" ||
              e.command == "exit" || e.menu == "&Tools" || e.menu == "I&nfo";
    EXPECT_EQ(e.enabled, on) << e.command;
  }
  auto menu = ComputeMenu(League{}, {true, true});
  EXPECT_TRUE(FindEntry(menu, "SaveLeague")->enabled);
  EXPECT_EQ(FindEntry(menu, "cmdSchedule"), FindEntry(menu, "make-schedule"));
  EXPECT_EQ(FindEntry(menu, "make-schedule")->caption, "&Make Schedule");
  EXPECT_EQ(FindEntry(menu, "nonsense"), nullptr);
  EXPECT_EQ(PlainCaption("Begin E&xpansion Draft"), "Begin Expansion Draft");
}

}  // namespace
}  // namespace kvl::test
