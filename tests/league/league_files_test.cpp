// The league file set: load, save, swap files, what a load refuses, saves stopped midway and the one-copy lock.
#include "support/failing_file_system.h"
#include "support/found_file_set.h"
#include "support/kvl_test.h"

namespace kvl::test {
namespace {

// Upper-case extensions are found, and saved in place.
TEST(LeagueFiles, LoadThenSaveLeavesEveryFileByteIdentical) {
  struct Row {
    const char* name;
    bool optionalFiles, playoffs, upperCase;
  } rows[] = {{"required and farm", false, false, false},
              {"every optional file", true, false, false},
              {"in playoffs", true, true, false},
              {"upper-case names", true, false, true}};
  for (const Row& r : rows) {
    Harness h;
    auto plan = StandardLeague(10, 3);
    Enrich(plan, 11);
    if (r.playoffs) {
      plan.header.ScheduleMade = plan.header.SeasonOver = plan.header.InPlayoffs = kTrue;
      plan.header.PlayoffTeams = 8;
    }
    // Without .wvr a load clears Waived, which a save would then write.
    if (!r.optionalFiles)
      for (auto& t : plan.teams) t.Waived = kFalse;
    std::string path = WriteLeagueIn(h, plan, r.optionalFiles);
    std::mt19937 gen(5);
    if (r.playoffs) WriteFileAtomic(path + ".plf", RandomBytes(PlayoffState::kSize, gen));
    for (const auto& e : r.upperCase ? SnapshotDir(LeagueDir(h)) : Snapshot{}) {
      std::string name = e.first;
      for (char& ch : name) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
      fs::rename(LeagueDir(h) / e.first, LeagueDir(h) / name);
    }
    if (r.upperCase) path = (LeagueDir(h) / "TEST").string();
    Snapshot before = SnapshotDir(LeagueDir(h));
    h.state.Dirty = true;
    LoadLg(h.state, path);
    EXPECT_FALSE(h.state.Dirty) << r.name;
    EXPECT_TRUE(h.ui.calls().empty()) << r.name << ": a sound league loads without a word";
    h.state.Dirty = true;
    SaveLg(h.state);
    EXPECT_EQ(Differences(before, SnapshotDir(LeagueDir(h))), std::vector<std::string>{}) << r.name;
    EXPECT_FALSE(h.state.Dirty) << r.name;
  }
}

// The saved waiver file drops the empty entries its swap keeps; without a swap
// it is left alone.
TEST(LeagueFiles, WorkStaysInTheSwapFilesUntilTheSaveWritesIt) {
  Harness h;
  std::string path = WriteLeagueIn(h, StandardLeague(8), true);
  Snapshot before = SnapshotDir(LeagueDir(h));
  LoadLg(h.state, path);
  fs::remove(h.state.swap(swp::Waivers));
  loadteam(h.state, 5, 1);
  h.state.player(1, 7).Hits = 99;
  SaveTeam(h.state, 5, 1);
  h.state.team(6).GF = 77;
  h.state.Farm[4].Name.set("Farm Four");
  h.state.league.GamesPlayed = 12;
  EXPECT_EQ(Differences(before, SnapshotDir(LeagueDir(h))), std::vector<std::string>{});
  loadteam(h.state, 5, 0);
  EXPECT_EQ(h.state.player(0, 7).Hits, 99) << "the work is in the swap copy";
  SaveLg(h.state);
  EXPECT_EQ(RecordFile(path + ".ros", Player::kSize).getRecord<Player>(5 * 50 + 7 + 1).Hits, 99);
  EXPECT_EQ(RecordFile(path + ".tms", Team::kSize).getRecord<Team>(7).GF, 77);
  EXPECT_EQ(RecordFile(path + ".frm", FarmTeam::kSize).getRecord<FarmTeam>(5).Name.str(), "Farm Four");
  Bytes lge = ReadFileBytes(path + ".lge");
  EXPECT_EQ(lge[272], 12);
  EXPECT_EQ(lge[25], 7) << "NumTeams is stored as the count less one";
  EXPECT_EQ(h.state.numTeams(), 8) << "and stays the count in memory";
  EXPECT_EQ(ReadFileBytes(path + ".wvr"), before[fs::path(path + ".wvr").filename().string()]);
  Bytes swap, expected;
  for (const char* n : {"", "Able", "", "", "Baker", ""}) {
    WaiverRecord w;
    if (*n) w.Name.set(n);
    w.Active = -1;
    Bytes r = EncodeRecord(w);
    swap.insert(swap.end(), r.begin(), r.end());
    if (*n) expected.insert(expected.end(), r.begin(), r.end());
  }
  WriteFileAtomic(h.state.swap(swp::Waivers), swap);
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".wvr"), expected);
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Waivers)), swap);
}

