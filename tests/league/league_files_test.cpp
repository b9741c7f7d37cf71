// The league file set: load, save, swap files, what a load refuses, saves stopped midway and the one-copy lock.
#include "league/league_files.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/failing_file_system.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

std::string FileName(const std::string& path, const std::string& ext) {
  return fs::path(path + ext).filename().string();
}

// ---- load then save ----------------------------------------------------------

struct RoundTripCase {
  const char* name;
  bool optionalFiles;
  bool playoffs;
};

class LoadSaveRoundTrip : public ::testing::TestWithParam<RoundTripCase> {};

TEST_P(LoadSaveRoundTrip, LeavesEveryFileByteIdentical) {
  const auto& c = GetParam();
  Harness h;
  auto plan = StandardLeague(10, 3);
  test::Enrich(plan, 11);
  if (c.playoffs) {
    plan.header.ScheduleMade = plan.header.SeasonOver = plan.header.InPlayoffs = kTrue;
    plan.header.PlayoffTeams = 8;
  }
  std::string path = WriteLeagueIn(h, plan, c.optionalFiles);
  if (!c.optionalFiles) {
    // Without .wvr a load clears Waived, which a save would then write.
    for (auto& t : plan.teams) t.Waived = kFalse;
    test::WriteLeague(plan, path);
  }
  if (c.playoffs) {
    std::mt19937 gen(5);
    WriteFileAtomic(path + ".plf", test::RandomBytes(PlayoffState::kSize, gen));
  }
  Snapshot before = SnapshotDir(LeagueDir(h));
  LoadLg(h.state, path);
  EXPECT_TRUE(h.ui.calls().empty()) << "a sound league loads without a word: " << h.ui.calls().front().text;
  SaveLg(h.state);
  EXPECT_EQ(Differences(before, SnapshotDir(LeagueDir(h))), std::vector<std::string>{});
  EXPECT_FALSE(h.state.Dirty);
}

