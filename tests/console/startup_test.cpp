// Start-up: the home folder, default.lge, the one-copy lock and the search for
// a league to open.
#include <gtest/gtest.h>

#include <fstream>

#include "console/menu.h"
#include "console/startup.h"
#include "league/league_files.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;
using test::StandardLeague;

// default.lge as the table of defaults gives it, byte by byte.
Bytes ExpectedDefaultHeader() {
  Bytes b(459, 0);
  auto fill = [&](std::size_t at, std::size_t n, std::uint8_t v) { std::fill_n(b.begin() + static_cast<long>(at), n, v); };
  fill(296, 20, ' ');  // CommandDir
  fill(336, 15, ' ');  // LgTextA
  fill(351, 20, ' ');  // BoxscoreDir
  fill(371, 20, ' ');  // OutputDir
  for (std::size_t flag : {403, 228, 234, 409, 407, 231, 270, 427}) fill(flag, 2, 0xFF);
  fill(432, 5, 5);     // the five sliders
  b[391] = 1;          // CurrentYear
  b[395] = 23;         // AgeExempt
  b[236] = 30;         // UnresAge
  b[394] = 25;         // MinGP
  b[225] = 80;         // TradeDeadline
  b[396] = 50;         // TwoWayAfter
  b[393] = 9;          // DraftRounds
  fill(238, 16, 255);  // CheckFlags 0..15
  return b;
}

TEST(StartUp, PreparesTheHomeFolder) {
  test::TempDir dir;
  fs::path home = dir.path() / "fresh";
  PrepareHomeFolder(home);
  for (const char* d : {"Headers", "Transfer", "Boxscores", "Command"}) EXPECT_TRUE(fs::is_directory(home / d)) << d;
  EXPECT_EQ(ReadFileBytes(home / "default.lge"), ExpectedDefaultHeader());
  for (const char* f : {"default.coa", "default.drs", "inj.dtf"}) EXPECT_TRUE(fs::exists(home / f)) << f;
}

TEST(StartUp, KeepsAnExistingDefaultHeader) {
  test::TempDir dir;
  fs::create_directories(dir.path());
  Bytes mine(459, 7);
  WriteFileAtomic(dir.path() / "default.lge", mine);
  PrepareHomeFolder(dir.path());
  EXPECT_EQ(ReadFileBytes(dir.path() / "default.lge"), mine);
}

TEST(HomeLock, RefusesASecondHolderUntilTheFirstEnds) {
  test::TempDir dir;
  auto first = std::make_unique<HomeLock>();
  ASSERT_TRUE(first->acquire(dir.path()));
  HomeLock second;
  EXPECT_FALSE(second.acquire(dir.path()));
  first.reset();
  HomeLock third;
  EXPECT_TRUE(third.acquire(dir.path()));
}

// ---- which league start-up opens --------------------------------------------

enum class Def { Missing, Empty, Live, Deleted };

struct SearchCase {
  const char* name;
  Def def;
  std::vector<std::string> inHome;  // leagues written into the home folder
  std::vector<std::string> titles;  // what is told, in order
  std::string opens;                // "live", a home league, or "" for none
};

void PrintTo(const SearchCase& c, std::ostream* os) { *os << c.name; }

class FindStart : public ::testing::TestWithParam<SearchCase> {};

void WriteDef(const fs::path& home, const std::string& line) {
  std::ofstream(home / "kvl.def", std::ios::binary) << line << "\r\n";
}

