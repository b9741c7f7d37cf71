// Start-up: the home folder, default.lge, the one-copy lock and the search for
// a league to open.
#include "console/startup.h"

#include <gtest/gtest.h>

#include <fstream>

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
  auto fill = [&](std::size_t at, std::size_t n, std::uint8_t v) {
    std::fill_n(b.begin() + static_cast<long>(at), n, v);
  };
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

TEST(StartUp, PreparesTheHomeFolderAndKeepsADefaultHeaderItHas) {
  test::TempDir dir;
  fs::path home = dir.path() / "fresh";
  PrepareHomeFolder(home);
  for (const char* d : {"Headers", "Transfer", "Boxscores", "Command"}) EXPECT_TRUE(fs::is_directory(home / d)) << d;
  EXPECT_EQ(ReadFileBytes(home / "default.lge"), ExpectedDefaultHeader());
  for (const char* f : {"default.coa", "default.drs", "inj.dtf"}) EXPECT_TRUE(fs::exists(home / f)) << f;
  Bytes mine(459, 7);
  WriteFileAtomic(home / "default.lge", mine);
  PrepareHomeFolder(home);
  EXPECT_EQ(ReadFileBytes(home / "default.lge"), mine);
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

void WriteDef(const fs::path& home, const std::string& line) {
  std::ofstream(home / "kvl.def", std::ios::binary) << line << "\r\n";
}

TEST(StartUp, FindsTheLastLeagueOrSearchesTheHomeFolder) {
  struct Case {
    const char* name;
    Def def;
    std::vector<std::string> inHome;  // leagues written into the home folder
    std::vector<std::string> titles;  // what is told, in order
    std::string opens;                // "live", a home league, or "" for none
  } cases[] = {
      {"last league", Def::Live, {"other"}, {}, "live"},
      {"no kvl.def: the first home league", Def::Missing, {"zulu", "alpha"}, {"Load Default League"}, "alpha"},
      {"empty kvl.def", Def::Empty, {"alpha"}, {"Load Default League"}, "alpha"},
      {"last league deleted", Def::Deleted, {"beta"}, {"Load Last League"}, "beta"},
      {"nothing anywhere", Def::Deleted, {}, {"Load Last League", "Load Local League Files"}, ""},
      {"no kvl.def, no league", Def::Missing, {}, {"Load Default League", "Load Local League Files"}, ""},
  };
  for (const auto& c : cases) {
    Harness h;
    std::string live = test::WriteLeagueIn(h, StandardLeague(8), false, "live");
    std::string gone = (test::LeagueDir(h) / "gone").string();
    for (const auto& n : c.inHome) test::WriteLeague(StandardLeague(8), (h.home / n).string());
    if (c.def != Def::Missing) WriteDef(h.home, c.def == Def::Empty ? "" : c.def == Def::Live ? live : gone);
    std::string found = FindStartLeague(h.state);
    std::vector<std::string> titles;
    for (const auto& t : h.ui.callsOf("tell")) titles.push_back(t.title);
    EXPECT_EQ(titles, c.titles) << c.name;
    EXPECT_TRUE(c.def != Def::Deleted || h.ui.callsOf("tell")[0].text.find(gone) != std::string::npos) << c.name;
    EXPECT_EQ(found, c.opens == "live" ? live : c.opens.empty() ? "" : (h.home / c.opens).string()) << c.name;
  }
}

TEST(StartUp, FindsALeagueWhoseExtensionIsUpperCase) {
  Harness h;
  test::WriteLeague(StandardLeague(8), (h.home / "Big").string());
  fs::rename(h.home / "Big.lge", h.home / "Big.LGE");
  EXPECT_EQ(FindStartLeague(h.state), (h.home / "Big").string());
}

TEST(StartUp, OpensTheLastLeagueTheOneGivenOrNone) {
  for (bool given : {false, true}) {
    Harness h;
    std::string live = test::WriteLeagueIn(h, StandardLeague(8), false, "Metro");
    if (given)
      StartUp(h.state, live + ".LGE");
    else
      WriteDef(h.home, live), StartUp(h.state, std::nullopt);
    EXPECT_EQ(h.state.LeaguePath, live);
    EXPECT_EQ(h.state.LeagueShort, "Metro");
    EXPECT_TRUE(h.ui.calls().empty());
  }
  Harness h;
  WriteDef(h.home, (h.dir.path() / "deleted").string());
  StartUp(h.state, std::nullopt);
  EXPECT_FALSE(h.state.hasLeague()) << "nothing found: no league is open";
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
  ASSERT_EQ(h.ui.callsOf("tell").size(), 1u);
  EXPECT_FALSE(fs::exists(h.home / "kvl.def"));
}

}  // namespace
}  // namespace kvl