INSTANTIATE_TEST_SUITE_P(FileSets, LoadSaveRoundTrip,
                         ::testing::Values(RoundTripCase{"RequiredAndFarm", false, false},
                                           RoundTripCase{"EveryOptionalFile", true, false},
                                           RoundTripCase{"InPlayoffs", true, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(LeagueFiles, UpperCaseExtensionsLoadAndSaveInPlace) {
  Harness h;
  auto plan = StandardLeague(8);
  test::Enrich(plan, 2);
  std::string lower = WriteLeagueIn(h, plan, true, "demo");
  std::string upper = (LeagueDir(h) / "DEMO").string();
  fs::rename(LeagueDir(h) / "demo.lge", LeagueDir(h) / "demo.LGE");
  for (const auto& e : Snapshot(SnapshotDir(LeagueDir(h)))) {
    std::string ext = fs::path(e.first).extension().string();
    std::string up;
    for (char ch : ext) up += static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    fs::rename(LeagueDir(h) / e.first, fs::path(upper + up));
  }
  Snapshot before = SnapshotDir(LeagueDir(h));
  ASSERT_TRUE(before.count("DEMO.LGE") && before.count("DEMO.TMS"));
  LoadLg(h.state, upper);
  EXPECT_EQ(h.state.numTeams(), 8);
  EXPECT_EQ(h.state.team(3).Name.str(), "Team3");
  SaveLg(h.state);
  EXPECT_EQ(Differences(before, SnapshotDir(LeagueDir(h))), std::vector<std::string>{});
}

TEST(LeagueFiles, UnsavedWorkStaysInTheSwapFiles) {
  Harness h;
  auto plan = StandardLeague(8);
  std::string path = WriteLeagueIn(h, plan, true);
  Snapshot before = SnapshotDir(LeagueDir(h));
  LoadLg(h.state, path);
  loadteam(h.state, 2, 0);
  h.state.player(0, 0).G = 40;
  h.state.team(2).CurFin = 123456;
  SaveTeam(h.state, 2, 0);
  h.state.league.LeagueName.set("Changed");
  h.state.Dirty = true;
  EXPECT_EQ(Differences(before, SnapshotDir(LeagueDir(h))), std::vector<std::string>{});
  // The work itself is in the swap copies.
  loadteam(h.state, 2, 1);
  EXPECT_EQ(h.state.player(1, 0).G, 40);
  EXPECT_EQ(RecordFile(h.state.swap(swp::Teams), Team::kSize).getRecord<Team>(3).CurFin, 123456);
}

TEST(LeagueFiles, SaveWritesWhatChanged) {
  Harness h;
  std::string path = h.load(StandardLeague(8));
  loadteam(h.state, 5, 1);
  h.state.player(1, 7).Hits = 99;
  SaveTeam(h.state, 5, 1);
  h.state.team(6).GF = 77;
  h.state.Farm[4].Name.set("Farm Four");
  h.state.league.GamesPlayed = 12;
  SaveLg(h.state);
  RecordFile ros(path + ".ros", Player::kSize);
  EXPECT_EQ(ros.getRecord<Player>(5 * 50 + 7 + 1).Hits, 99);
  EXPECT_EQ(RecordFile(path + ".tms", Team::kSize).getRecord<Team>(7).GF, 77);
  EXPECT_EQ(RecordFile(path + ".frm", FarmTeam::kSize).getRecord<FarmTeam>(5).Name.str(), "Farm Four");
  Bytes lge = ReadFileBytes(path + ".lge");
  EXPECT_EQ(lge[272], 12);
  EXPECT_EQ(lge[25], 7) << "NumTeams is stored as the count less one";
  EXPECT_EQ(h.state.numTeams(), 8) << "and stays the count in memory";
}

// ---- the waiver file ---------------------------------------------------------

Bytes Waiver(const std::string& name) {
  WaiverRecord w;
  if (!name.empty()) w.Name.set(name);
  w.Active = -1;
  return EncodeRecord(w);
}

TEST(LeagueFiles, SaveCompactsTheWaiverFileButNotItsSwapAndKeepsItWithoutASwap) {
  Harness h;
  std::string path = WriteLeagueIn(h, StandardLeague(8), true);
  LoadLg(h.state, path);
  Bytes wvr = ReadFileBytes(path + ".wvr");
  fs::remove(h.state.swap(swp::Waivers));
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".wvr"), wvr) << "without a swap the file is left alone";
  Bytes swap, expected;
  for (const char* n : {"", "Able", "", "", "Baker", ""}) {
    Bytes r = Waiver(n);
    swap.insert(swap.end(), r.begin(), r.end());
    if (*n) expected.insert(expected.end(), r.begin(), r.end());
  }
  WriteFileAtomic(h.state.swap(swp::Waivers), swap);
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".wvr"), expected);
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Waivers)), swap);
}

TEST(LeagueFiles, LoadingWithoutWaiverFileClearsWaived) {
  for (bool withWvr : {false, true}) {
    Harness h;
    auto plan = StandardLeague(8);
    for (auto& t : plan.teams) t.Waived = kTrue;
    LoadLg(h.state, WriteLeagueIn(h, plan, withWvr));
    for (int t = 0; t < 8; ++t) EXPECT_EQ(h.state.team(t).Waived, withWvr ? kTrue : kFalse) << t << " wvr " << withWvr;
    EXPECT_EQ(fs::exists(h.state.swap(swp::Waivers)), withWvr);
  }
}

// ---- swap files that go missing ------------------------------------------------

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
  LoadLg(h.state, WriteLeagueIn(h, StandardLeague(8), true, "full"));
  std::string bare = WriteLeagueIn(h, StandardLeague(8), false, "bare");
  LoadLg(h.state, bare);
  for (auto [ext, swap] : optional) EXPECT_FALSE(fs::exists(h.state.swap(swap))) << swap;
  EXPECT_FALSE(fs::exists(h.state.swap(swp::Waivers)));
}

TEST(LeagueFiles, MissingProspectFileKeepsTheOldSwapCopy) {
  Harness h;
  auto plan = StandardLeague(8);
  std::string first = WriteLeagueIn(h, plan, false, "first");
  LoadLg(h.state, first);
  Bytes prospects = ReadFileBytes(h.state.swap(swp::Prospects));
  std::string second = WriteLeagueIn(h, plan, false, "second");
  fs::remove(second + ".pct");
  LoadLg(h.state, second);
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Prospects)), prospects);
}

