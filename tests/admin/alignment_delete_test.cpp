// Deleting a team: every team number stored in the league's files moves down.
#include <gtest/gtest.h>

#include "admin/alignment.h"
#include "league/league_files.h"
#include "league/roster_check.h"
#include "support/league_fixture.h"
#include "team/cards_email.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;

constexpr int kTeams = 6;
constexpr int kGone = 2;
// Waiver priority before the delete, top first.
const std::vector<u8> kPriority{3, 1, 5, 0, 2, 4};

template <class R>
std::vector<R> Records(const fs::path& p) {
  RecordFile f(p, R::kSize);
  std::vector<R> out;
  for (std::size_t n = 1; n <= f.count(); ++n) out.push_back(f.getRecord<R>(n));
  return out;
}

template <class R>
void PutAll(const fs::path& p, const std::vector<R>& records) {
  RemoveIfExists(p);
  RecordFile f(p, R::kSize);
  for (std::size_t i = 0; i < records.size(); ++i) f.putRecord(i + 1, records[i]);
}

DraftPickRecord OwnPicks(int team) {
  DraftPickRecord r;
  int k = 1;
  for (u8 year = 0; year < 6; ++year)
    for (u8 round = 0; round < 9; ++round) r.Pick[static_cast<std::size_t>(k++)] = {year, round, u8(team), u8(team), kTrue};
  return r;
}

int ActivePicks(const DraftPickRecord& r) {
  int n = 0;
  for (const auto& p : r.Pick) n += p.Active != 0;
  return n;
}

ScheduleRecord Game(int home, int away, bool played) {
  ScheduleRecord g;
  g.HomeTeam = static_cast<u8>(home);
  g.AwayTeam = static_cast<u8>(away);
  g.Played = played ? -1 : 0;
  return g;
}

// A league whose every file names teams: linked coaches, traded picks, a
// shuffled priority list, a half-played schedule, waivers, futures, e-mail
// and career lines.
class DeleteTeam : public ::testing::Test {
 protected:
  void SetUp() override {
    auto plan = test::StandardLeague(kTeams);
    for (int t = 0; t < kTeams; ++t) {
      plan.coaches[static_cast<std::size_t>(t)].Team = static_cast<u8>(t + 1);
      plan.teams[static_cast<std::size_t>(t)].CoachRec = static_cast<u8>(t + 1);
      plan.teams[static_cast<std::size_t>(t)].Coach.Name = plan.coaches[static_cast<std::size_t>(t)].Name;
    }
    plan.header.ScheduleMade = kTrue;
    path = h.load(plan);
    h.ui.setFallback(Answer::Yes);
    WritePicks();
    WritePriority();
    WriteSchedule();
    WriteWaivers();
    WriteFutures();
    std::vector<EmailLine> mail;
    for (int t = 0; t < kTeams; ++t) mail.push_back({t, "gm" + std::to_string(t) + "@example.org"});
    WriteEmailLines(h.state.swap(swp::Email), mail);
    CareerRecord c2, c5;
    c2.Team = 2;
    c2.P = test::MakePlayer("Left Two", kCentre, 50);
    c5.Team = 5;
    c5.P = test::MakePlayer("Left Five", kCentre, 50);
    PutAll(h.state.swap(swp::Career), std::vector<CareerRecord>{c2, c5});
  }

  void WritePicks() {
    std::vector<DraftPickRecord> picks;
    for (int t = 0; t < kTeams; ++t) picks.push_back(OwnPicks(t));
    picks[4].Pick[55] = {0, 0, 2, 4, kTrue};  // team 4 holds team 2's pick
    picks[0].Pick[55] = {1, 3, 5, 0, kTrue};  // team 0 holds team 5's pick
    picks[4].Pick[20] = DraftPick{};          // a gap left by a trade
    PutAll(h.state.swap(swp::Picks), picks);
  }

  void WritePriority() {
    WriteFileAtomic(h.state.swap(swp::Priority), kPriority);
    for (std::size_t place = 0; place < kPriority.size(); ++place) h.state.team(kPriority[place]).Priority = u8(place);
  }

  void WriteSchedule() {
    for (int a = 0; a < kTeams; ++a)
      for (int b = a + 1; b < kTeams; ++b) games.push_back(Game(a, b, games.size() < 7));
    for (std::size_t i = 0; i < games.size(); ++i) games[i].GameNumber = static_cast<i16>(i + 1);
    PutAll(h.state.swap(swp::Schedule), games);
    h.state.league.GamesPlayed = 7;
    h.state.league.LeagueGames = static_cast<i16>(games.size());
  }