// A league without .wvr also loses the Waived marks its teams were saved with;
// one without .pct keeps the prospects of the league loaded before.
TEST(LeagueFiles, AMissingSwapDeletesItsFileAndMissingFilesDeleteStaleSwaps) {
  const std::pair<const char*, const char*> optional[] = {
      {".scx", swp::Schedule}, {".dft", swp::DraftList}, {".fas", swp::Futures},
      {".pri", swp::Priority}, {".eml", swp::Email},     {".tra", swp::Transactions},
      {".htr", swp::History},  {".csr", swp::Career},    {".rec", swp::Rec}};
  Harness h;
  std::string path = WriteLeagueIn(h, StandardLeague(8), true);
  LoadLg(h.state, path);
  for (auto [ext, swap] : optional) {
    ASSERT_TRUE(fs::exists(path + ext));
    fs::remove(h.state.swap(swap));
  }
  SaveLg(h.state);
  for (auto [ext, swap] : optional) EXPECT_FALSE(fs::exists(path + ext)) << ext;
  LeaguePlan waived = StandardLeague(8);
  for (auto& t : waived.teams) t.Waived = kTrue;
  LoadLg(h.state, WriteLeagueIn(h, waived, true, "full"));
  EXPECT_EQ(h.state.team(7).Waived, kTrue);
  Bytes prospects = ReadFileBytes(h.state.swap(swp::Prospects));
  std::string bare = WriteLeagueIn(h, waived, false, "bare");
  fs::remove(bare + ".pct");
  LoadLg(h.state, bare);
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Prospects)), prospects);
  for (auto [ext, swap] : optional) EXPECT_FALSE(fs::exists(h.state.swap(swap))) << swap;
  EXPECT_FALSE(fs::exists(h.state.swap(swp::Waivers)));
  for (int t = 0; t < 8; ++t) EXPECT_EQ(h.state.team(t).Waived, kFalse) << t;
}

// A point system above 3 is reset outside the playoffs (kept in them: below).
TEST(LeagueFiles, HeaderCountsDivisionsAndPointSystemAndOnlyThatManyTeams) {
  struct Case {
    int storedTeams, numDivs0, numDivs1, pointSystem;  // as stored
    int teams, divs0, divs1, points;                   // as loaded
  };
  for (Case c : {Case{7, 2, 3, 3, 8, 2, 3, 3},
                 {255, 0, 0, 4, 0, 2, 2, 0},
                 {49, 4, 0, 9, 50, 4, 2, 0},
                 {0, 1, 4, 0, 1, 1, 4, 0}}) {
    Harness h;
    std::string path = WriteLeagueIn(h, StandardLeague(c.teams == 8 ? 12 : std::max(c.teams, 1)), false);
    Bytes lge = ReadFileBytes(path + ".lge");
    lge[25] = static_cast<std::uint8_t>(c.storedTeams);
    lge[38] = static_cast<std::uint8_t>(c.numDivs0);
    lge[135] = static_cast<std::uint8_t>(c.numDivs1);
    lge[430] = static_cast<std::uint8_t>(c.pointSystem);
    WriteFileAtomic(path + ".lge", lge);
    h.state.team(10).Name.set("In memory");
    LoadLg(h.state, path);
    EXPECT_EQ(h.state.numTeams(), c.teams) << "stored " << c.storedTeams;
    const League& l = h.state.league;
    EXPECT_EQ(std::tuple(+l.Conf[0].NumDivs, +l.Conf[1].NumDivs, +l.PointSystem),
              std::tuple(c.divs0, c.divs1, c.points));
    if (c.teams == 8) {
      EXPECT_EQ(h.state.team(10).Name.str(), "In memory") << "records past the count are not read";
    }
  }
}