// ---- what LoadLg reads ----------------------------------------------------------

TEST(LeagueFiles, HeaderCountsAndDivisionsAndOnlyThatManyTeams) {
  struct Case {
    int storedTeams;
    int numDivs0, numDivs1;
    int teams, divs0, divs1;
  };
  for (Case c : {Case{7, 2, 3, 8, 2, 3}, {255, 0, 0, 0, 2, 2}, {49, 4, 0, 50, 4, 2}, {0, 1, 4, 1, 1, 4}}) {
    Harness h;
    auto plan = StandardLeague(std::max(c.teams, 1));
    std::string path = WriteLeagueIn(h, plan, false);
    Bytes lge = ReadFileBytes(path + ".lge");
    lge[25] = static_cast<std::uint8_t>(c.storedTeams);
    lge[38] = static_cast<std::uint8_t>(c.numDivs0);
    lge[135] = static_cast<std::uint8_t>(c.numDivs1);
    WriteFileAtomic(path + ".lge", lge);
    LoadLg(h.state, path);
    EXPECT_EQ(h.state.numTeams(), c.teams) << "stored " << c.storedTeams;
    EXPECT_EQ(h.state.league.Conf[0].NumDivs, c.divs0);
    EXPECT_EQ(h.state.league.Conf[1].NumDivs, c.divs1);
  }
  Harness h;
  std::string path = WriteLeagueIn(h, StandardLeague(12), false);
  Bytes lge = ReadFileBytes(path + ".lge");
  lge[25] = 7;  // 8 teams, though .tms holds 12
  WriteFileAtomic(path + ".lge", lge);
  h.state.team(10).Name.set("In memory");
  LoadLg(h.state, path);
  EXPECT_EQ(h.state.team(10).Name.str(), "In memory") << "records past the team count are not read";
}

TEST(LeagueFiles, PointSystemAboveThreeIsResetOutsideThePlayoffs) {
  struct Case {
    int stored;
    bool playoffs;
    int loaded;
  };
  for (Case c : {Case{3, false, 3}, {4, false, 0}, {9, false, 0}, {4, true, 4}}) {
    Harness h;
    auto plan = StandardLeague(8);
    plan.header.PointSystem = static_cast<u8>(c.stored);
    plan.header.InPlayoffs = ToBool16(c.playoffs);
    std::string path = WriteLeagueIn(h, plan, false);
    if (c.playoffs) WriteFileAtomic(path + ".plf", EncodeRecord(PlayoffState{}));
    LoadLg(h.state, path);
    EXPECT_EQ(h.state.league.PointSystem, c.loaded) << c.stored << " playoffs " << c.playoffs;
  }
}

TEST(LeagueFiles, LoadNamesTheLeagueAndWritesKvlDef) {
  Harness h;
  h.state.Dirty = true;
  std::string path = h.load(StandardLeague(8), "Metro");
  EXPECT_EQ(h.state.LeagueShort, "Metro");
  EXPECT_FALSE(h.state.Dirty);
  Bytes def = ReadFileBytes(h.home / "kvl.def");
  std::string line(def.begin(), def.end());
  EXPECT_EQ(line.substr(0, line.find_first_of("\r\n")), path);
}

TEST(LeagueFiles, PlayoffStateIsReadAndWrittenOnlyInPlayoffs) {
  Harness h;
  auto plan = StandardLeague(8);
  plan.header.InPlayoffs = plan.header.SeasonOver = kTrue;
  std::string path = WriteLeagueIn(h, plan, false);
  PlayoffState p;
  p.PlayoffRound = 2;
  p.Seeds[0] = 5;
  WriteFileAtomic(path + ".plf", EncodeRecord(p));
  LoadLg(h.state, path);
  EXPECT_EQ(h.state.Playoff.PlayoffRound, 2);
  h.state.Playoff.HomeWins[3] = 4;
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".plf")[80 + 3], 4);
  h.state.league.InPlayoffs = kFalse;
  h.state.Playoff.HomeWins[3] = 1;
  SaveLg(h.state);
  EXPECT_EQ(ReadFileBytes(path + ".plf")[80 + 3], 4);
}