  void WriteWaivers() {
    WaiverRecord held;  // waived by team 2, sitting with team 2
    held.Name.set("T2 C 1");
    held.Holder = held.Owner = 2;
    held.ClaimedBy = 255;
    WaiverRecord claimed;  // waived by team 2, claimed by team 4
    claimed.Name.set("T2 C 2");
    claimed.Holder = claimed.ClaimedBy = 4;
    claimed.Owner = 2;
    WaiverRecord later;  // waived by team 5, unclaimed
    later.Name.set("T5 C 1");
    later.Holder = later.Owner = 5;
    later.ClaimedBy = 255;
    for (auto* w : {&held, &claimed, &later})
      for (int t = 0; t < kTeams; ++t) w->Open[static_cast<std::size_t>(t)] = static_cast<i16>(-(t + 1));
    PutAll(h.state.swap(swp::Waivers), std::vector<WaiverRecord>{held, claimed, later});
  }

  void WriteFutures() {
    std::vector<ContractFuture> futures(kTeams);
    for (int t = 0; t < kTeams; ++t) {
      auto& f = futures[static_cast<std::size_t>(t)];
      f.OwnerTeam[0][0] = static_cast<u8>(t);
      f.Amount[0][0] = 1000 * (t + 1);
    }
    futures[1].OwnerTeam[1][3] = 2;  // a year owed to the team going
    futures[1].Amount[1][3] = 500;
    futures[1].OwnerTeam[2][3] = 5;
    futures[1].Amount[2][3] = 600;
    PutAll(h.state.swap(swp::Futures), futures);
  }

  // Old team number -> new one after team kGone is gone.
  static u8 New(int t) { return static_cast<u8>(t < kGone ? t : t - 1); }

  Harness h;
  std::string path;
  std::vector<ScheduleRecord> games;
};

TEST_F(DeleteTeam, LaterTeamsMoveDownInMemoryAndTheirRostersFollow) {
  ASSERT_TRUE(AlignLeague(h.state).cmdDelete(kGone));
  ASSERT_EQ(h.state.numTeams(), kTeams - 1);
  for (int old = 0; old < kTeams; ++old) {
    if (old == kGone) continue;
    EXPECT_EQ(h.state.team(New(old)).Name.str(), "Team" + std::to_string(old));
    loadteam(h.state, New(old), 0);
    EXPECT_EQ(h.state.player(0, 0).Name.str(), "T" + std::to_string(old) + " C 1");
  }
  EXPECT_EQ(fs::file_size(h.state.swap(swp::Roster)), std::uintmax_t{(kTeams - 1) * kRosterSlots * Player::kSize});
  EXPECT_EQ(fs::file_size(h.state.swap(swp::Teams)), std::uintmax_t{(kTeams - 1) * Team::kSize});
  EXPECT_TRUE(h.state.Dirty);
}

TEST_F(DeleteTeam, DivisionListsLoseTheTeamAndRenumberTheRest) {
  // Team t stood in conference (t % 4) / 2, division t % 2.
  AlignLeague(h.state).cmdDelete(kGone);
  const auto& lg = h.state.league;
  auto list = [&](int c, int d) {
    const Division& div = lg.Conf[std::size_t(c)].Div[std::size_t(d)];
    return std::vector<u8>(div.Team.begin(), div.Team.begin() + div.NumTeams);
  };
  EXPECT_EQ(list(0, 0), (std::vector<u8>{0, New(4)}));
  EXPECT_EQ(list(0, 1), (std::vector<u8>{1, New(5)}));
  EXPECT_EQ(list(1, 0), std::vector<u8>{});
  EXPECT_EQ(list(1, 1), std::vector<u8>{New(3)});
}

TEST_F(DeleteTeam, CoachOfTheTeamIsFreedAndLaterLinksMoveDown) {
  AlignLeague(h.state).cmdDelete(kGone);
  auto coaches = Records<Coach>(h.state.swap(swp::Coaches));
  ASSERT_EQ(coaches.size(), std::size_t(kTeams));
  for (int c = 0; c < kTeams; ++c)
    EXPECT_EQ(coaches[std::size_t(c)].Team, c == kGone ? Coach::kNoTeam : New(c) + 1) << "coach " << c;
}

