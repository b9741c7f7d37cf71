// The console's own commands: load with the save question, save, exit, rename.
#include "console/main_console.h"

#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;
using test::StandardLeague;

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

}  // namespace
}  // namespace kvl