// ---- loadteam and SaveTeam ---------------------------------------------------

TEST(LoadTeam, EmptySlotsAreZeroAndConditionZeroIsFull) {
  Harness h;
  auto plan = StandardLeague(8);
  auto& roster = plan.rosters[3];
  roster[0].Condition = 0;
  roster[1].Condition = 37;
  Player ghost = test::MakePlayer("x", kGoalie, 80);
  ghost.Name.bytes[0] = 0;  // the rest of the record is not blank
  ghost.Condition = 0;
  roster.resize(25);
  roster[24] = ghost;
  h.load(plan);
  loadteam(h.state, 3, 1);
  EXPECT_EQ(h.state.player(1, 0).Condition, 100);
  EXPECT_EQ(h.state.player(1, 1).Condition, 37);
  EXPECT_EQ(EncodeRecord(h.state.player(1, 24)), Bytes(Player::kSize, 0));
  EXPECT_EQ(EncodeRecord(h.state.player(1, 49)), Bytes(Player::kSize, 0));
}

TEST(LoadTeam, SaveTeamWritesOnlyThatTeamsRecords) {
  Harness h;
  h.load(StandardLeague(8));
  Bytes ros = ReadFileBytes(h.state.swap(swp::Roster));
  Bytes tms = ReadFileBytes(h.state.swap(swp::Teams));
  Bytes pct = ReadFileBytes(h.state.swap(swp::Prospects));
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
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Prospects)).size(), pct.size());
}

// ---- failures ------------------------------------------------------------------

class MissingRequired : public ::testing::TestWithParam<const char*> {};

TEST_P(MissingRequired, IsToldAndEndsTheProgramWithNothingSaved) {
  std::string ext = GetParam();
  Harness h;
  auto plan = StandardLeague(8);
  plan.header.InPlayoffs = plan.header.SeasonOver = kTrue;
  std::string path = WriteLeagueIn(h, plan, true);
  WriteFileAtomic(path + ".plf", EncodeRecord(PlayoffState{}));
  fs::remove(path + ext);
  WriteFileAtomic(h.home / "kvl.def", Bytes{'x'});
  Snapshot before = SnapshotDir(LeagueDir(h));
  EXPECT_THROW(LoadLg(h.state, path), FatalStop);
  EXPECT_TRUE(h.ui.told("KVL was unable to find the following file \n" + path + ext +
                            "\nPlease ensure that you have a complete set of league files.",
                        "File not found"));
  EXPECT_EQ(h.ui.calls().size(), 1u);
  EXPECT_FALSE(fs::exists(h.home / "kvl.def"));
  EXPECT_EQ(Differences(before, SnapshotDir(LeagueDir(h))), std::vector<std::string>{});
  EXPECT_FALSE(h.state.hasLeague());
}

INSTANTIATE_TEST_SUITE_P(Files, MissingRequired,
                         ::testing::Values(".tms", ".ros", ".lge", ".drs", ".dpk", ".coa", ".plf"),
                         [](const auto& info) { return std::string(info.param + 1); });

struct DamageCase {
  const char* name;
  const char* ext;  // the file named in the message
  std::function<void(const std::string& path)> damage;
};

void Resize(const std::string& file, std::size_t size) { fs::resize_file(file, size); }

void SetStoredTeams(const std::string& path, int stored) {
  Bytes lge = ReadFileBytes(path + ".lge");
  lge[25] = static_cast<std::uint8_t>(stored);
  WriteFileAtomic(path + ".lge", lge);
}

void PrintTo(const DamageCase& c, std::ostream* os) { *os << c.name; }

class DamagedFile : public ::testing::TestWithParam<DamageCase> {};