TEST_F(DeleteTeam, PicksFollowTheirHoldersAndPicksMadeForTheTeamLapse) {
  AlignLeague(h.state).cmdDelete(kGone);
  auto picks = Records<DraftPickRecord>(h.state.swap(swp::Picks));
  ASSERT_EQ(picks.size(), std::size_t(kTeams - 1));
  // Old team 4 loses team 2's pick and its gap closes; old team 0 keeps old team 5's.
  const auto& four = picks[New(4)];
  EXPECT_EQ(ActivePicks(four), 53);
  for (int k = 1; k <= 53; ++k) {
    EXPECT_TRUE(four.Pick[std::size_t(k)].Active) << k;
    EXPECT_EQ(four.Pick[std::size_t(k)].OrigTeam, New(4)) << k;
    EXPECT_EQ(four.Pick[std::size_t(k)].Owner, New(4)) << k;
  }
  EXPECT_EQ(picks[0].Pick[55].OrigTeam, New(5));
  EXPECT_EQ(picks[0].Pick[55].Owner, 0);
  EXPECT_EQ(picks[New(5)].Pick[1].OrigTeam, New(5));
}

TEST_F(DeleteTeam, PriorityListClosesUpAndTeamsMirrorTheirPlace) {
  AlignLeague(h.state).cmdDelete(kGone);
  Bytes places = ReadFileBytes(h.state.swap(swp::Priority));
  EXPECT_EQ(places, (Bytes{New(3), New(1), New(5), New(0), New(4)}));
  for (std::size_t place = 0; place < places.size(); ++place) EXPECT_EQ(h.state.team(places[place]).Priority, place);
}

TEST_F(DeleteTeam, ScheduleDropsTheTeamsGamesAndKeepsThePlayedCount) {
  AlignLeague(h.state).cmdDelete(kGone);
  ASSERT_EQ(h.ui.callsOf("ask").size(), 1u);
  EXPECT_EQ(h.ui.callsOf("ask")[0].text, "This will disrupt current schedule! Continue?");
  EXPECT_EQ(h.ui.callsOf("ask")[0].title, "Align League");
  std::vector<ScheduleRecord> expected;
  int played = 0;
  for (const auto& g : games) {
    if (g.HomeTeam == kGone || g.AwayTeam == kGone) continue;
    ScheduleRecord e = g;
    e.HomeTeam = New(g.HomeTeam);
    e.AwayTeam = New(g.AwayTeam);
    e.GameNumber = static_cast<i16>(expected.size() + 1);
    played += g.Played != 0;
    expected.push_back(e);
  }
  auto after = Records<ScheduleRecord>(h.state.swap(swp::Schedule));
  ASSERT_EQ(after.size(), expected.size());
  for (std::size_t i = 0; i < after.size(); ++i) EXPECT_EQ(EncodeRecord(after[i]), EncodeRecord(expected[i])) << i;
  EXPECT_EQ(h.state.league.GamesPlayed, played);
  EXPECT_EQ(h.state.league.LeagueGames, static_cast<i16>(expected.size()));
}

TEST_F(DeleteTeam, NoToTheScheduleQuestionChangesNothing) {
  h.ui.push("no");
  Bytes roster = ReadFileBytes(h.state.swap(swp::Roster));
  EXPECT_FALSE(AlignLeague(h.state).cmdDelete(kGone));
  EXPECT_EQ(h.state.numTeams(), kTeams);
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Roster)), roster);
  EXPECT_FALSE(h.state.Dirty);
}

TEST_F(DeleteTeam, WaiversOfTheTeamAreBlankedAndOthersRenumbered) {
  AlignLeague(h.state).cmdDelete(kGone);
  auto w = Records<WaiverRecord>(h.state.swap(swp::Waivers));
  ASSERT_EQ(w.size(), 3u);
  EXPECT_TRUE(w[0].Name.empty());
  EXPECT_EQ(w[1].Holder, New(4));
  EXPECT_EQ(w[1].ClaimedBy, New(4));
  EXPECT_EQ(w[1].Owner, 255);  // the placing team is gone: nobody may recall him
  EXPECT_EQ(w[2].Holder, New(5));
  EXPECT_EQ(w[2].ClaimedBy, 255);
  // Open is per team number: team 2's flag goes, later flags move down.
  EXPECT_EQ(w[2].Open[0], -1);
  EXPECT_EQ(w[2].Open[std::size_t(New(3))], -4);
  EXPECT_EQ(w[2].Open[std::size_t(New(5))], -6);
  EXPECT_EQ(w[2].Open[5], 0);
}