TEST(LeagueFiles, PlayoffStateIsWrittenOnlyInPlayoffs) {
  Harness h;
  auto plan = StandardLeague(8);
  plan.header.InPlayoffs = plan.header.SeasonOver = kTrue;
  plan.header.PointSystem = 4;
  std::string path = WriteLeagueIn(h, plan, false);
  WriteFileAtomic(path + ".plf", EncodeRecord(PlayoffState{}));
  LoadLg(h.state, path);
  EXPECT_EQ(h.state.league.PointSystem, 4);
  h.state.Playoff.HomeWins[3] = 4;
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".plf")[80 + 3], 4);
  h.state.league.InPlayoffs = kFalse;
  h.state.Playoff.HomeWins[3] = 1;
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".plf")[80 + 3], 4);
}

TEST(LoadTeam, EmptySlotsAreZeroConditionZeroIsFullAndSaveTeamWritesOnlyThatTeam) {
  Harness h;
  auto plan = StandardLeague(8);
  auto& roster = plan.rosters[3];
  roster[0].Condition = 0;
  roster[1].Condition = 37;
  roster.resize(25);
  roster[24] = MakePlayer("x", kGoalie, 80);
  roster[24].Name.bytes[0] = 0;  // the rest of the record is not blank
  roster[24].Condition = 0;
  h.load(plan);
  loadteam(h.state, 3, 1);
  EXPECT_EQ(std::pair(+h.state.player(1, 0).Condition, +h.state.player(1, 1).Condition), std::pair(100, 37));
  EXPECT_EQ(EncodeRecord(h.state.player(1, 24)), Bytes(Player::kSize, 0));
  EXPECT_EQ(EncodeRecord(h.state.player(1, 49)), Bytes(Player::kSize, 0));
  Bytes ros = ReadFileBytes(h.state.swap(swp::Roster));
  Bytes tms = ReadFileBytes(h.state.swap(swp::Teams));
  loadteam(h.state, 2, 1);
  for (int slot = 0; slot < kRosterSlots; ++slot) h.state.player(1, slot).Hits = static_cast<i16>(1000 + slot);
  h.state.Prospects[1].Age[0] = 19;
  h.state.team(2).PPG = 9;
  SaveTeam(h.state, 2, 1);
  Bytes ros2 = ReadFileBytes(h.state.swap(swp::Roster)), tms2 = ReadFileBytes(h.state.swap(swp::Teams));
  const long team = 50 * Player::kSize;
  EXPECT_TRUE(std::equal(ros.begin(), ros.begin() + 2 * team, ros2.begin()));
  EXPECT_TRUE(std::equal(ros.begin() + 3 * team, ros.end(), ros2.begin() + 3 * team));
  EXPECT_EQ(RecordFile(h.state.swap(swp::Roster), Player::kSize).getRecord<Player>(2 * 50 + 49 + 1).Hits, 1049);
  EXPECT_TRUE(std::equal(tms.begin(), tms.begin() + 2 * 254, tms2.begin()));
  EXPECT_EQ(tms2[2 * 254 + 158], 9);
  EXPECT_EQ(RecordFile(h.state.swap(swp::Prospects), ProspectList::kSize).getRecord<ProspectList>(3).Age[0], 19);
}

// (That kvl.def goes and no file changes is checked by running kvl.)
TEST(LeagueFiles, AMissingRequiredFileIsToldAndEndsTheProgram) {
  for (std::string ext : {".tms", ".ros", ".lge", ".drs", ".dpk", ".coa", ".plf"}) {
    Harness h;
    auto plan = StandardLeague(8);
    plan.header.InPlayoffs = plan.header.SeasonOver = kTrue;
    std::string path = WriteLeagueIn(h, plan, true);
    WriteFileAtomic(path + ".plf", EncodeRecord(PlayoffState{}));
    fs::remove(path + ext);
    EXPECT_THROW(LoadLg(h.state, path), FatalStop) << ext;
    EXPECT_TRUE(h.ui.told("KVL was unable to find the following file \n" + path + ext +
                              "\nPlease ensure that you have a complete set of league files.",
                          "File not found"))
        << ext;
    EXPECT_FALSE(h.state.hasLeague()) << ext;
  }
}