TEST_P(DamagedFile, IsRefusedNamingTheFileWithFilesAndSwapUntouched) {
  const auto& c = GetParam();
  Harness h;
  std::string first = WriteLeagueIn(h, StandardLeague(8, 1), true, "first");
  LoadLg(h.state, first);  // its swap files must survive the failed load
  std::string path = WriteLeagueIn(h, StandardLeague(10, 2), true, "second");
  c.damage(path);
  Snapshot league = SnapshotDir(LeagueDir(h));
  Snapshot home = SnapshotDir(h.home);
  try {
    LoadLg(h.state, path);
    ADD_FAILURE() << "loaded";
  } catch (const KvlError& e) {
    EXPECT_NE(std::string(e.what()).find(FileName(path, c.ext)), std::string::npos) << e.what();
  }
  EXPECT_EQ(Differences(league, SnapshotDir(LeagueDir(h))), std::vector<std::string>{});
  EXPECT_EQ(Differences(home, SnapshotDir(h.home)), std::vector<std::string>{});
  EXPECT_EQ(h.state.LeaguePath, first);
  EXPECT_EQ(h.state.numTeams(), 8);
}

INSTANTIATE_TEST_SUITE_P(
    Files, DamagedFile,
    ::testing::Values(
        DamageCase{"TeamsShorterThanNumTeams", ".tms", [](const std::string& p) { Resize(p + ".tms", 9 * 254); }},
        DamageCase{"TeamsCutInARecord", ".tms", [](const std::string& p) { Resize(p + ".tms", 10 * 254 - 1); }},
        DamageCase{"HeaderTooShort", ".lge", [](const std::string& p) { Resize(p + ".lge", 458); }},
        DamageCase{"HeaderTooLong", ".lge", [](const std::string& p) { Resize(p + ".lge", 460); }},
        DamageCase{"HeaderEmpty", ".lge", [](const std::string& p) { Resize(p + ".lge", 0); }},
        DamageCase{"FiftyOneTeams", ".lge", [](const std::string& p) { SetStoredTeams(p, 50); }},
        DamageCase{"TwoHundredFiftyFiveTeams", ".lge", [](const std::string& p) { SetStoredTeams(p, 254); }},
        DamageCase{"RosterCutInARecord", ".ros", [](const std::string& p) { Resize(p + ".ros", 500 * 86 + 3); }},
        DamageCase{"ProspectsCut", ".pct", [](const std::string& p) { Resize(p + ".pct", 2700 * 3 + 1); }},
        DamageCase{"DatabaseCut", ".drs", [](const std::string& p) { Resize(p + ".drs", 87); }},
        DamageCase{"PicksCut", ".dpk", [](const std::string& p) { Resize(p + ".dpk", 1536 * 10 - 6); }},
        DamageCase{"CoachesCut", ".coa", [](const std::string& p) { Resize(p + ".coa", 31 * 10 + 30); }},
        DamageCase{"WaiversCut", ".wvr", [](const std::string& p) { Resize(p + ".wvr", 134 * 2 + 1); }},
        DamageCase{"ScheduleCut", ".scx", [](const std::string& p) { Resize(p + ".scx", 31 * 12 - 1); }},
        DamageCase{"CareerCut", ".csr", [](const std::string& p) { Resize(p + ".csr", 87 * 3 - 2); }},
        DamageCase{"FuturesCut", ".fas", [](const std::string& p) { Resize(p + ".fas", 1350 * 10 - 10); }},
        DamageCase{"DraftListCut", ".dft", [](const std::string& p) { Resize(p + ".dft", 47 * 5 + 4); }},
        DamageCase{"FarmCut", ".frm", [](const std::string& p) { Resize(p + ".frm", 43 * 10 - 1); }}),
    [](const auto& info) { return std::string(info.param.name); });

// ---- save as -------------------------------------------------------------------

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

struct FaultCase {
  const char* name;
  const char* target;  // the league saved to; "test" is the one loaded
};

