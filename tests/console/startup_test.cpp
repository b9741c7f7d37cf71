// Start-up: the home folder and the search for a league to open. Opening the league given or the last
// one, the one-copy lock, a missing league file and a damaged league at start-up are the e2e tests'
// (golden/info_states.txt, no_league.txt, bad_input.txt).
#include "console/startup.h"

#include <fstream>

#include "support/found_file_set.h"
#include "support/kvl_test.h"

namespace kvl {
namespace {

using test::Harness;
using test::StandardLeague;

TEST(StartUp, SeedsTheHomeFolderFromTheBundledFilesAndKeepsFilesItHas) {
  test::TempDir dir;
  fs::path home = dir.path() / "fresh";
  fs::create_directories(home);
  WriteFileAtomic(home / "default.drs", Bytes(88, 1));
  PrepareHomeFolder(home);
  for (const char* d : {"Headers", "Transfer", "Boxscores", "Command"}) EXPECT_TRUE(fs::is_directory(home / d)) << d;
  EXPECT_EQ(ReadFileBytes(home / "default.drs"), Bytes(88, 1));
  for (const char* name : {"default.lge", "default.coa", "inj.dtf"})
    EXPECT_EQ(ReadFileBytes(home / name), ReadFileBytes(fs::path(KVL_DATA_DIR) / name)) << name;
}

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
    bool freshHome = false;           // the default files were just written
  } cases[] = {
      {"last league", Def::Live, {"other"}, {}, "live"},
      // Alpha's extension is upper case.
      {"no kvl.def: the first home league", Def::Missing, {"zulu", "Alpha"}, {"Load Default League"}, "Alpha"},
      {"empty kvl.def", Def::Empty, {"alpha"}, {"Load Default League"}, "alpha"},
      {"last league deleted", Def::Deleted, {"beta"}, {"Load Last League"}, "beta"},
      {"nothing anywhere", Def::Deleted, {}, {"Load Last League", "Load Local League Files"}, ""},
      {"no league made yet: quiet", Def::Missing, {}, {}, ""},
      {"a new home folder: one line", Def::Missing, {}, {"KVL"}, "", true},
  };
  for (const auto& c : cases) {
    Harness h;
    std::string live = test::WriteLeagueIn(h, StandardLeague(8), false, "live");
    std::string gone = (test::LeagueDir(h) / "gone").string();
    for (const auto& n : c.inHome) {
      test::WriteLeague(StandardLeague(8), (h.home / n).string());
      if (n == "Alpha") fs::rename(h.home / "Alpha.lge", h.home / "Alpha.LGE");
    }
    if (c.def != Def::Missing) WriteDef(h.home, c.def == Def::Empty ? "" : c.def == Def::Live ? live : gone);
    std::string found = FindStartLeague(h.state, c.freshHome);
    std::vector<std::string> titles;
    for (const auto& t : h.ui.callsOf("tell")) titles.push_back(t.title);
    EXPECT_EQ(titles, c.titles) << c.name;
    EXPECT_TRUE(c.def != Def::Deleted || h.ui.callsOf("tell")[0].text.find(gone) != std::string::npos) << c.name;
    EXPECT_EQ(found, c.opens == "live" ? live : c.opens.empty() ? "" : (h.home / c.opens).string()) << c.name;
  }
}

}  // namespace
}  // namespace kvl