TEST_F(DeleteTeam, FuturesEmailAndCareerLinesFollowTheirTeams) {
  AlignLeague(h.state).cmdDelete(kGone);
  auto futures = Records<ContractFuture>(h.state.swap(swp::Futures));
  ASSERT_EQ(futures.size(), std::size_t(kTeams - 1));
  for (int old = 0; old < kTeams; ++old) {
    if (old == kGone) continue;
    EXPECT_EQ(futures[New(old)].Amount[0][0], 1000 * (old + 1));
    EXPECT_EQ(futures[New(old)].OwnerTeam[0][0], New(old));
  }
  EXPECT_EQ(futures[1].OwnerTeam[1][3], 1);  // owed to the team going: back to its own team
  EXPECT_EQ(futures[1].OwnerTeam[2][3], New(5));

  auto mail = ReadEmailLines(h.state.swap(swp::Email));
  ASSERT_EQ(mail.size(), std::size_t(kTeams - 1));
  for (const auto& e : mail) {
    int old = e.team < kGone ? e.team : e.team + 1;
    EXPECT_EQ(e.address, "gm" + std::to_string(old) + "@example.org");
  }
  auto career = Records<CareerRecord>(h.state.swap(swp::Career));
  ASSERT_EQ(career.size(), 1u);
  EXPECT_EQ(career[0].P.Name.str(), "Left Five");
  EXPECT_EQ(career[0].Team, New(5));
}

TEST_F(DeleteTeam, ThePlayersOfTheTeamAreFreeInTheDatabaseAgain) {
  std::vector<DbRecord> db;
  for (auto [name, flag] : {std::pair{"T2 C 1", -1}, {"T3 C 1", -1}, {"Nobody Yet", 0}, {"T2 D 1", -1}}) {
    DbRecord d;
    d.DbFlag = static_cast<i16>(flag);
    d.P = test::MakePlayer(name, kCentre, 50);
    db.push_back(d);
  }
  PutAll(h.state.swap(swp::Database), db);
  AlignLeague(h.state).cmdDelete(kGone);
  auto after = Records<DbRecord>(h.state.swap(swp::Database));
  ASSERT_EQ(after.size(), db.size());
  EXPECT_EQ(after[0].DbFlag, 0);
  EXPECT_EQ(after[1].DbFlag, -1);  // team 3's player stays held
  EXPECT_EQ(after[2].DbFlag, 0);
  EXPECT_EQ(after[3].DbFlag, 0);
}

TEST_F(DeleteTeam, SavedLeagueLoadsAgainAndPassesTheChecks) {
  AlignLeague(h.state).cmdDelete(kGone);
  SaveLg(h.state);
  h.state.leagueLock.release();  // closed, as a second run would find it

  ScriptedUi ui2;
  LeagueState again(ui2, h.clock, h.home);
  LoadLg(again, path);
  EXPECT_EQ(again.numTeams(), kTeams - 1);
  EXPECT_TRUE(RosterCheck(again));
  // The coach check tells every link it has to repair: there must be none.
  for (const auto& c : ui2.callsOf("tell")) ADD_FAILURE() << c.title << ": " << c.text;
  for (int t = 0; t < again.numTeams(); ++t) {
    EXPECT_EQ(again.team(t).Name.str(), h.state.team(t).Name.str());
    EXPECT_EQ(again.team(t).Coach.Name.str(), "Coach " + std::to_string(t < kGone ? t : t + 1));
  }
}

TEST_F(DeleteTeam, DeletingTheLastTeamLeavesAnEmptyLeague) {
  for (int t = kTeams - 1; t >= 0; --t) ASSERT_TRUE(AlignLeague(h.state).cmdDelete(t)) << t;
  EXPECT_EQ(h.state.numTeams(), 0);
  EXPECT_EQ(fs::file_size(h.state.swap(swp::Roster)), 0u);
  for (const auto& c : Records<Coach>(h.state.swap(swp::Coaches))) EXPECT_EQ(c.Team, Coach::kNoTeam);
}

}  // namespace
}  // namespace kvl