class SaveFaults : public ::testing::TestWithParam<FaultCase> {
 protected:
  // A loaded league with unsaved work that touches most files: a player, a team,
  // the header, and a schedule deleted (so the save removes a file too).
  std::string OpenChanged(Harness& h) {
    auto plan = test::StandardLeague(10, 3);
    test::Enrich(plan, 11);
    std::string path = test::WriteLeagueIn(h, plan, true);
    LoadLg(h.state, path);
    loadteam(h.state, 2, 0);
    h.state.player(0, 0).G = 40;
    SaveTeam(h.state, 2, 0);
    h.state.team(4).GF = 77;
    h.state.league.LeagueName.set("Changed");
    RemoveIfExists(h.state.swap(swp::Schedule));
    return path;
  }
  std::string Target(const Harness& h) const { return (LeagueDir(h) / GetParam().target).string(); }
  void Save(Harness& h) {
    if (std::string(GetParam().target) == "test")
      SaveLg(h.state);
    else
      SaveLeagueAs(h.state, "", fs::path(Target(h) + ".lge"));
  }
};

TEST_P(SaveFaults, EveryStopLeavesTheOldLeagueOrTheNew) {
  Snapshot before, after;
  {
    Harness h;
    OpenChanged(h);
    before = SnapshotDir(LeagueDir(h));
    Save(h);
    after = SnapshotDir(LeagueDir(h));
  }
  ASSERT_NE(before, after);
  int old = 0, saved = 0;
  for (int n = 1;; ++n) {
    Harness h;
    OpenChanged(h);
    test::FailingFileSystem failing(n);
    h.state.fileSystem = &failing;
    bool stopped = false;
    try {
      Save(h);
    } catch (const KvlError&) {
      stopped = true;
    }
    h.state.fileSystem = &RealFileSystem();
    bool journal = fs::exists(LeagueJournal(Target(h)));
    // The next start: a load of the saved league completes what the stop left.
    if (journal || fs::exists(Target(h) + ".lge")) LoadLg(h.state, Target(h));
    EXPECT_EQ(h.ui.told("A save of " + Target(h) + " was interrupted; it has now been completed.", "Load League"),
              journal)
        << "step " << n;
    Snapshot now = SnapshotDir(LeagueDir(h));
    if (now == before)
      ++old;
    else if (now == after)
      ++saved;
    else
      ADD_FAILURE() << "stopped at step " << n
                    << ", the folder is a mix: " << ::testing::PrintToString(test::Differences(after, now));
    if (!stopped) break;
  }
  EXPECT_GT(old, 10) << "stops before the journal keep the old league";
  EXPECT_GT(saved, 10) << "stops after it end with the new";
}

INSTANTIATE_TEST_SUITE_P(Saves, SaveFaults, ::testing::Values(FaultCase{"Save", "test"}, FaultCase{"SaveAs", "copy"}),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- one copy a league -----------------------------------------------------------

TEST(LeagueLock, ASecondCopyFromAnotherHomeIsRefusedUntilTheFirstCloses) {
  Harness first;
  std::string path = first.load(test::StandardLeague(8));
  auto second = std::make_unique<Harness>();
  EXPECT_THROW(LoadLg(second->state, path), Refused);
  EXPECT_TRUE(second->ui.told("The league " + path + " is open in another copy of KVL (" + path +
                                  ".lock is held). To ensure no files will be corrupted, it cannot be opened here.",
                              "League in use"));
  EXPECT_FALSE(second->state.hasLeague());
  // Saving over it from elsewhere is refused the same way, and writes nothing.
  second->load(test::StandardLeague(8, 4), "other");
  Snapshot held = SnapshotDir(LeagueDir(first));
  EXPECT_THROW(SaveLeagueAs(second->state, "", fs::path(path + ".lge")), Refused) << "without asking to overwrite";
  EXPECT_EQ(SnapshotDir(LeagueDir(first)), held);
  first.state.leagueLock.release();
  EXPECT_NO_THROW(LoadLg(second->state, path));
}

TEST(LeagueLock, ALockFileLeftByAKilledCopyDoesNotBlock) {
  Harness h;
  std::string path = test::WriteLeagueIn(h, test::StandardLeague(8), false);
  WriteFileAtomic(path + ".lock", Bytes{});
  LoadLg(h.state, path);
  EXPECT_TRUE(h.state.hasLeague());
  LoadLg(h.state, path);  // this copy opening it again is no second copy
  h.state.leagueLock.release();
  EXPECT_FALSE(fs::exists(path + ".lock")) << "the lock file goes with the lock";
}

}  // namespace
}  // namespace kvl::test
