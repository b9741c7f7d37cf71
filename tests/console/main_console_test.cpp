// The console's own commands: load with the save question, save, exit, rename.
#include <gtest/gtest.h>

#include "console/main_console.h"
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

// One question with that text and title was asked, or none when `asked` is false.
void ExpectAsked(const ScriptedUi& ui, bool asked, const std::string& text, const std::string& title) {
  auto asks = ui.callsOf("ask");
  ASSERT_EQ(asks.size(), asked ? 1u : 0u);
  if (!asked) return;
  EXPECT_EQ(asks[0].text, text);
  EXPECT_EQ(asks[0].title, title);
}

struct LoadCase {
  const char* name;
  std::vector<std::string> answers;  // "<second>" stands for the second league's file
  bool asked, dialog, firstSaved;
  const char* loaded;                // "first" or "second"
};

void PrintTo(const LoadCase& c, std::ostream* os) { *os << c.name; }

class LoadCommand : public ::testing::TestWithParam<LoadCase> {};

TEST_P(LoadCommand, AsksToSaveThenLoads) {
  const auto& c = GetParam();
  TwoLeagues t;
  for (const auto& a : c.answers) t.h.ui.push(a == "<second>" ? t.second + ".lge" : a);
  MainConsole(t.h.state).LoadLeague();
  ExpectAsked(t.h.ui, c.asked, "Save Current League?", "Save League");
  auto dialogs = t.h.ui.callsOf("chooseFile");
  ASSERT_EQ(dialogs.size(), c.dialog ? 1u : 0u);
  if (c.dialog) {
    EXPECT_EQ(dialogs[0].title, "Load League");
    EXPECT_EQ(dialogs[0].text, "All Files|*.*|KVL League Files|*.lge");
  }
  EXPECT_EQ(StoredName(t.first), c.firstSaved ? "Renamed" : "Test League");
  EXPECT_EQ(t.h.state.LeaguePath, std::string(c.loaded) == "first" ? t.first : t.second);
  EXPECT_TRUE(t.h.ui.callsOf("tell").empty()) << "the save inside Load tells nothing";
}

INSTANTIATE_TEST_SUITE_P(
    Answers, LoadCommand,
    ::testing::Values(LoadCase{"YesThenCancelKeepsTheSavedLeague", {"yes", "<cancel>"}, true, true, true, "first"},
                      LoadCase{"YesThenLoad", {"yes", "<second>"}, true, true, true, "second"},
                      LoadCase{"NoThenLoad", {"no", "<second>"}, true, true, false, "second"},
                      LoadCase{"CancelEndsTheCommand", {"cancel"}, true, false, false, "first"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LoadCommand, CancellingKeepsUnsavedWorkDirty) {
  TwoLeagues t;
  t.h.ui.push("cancel");
  MainConsole(t.h.state).LoadLeague();
  EXPECT_TRUE(t.h.state.Dirty);
  EXPECT_EQ(t.h.state.league.LeagueName.str(), "Renamed");
}

TEST(LoadCommand, NothingToSaveAsksNothing) {
  TwoLeagues t;
  t.h.state.Dirty = false;
  MainConsole(t.h.state).LoadLeague(fs::path(t.second + ".lge"));
  EXPECT_TRUE(t.h.ui.callsOf("ask").empty());
  EXPECT_EQ(t.h.state.LeaguePath, t.second);
  EXPECT_EQ(t.h.state.LeagueShort, "second");
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

struct ExitCase {
  const char* name;
  bool dirty, unnamed;
  std::vector<std::string> answers;
  bool asked, saved;
};

void PrintTo(const ExitCase& c, std::ostream* os) { *os << c.name; }

class ExitCommand : public ::testing::TestWithParam<ExitCase> {};

TEST_P(ExitCommand, OffersToKeepChanges) {
  const auto& c = GetParam();
  TwoLeagues t;
  t.h.state.Dirty = c.dirty;
  std::string target = (test::LeagueDir(t.h) / "named").string();
  if (c.unnamed) t.h.state.LeaguePath.clear();
  for (const auto& a : c.answers) t.h.ui.push(a == "<named>" ? target + ".lge" : a);
  MainConsole(t.h.state).Exit();
  ExpectAsked(t.h.ui, c.asked, "Save League Changes?", "Keep Changes");
  std::string where = c.unnamed ? target : t.first;
  EXPECT_EQ(fs::exists(where + ".lge") && StoredName(where) == "Renamed", c.saved);
  EXPECT_EQ(t.h.ui.callsOf("chooseFile").size(), c.unnamed && c.saved ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, ExitCommand,
    ::testing::Values(ExitCase{"Clean", false, false, {}, false, false},
                      ExitCase{"Yes", true, false, {"yes"}, true, true},
                      ExitCase{"No", true, false, {"no"}, true, false},
                      ExitCase{"UnnamedYes", true, true, {"yes", "<named>"}, true, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(RenameLeague, PromptsAndCutsToTwentyFive) {
  struct Case {
    std::string answer;
    std::string name;
    bool dirty;
  };
  for (const Case& c : {Case{"Northern League", "Northern League", true},
                        Case{"A Name Much Longer Than Twenty-Five", "A Name Much Longer Than T", true},
                        Case{"", "Test League", false}, Case{"<cancel>", "Test League", false}}) {
    Harness h;
    h.load(StandardLeague(8));
    h.ui.push(c.answer);
    MainConsole(h.state).RenameLeague();
    auto prompts = h.ui.callsOf("prompt");
    ASSERT_EQ(prompts.size(), 1u);
    EXPECT_EQ(prompts[0].text, "New League Name");
    EXPECT_EQ(prompts[0].title, "Change League Name");
    EXPECT_EQ(h.state.league.LeagueName.str(), c.name) << c.answer;
    EXPECT_EQ(h.state.Dirty, c.dirty) << c.answer;
  }
}

TEST(RenameLeague, AGivenNameAsksNothing) {
  Harness h;
  h.load(StandardLeague(8));
  MainConsole(h.state).RenameLeague(std::string(30, 'x'));
  EXPECT_TRUE(h.ui.calls().empty());
  EXPECT_EQ(h.state.league.LeagueName.raw(), std::string(25, 'x'));
  EXPECT_TRUE(h.state.Dirty);
}

}  // namespace
}  // namespace kvl