// A ten-team league cut or swollen: the load names the file and leaves the files,
// the swap and the league loaded before as they were.
TEST(LeagueFiles, ADamagedFileIsRefusedWithFilesAndSwapUntouched) {
  struct Row {
    const char* ext;
    std::uintmax_t size;  // the file cut or swollen to this
    int storedTeams = -1;
  } rows[] = {{".tms", 9 * 254},        {".tms", 10 * 254 - 1}, {".lge", 458},           {".lge", 460},
              {".lge", 0},              {".ros", 500 * 86 + 3}, {".pct", 2700 * 3 + 1},  {".drs", 87},
              {".dpk", 1536 * 10 - 6},  {".coa", 31 * 10 + 30}, {".wvr", 134 * 2 + 1},   {".scx", 31 * 12 - 1},
              {".csr", 87 * 3 - 2},     {".fas", 1350 * 10 - 10}, {".dft", 47 * 5 + 4},  {".frm", 43 * 10 - 1},
              {".lge", 459, 50}};  // 51 teams
  for (const Row& r : rows) {
    Harness h;
    std::string first = WriteLeagueIn(h, StandardLeague(8, 1), true, "first");
    LoadLg(h.state, first);  // its swap files must survive the failed load
    std::string path = WriteLeagueIn(h, StandardLeague(10, 2), true, "second");
    fs::resize_file(path + r.ext, r.size);
    if (r.storedTeams >= 0) {
      Bytes lge = ReadFileBytes(path + ".lge");
      lge[25] = static_cast<std::uint8_t>(r.storedTeams);
      WriteFileAtomic(path + ".lge", lge);
    }
    Snapshot league = SnapshotDir(LeagueDir(h));
    Snapshot home = SnapshotDir(h.home);
    try {
      LoadLg(h.state, path);
      ADD_FAILURE() << r.ext << " " << r.size << " loaded";
    } catch (const KvlError& e) {
      EXPECT_NE(std::string(e.what()).find("second" + std::string(r.ext)), std::string::npos) << e.what();
    }
    EXPECT_EQ(Differences(league, SnapshotDir(LeagueDir(h))), std::vector<std::string>{}) << r.ext;
    EXPECT_EQ(Differences(home, SnapshotDir(h.home)), std::vector<std::string>{}) << r.ext;
    EXPECT_EQ(std::pair(h.state.LeaguePath, h.state.numTeams()), std::pair(first, 8)) << r.ext;
  }
}

TEST(SaveLeagueAs, AsksForTheFileAndConfirmsOverwriting) {
  struct Case {
    const char* name;
    std::vector<std::string> answers;
    bool existing;
    bool saved;
  };
  for (const Case& c :
       {Case{"cancel", {"<cancel>"}, false, false}, Case{"new", {"copy.lge"}, false, true},
        Case{"overwrite", {"copy.lge", "yes"}, true, true}, Case{"keep", {"copy.lge", "no"}, true, false}}) {
    Harness h;
    std::string path = h.load(StandardLeague(8));
    std::string target = (LeagueDir(h) / "copy").string();
    for (auto a : c.answers) h.ui.push(a == "copy.lge" ? target + ".lge" : a);
    if (c.existing) WriteFileAtomic(target + ".lge", Bytes{1, 2, 3});
    EXPECT_EQ(SaveLeagueAs(h.state, c.saved ? "" : "Save New Season As"), c.saved) << c.name;
    ASSERT_EQ(h.ui.callsOf("chooseFile").size(), 1u);
    EXPECT_EQ(h.ui.callsOf("chooseFile")[0].title, c.saved ? "Save League As" : "Save New Season As");
    EXPECT_EQ(h.ui.callsOf("ask").size(), c.existing ? 1u : 0u) << c.name;
    EXPECT_EQ(h.state.LeaguePath, c.saved ? target : path) << c.name;
    EXPECT_EQ(h.state.LeagueShort, c.saved ? "copy" : "test") << c.name;
    if (c.saved) {
      for (const char* ext : {".lge", ".tms", ".ros", ".pct", ".drs", ".dpk", ".coa", ".frm"})
        EXPECT_EQ(ReadFileBytes(target + ext), ReadFileBytes(path + ext)) << ext;
    }
  }
}

