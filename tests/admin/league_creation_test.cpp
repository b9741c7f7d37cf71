#include "admin/league_creation.h"

#include <algorithm>

#include "support/kvl_test.h"
#include "transactions/database_players.h"
#include "transactions/draft_picks.h"

namespace kvl {
namespace {

// A standard league of eight open, and a database of 12 players beside it, every one marked as used.
struct Fixture {
  test::Harness h;
  fs::path db;
  Fixture() {
    h.load(test::StandardLeague(8));
    std::vector<DbRecord> records;
    for (int i = 0; i < 12; ++i) records.push_back({-1, test::MakePlayer("Db Player " + std::to_string(i), i % 5, 60)});
    db = h.dir.path() / "marked.drs";
    WriteFileAtomic(db, EncodeRecords(records));
  }
};

TEST(CreateLeague, NoToTheFirstQuestionOrToAnotherDatabaseChangesNothing) {
  for (bool missing : {false, true}) {
    Fixture f;
    Bytes before = ReadFileBytes(f.h.state.swap(swp::Roster));
    if (missing) f.h.ui.push("yes"), f.h.ui.push((f.h.dir.path() / "nowhere.drs").string());
    f.h.ui.push("no");
    EXPECT_FALSE(CreateLeague(f.h.state));
    EXPECT_EQ(f.h.ui.callsOf("chooseFile").size(), missing ? 1u : 0u);
    EXPECT_EQ(f.h.ui.callsOf("ask").size(), missing ? 2u : 1u) << "another database is offered";
    EXPECT_EQ(f.h.state.numTeams(), 8);
    EXPECT_EQ(ReadFileBytes(f.h.state.swap(swp::Roster)), before);
  }
}

TEST(CreateLeague, MakesAnUnnamedLeagueWithNoTeamsAndEveryMarkClear) {
  Fixture f;
  LeagueState& s = f.h.state;
  f.h.ui.push("yes");
  f.h.ui.push(f.db.string());
  f.h.ui.push("The Very Long Name Of A New League");
  ASSERT_TRUE(CreateLeague(s));
  EXPECT_EQ(s.numTeams(), 0);
  EXPECT_EQ(s.league.LeagueName.raw(), "The Very Long Name Of A N");
  EXPECT_TRUE(s.LeaguePath.empty());
  EXPECT_TRUE(s.Dirty);
  EXPECT_EQ(s.league.Conf[1].Name.raw() + s.league.Conf[0].Div[2].Name.raw(), "CONF 2      DIV 3     ");
  EXPECT_EQ(s.league.Conf[0].NumDivs + s.league.Conf[1].NumDivs, 4);
  for (const DbRecord& r : ReadDatabase(s)) EXPECT_EQ(r.DbFlag, 0) << "every mark is cleared: " << r.P.Name.str();
  EXPECT_EQ(ReadDatabase(s).size(), 12u);
  EXPECT_EQ(fs::file_size(s.swap(swp::Roster)), 0u) << "the old league's players are gone";
  EXPECT_EQ(ReadFileBytes(s.swap(swp::OldSchedule)), Bytes(4642, 0));
  EXPECT_EQ(ReadFileBytes(s.swap(swp::Coaches)), ReadFileBytes(f.h.home / "default.coa"));
}

TEST(CreateLeague, AddedTeamsHoldFiftyFourPicksAndTheLeagueSavesAndLoads) {
  for (int teams : {0, 3}) {
    Fixture f;
    LeagueState& s = f.h.state;
    f.h.ui.push("yes");
    ASSERT_TRUE(CreateLeague(s, {f.db, "Fresh"}));
    for (int t = 0; t < teams; ++t) EXPECT_EQ(AddTeam(s, "Club" + std::to_string(t), t % 2, 1), t);
    std::string path = (f.h.dir.path() / "fresh").string();
    ASSERT_TRUE(SaveLeagueAs(s, "", fs::path(path + ".lge")));
    LoadLg(s, path);
    ASSERT_EQ(s.numTeams(), teams);
    EXPECT_EQ(s.league.LeagueName.str(), "Fresh");
    for (int t = 0; t < teams; ++t) {
      EXPECT_EQ(s.team(t).Name.str(), "Club" + std::to_string(t));
      EXPECT_EQ(s.team(t).Lines.at(0, 0), kNoPlayer);
      DraftPickRecord picks = ReadDraftPicks(s, t);
      EXPECT_EQ(std::count_if(picks.Pick.begin(), picks.Pick.end(),
                              [t](const DraftPick& p) { return p.Active != 0 && p.Owner == t && p.OrigTeam == t; }),
                54);
    }
    EXPECT_EQ(s.league.Conf[1].Div[1].NumTeams, teams / 2);
  }
}

TEST(CreateLeague, ADamagedDatabaseIsToldAndLeavesTheOpenLeagueAlone) {
  for (std::size_t size : {std::size_t{0}, DbRecord::kSize * 3 + 5}) {
    Fixture f;
    fs::path bad = f.h.dir.path() / "bad.drs";
    WriteFileAtomic(bad, Bytes(size, 7));
    Bytes before = ReadFileBytes(f.h.state.swap(swp::Database));
    f.h.ui.push("yes");
    try {
      CreateLeague(f.h.state, {bad, "Broken"});
      ADD_FAILURE() << "a database of " << size << " bytes was taken";
    } catch (const KvlError& e) {
      EXPECT_NE(std::string(e.what()).find(bad.string()), std::string::npos) << e.what();
    }
    EXPECT_TRUE(f.h.ui.told("Errors in file", "Create New League"));
    EXPECT_EQ(f.h.state.league.LeagueName.str(), "Test League");
    EXPECT_EQ(ReadFileBytes(f.h.state.swap(swp::Database)), before);
  }
}

}  // namespace
}  // namespace kvl