TEST_P(FindStart, TellsAndPicks) {
  const auto& c = GetParam();
  Harness h;
  std::string live = test::WriteLeagueIn(h, StandardLeague(8), false, "live");
  std::string gone = (test::LeagueDir(h) / "gone").string();
  for (const auto& n : c.inHome) test::WriteLeague(StandardLeague(8), (h.home / n).string());
  if (c.def == Def::Empty) WriteDef(h.home, "");
  if (c.def == Def::Live) WriteDef(h.home, live);
  if (c.def == Def::Deleted) WriteDef(h.home, gone);

  std::string found = FindStartLeague(h.state);

  auto tells = h.ui.callsOf("tell");
  ASSERT_EQ(tells.size(), c.titles.size());
  for (std::size_t i = 0; i < tells.size(); ++i) {
    EXPECT_EQ(tells[i].title, c.titles[i]);
    std::string text;
    if (c.titles[i] == "Load Last League")
      text = "The last league files you loaded, " + gone + "\nare not accessible.\n\nKVL will search for other league files.";
    else if (c.titles[i] == "Load Default League")
      text = "KVL was unable to find default league files.\nKVL will search for league files.";
    else
      text = "Searching " + h.home.string() +
             " did not reveal any league files.\nYou must load new league files using the File|Load menu.";
    EXPECT_EQ(tells[i].text, text);
  }
  std::string expected = c.opens == "live" ? live : c.opens.empty() ? "" : (h.home / c.opens).string();
  EXPECT_EQ(found, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, FindStart,
    ::testing::Values(SearchCase{"LastLeague", Def::Live, {"other"}, {}, "live"},
                      SearchCase{"NoDefFindsAHomeLeague", Def::Missing, {"zulu", "alpha"}, {"Load Default League"}, "alpha"},
                      SearchCase{"EmptyDef", Def::Empty, {"alpha"}, {"Load Default League"}, "alpha"},
                      SearchCase{"DeletedLeague", Def::Deleted, {"beta"}, {"Load Last League"}, "beta"},
                      SearchCase{"NothingAnywhere", Def::Deleted, {}, {"Load Last League", "Load Local League Files"}, ""},
                      SearchCase{"NoDefNoLeague", Def::Missing, {}, {"Load Default League", "Load Local League Files"}, ""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(StartUp, FindsALeagueWhoseExtensionIsUpperCase) {
  Harness h;
  test::WriteLeague(StandardLeague(8), (h.home / "Big").string());
  fs::rename(h.home / "Big.lge", h.home / "Big.LGE");
  EXPECT_EQ(FindStartLeague(h.state), (h.home / "Big").string());
}

TEST(StartUp, WithNoLeagueEveryLeagueCommandIsDisabled) {
  Harness h;
  WriteDef(h.home, (h.dir.path() / "deleted").string());
  StartUp(h.state, std::nullopt);
  EXPECT_FALSE(h.state.hasLeague());
  for (const auto& e : ComputeMenu(h.state.league, {h.state.hasLeague(), h.state.Dirty})) {
    bool fileOnly = e.menu == "&File" || e.menu == "&Tools" || e.menu == "I&nfo";
    bool leagueFileCommand = e.command == "SaveAs" || e.command == "SaveLeague" || e.command == "UpdateStats" ||
                             e.command == "ImportLeague";
    EXPECT_EQ(e.enabled, fileOnly && !leagueFileCommand) << e.command;
  }
}

TEST(StartUp, OpensTheLastLeague) {
  Harness h;
  std::string live = test::WriteLeagueIn(h, StandardLeague(8), false, "Metro");
  WriteDef(h.home, live);
  StartUp(h.state, std::nullopt);
  EXPECT_TRUE(h.state.hasLeague());
  EXPECT_EQ(h.state.LeaguePath, live);
  EXPECT_EQ(h.state.LeagueShort, "Metro");
}

TEST(StartUp, TheLeagueGivenMayCarryItsExtension) {
  Harness h;
  std::string live = test::WriteLeagueIn(h, StandardLeague(8), false, "Metro");
  StartUp(h.state, live + ".LGE");
  EXPECT_EQ(h.state.LeaguePath, live);
  EXPECT_TRUE(h.ui.calls().empty());
}

TEST(StartUp, ADamagedLeagueIsAnUnexpectedError) {
  Harness h;
  std::string live = test::WriteLeagueIn(h, StandardLeague(8), false);
  fs::resize_file(live + ".lge", 100);
  WriteDef(h.home, live);
  EXPECT_THROW(StartUp(h.state, std::nullopt), KvlError);
  EXPECT_TRUE(h.ui.told("An unexpected error occurred in the initialization of KVL.", "Load League"));
  EXPECT_FALSE(h.state.hasLeague());
}

TEST(StartUp, AMissingFileIsToldOnceAndEndsTheProgram) {
  Harness h;
  std::string live = test::WriteLeagueIn(h, StandardLeague(8), false);
  fs::remove(live + ".coa");
  WriteDef(h.home, live);
  EXPECT_THROW(StartUp(h.state, std::nullopt), FatalStop);
  auto tells = h.ui.callsOf("tell");
  ASSERT_EQ(tells.size(), 1u);
  EXPECT_EQ(tells[0].title, "File not found");
  EXPECT_FALSE(fs::exists(h.home / "kvl.def"));
}

}  // namespace
}  // namespace kvl