// A loaded league with unsaved work that touches most files: a player, a team,
// the header, and a schedule deleted (so the save removes a file too).
void OpenChanged(Harness& h) {
  auto plan = StandardLeague(10, 3);
  Enrich(plan, 11);
  LoadLg(h.state, WriteLeagueIn(h, plan, true));
  loadteam(h.state, 2, 0);
  h.state.player(0, 0).G = 40;
  SaveTeam(h.state, 2, 0);
  h.state.team(4).GF = 77;
  h.state.league.LeagueName.set("Changed");
  RemoveIfExists(h.state.swap(swp::Schedule));
}

// Saved over the league loaded ("test") or as another.
void Save(Harness& h, const std::string& target) {
  if (target == "test")
    SaveLg(h.state);
  else
    SaveLeagueAs(h.state, "", LeagueDir(h) / (target + ".lge"));
}

TEST(SaveFaults, EveryStopLeavesTheOldLeagueOrTheNew) {
  for (std::string target : {"test", "copy"}) {
    Snapshot before, after;
    {
      Harness h;
      OpenChanged(h);
      before = SnapshotDir(LeagueDir(h));
      Save(h, target);
      after = SnapshotDir(LeagueDir(h));
    }
    ASSERT_NE(before, after);
    int old = 0, saved = 0;
    for (int n = 1;; ++n) {
      Harness h;
      OpenChanged(h);
      FailingFileSystem failing(n);
      h.state.fileSystem = &failing;
      bool stopped = false;
      try {
        Save(h, target);
      } catch (const KvlError&) {
        stopped = true;
      }
      h.state.fileSystem = &RealFileSystem();
      const std::string path = (LeagueDir(h) / target).string();
      bool journal = fs::exists(LeagueJournal(path));
      // The next start: a load of the saved league completes what the stop left.
      if (journal || fs::exists(path + ".lge")) LoadLg(h.state, path);
      EXPECT_EQ(h.ui.told("A save of " + path + " was interrupted; it has now been completed.", "Load League"), journal)
          << target << " step " << n;
      Snapshot now = SnapshotDir(LeagueDir(h));
      if (now == before)
        ++old;
      else if (now == after)
        ++saved;
      else
        ADD_FAILURE() << target << " stopped at step " << n
                      << ", the folder is a mix: " << ::testing::PrintToString(Differences(after, now));
      if (!stopped) break;
    }
    EXPECT_GT(old, 10) << target << ": stops before the journal keep the old league";
    EXPECT_GT(saved, 10) << target << ": stops after it end with the new";
  }
}

TEST(LeagueLock, ASecondCopyIsRefusedUntilTheFirstClosesButALeftLockFileDoesNotBlock) {
  Harness first;
  std::string path = WriteLeagueIn(first, StandardLeague(8), false);
  WriteFileAtomic(path + ".lock", Bytes{});  // left by a killed copy
  LoadLg(first.state, path);
  LoadLg(first.state, path);  // this copy opening it again is no second copy
  auto second = std::make_unique<Harness>();
  EXPECT_THROW(LoadLg(second->state, path), Refused);
  EXPECT_TRUE(second->ui.told("The league " + path + " is open in another copy of KVL (" + path +
                                  ".lock is held). To ensure no files will be corrupted, it cannot be opened here.",
                              "League in use"));
  EXPECT_FALSE(second->state.hasLeague());
  // Saving over it from elsewhere is refused the same way, and writes nothing.
  second->load(StandardLeague(8, 4), "other");
  Snapshot held = SnapshotDir(LeagueDir(first));
  EXPECT_THROW(SaveLeagueAs(second->state, "", fs::path(path + ".lge")), Refused) << "without asking to overwrite";
  EXPECT_EQ(SnapshotDir(LeagueDir(first)), held);
  first.state.leagueLock.release();
  EXPECT_FALSE(fs::exists(path + ".lock")) << "the lock file goes with the lock";
  EXPECT_NO_THROW(LoadLg(second->state, path));
}

}  // namespace
}  // namespace kvl::test
