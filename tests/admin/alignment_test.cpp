// Deleting a team renumbers every file that names teams. Adding, renaming, moving, the divisions and
// the limits are the forms transcript's (e2e/golden/forms_align.txt); a broken division list is the
// e2e tests'.
#include "admin/alignment.h"
#include "admin/league_creation.h"

#include "support/kvl_test.h"
#include "team/cards_email.h"
#include "transactions/draft_picks.h"

namespace kvl::test {
namespace {

std::vector<u8> TeamsIn(const LeagueState& s, int conf, int div) {
  const Division& d = s.league.Conf[std::size_t(conf)].Div[std::size_t(div)];
  return std::vector<u8>(d.Team.begin(), d.Team.begin() + d.NumTeams);
}

constexpr int kTeams = 6;
constexpr int kGone = 2;
// Waiver priority before the delete, top first.
const Bytes kPriority{3, 1, 5, 0, 2, 4};
std::size_t At(int i) { return static_cast<std::size_t>(i); }
// Old team number -> new one after team kGone is gone.
u8 New(int t) { return static_cast<u8>(t < kGone ? t : t - 1); }

WaiverRecord Waived(const char* name, int owner, int holder, int claimedBy) {
  WaiverRecord w;
  w.Name.set(name);
  w.Owner = u8(owner), w.Holder = u8(holder), w.ClaimedBy = u8(claimedBy);
  for (int t = 0; t < kTeams; ++t) w.Open[At(t)] = static_cast<i16>(-(t + 1));
  return w;
}

// A league whose every file names teams: linked coaches, traded picks, a
// shuffled priority list, a half-played schedule, waivers, futures, e-mail,
// career lines and the database.
struct DeleteTeam : ::testing::Test {
  void SetUp() override {
    auto plan = StandardLeague(kTeams);
    for (std::size_t t = 0; t < kTeams; ++t) {
      plan.coaches[t].Team = u8(t + 1), plan.teams[t].CoachRec = u8(t + 1);
      plan.teams[t].Coach.Name = plan.coaches[t].Name;
    }
    plan.header.ScheduleMade = kTrue;
    h.load(plan);
    h.ui.setFallback(Answer::Yes);
    std::vector<DraftPickRecord> picks(kTeams);
    std::vector<ContractFuture> futures(kTeams);
    std::vector<EmailLine> mail;
    std::vector<ScheduleRecord> games;
    for (int t = 0; t < kTeams; ++t) {
      picks[At(t)] = NewDraftPicks(t);
      futures[At(t)].OwnerTeam[0][0] = u8(t), futures[At(t)].Amount[0][0] = 1000 * (t + 1);
      mail.push_back({t, "gm" + std::to_string(t) + "@example.org"});
      h.state.team(kPriority[At(t)]).Priority = u8(t);
      for (int b = t + 1; b < kTeams; ++b) {
        ScheduleRecord g;
        g.HomeTeam = u8(t), g.AwayTeam = u8(b), g.Played = games.size() < 7 ? -1 : 0;
        g.GameNumber = static_cast<i16>(games.size() + 1);
        games.push_back(g);
      }
    }
    picks[4].Pick[55] = {0, 0, 2, 4, kTrue};                        // team 4 holds team 2's pick
    picks[0].Pick[55] = {1, 3, 5, 0, kTrue};                        // team 0 holds team 5's pick
    picks[4].Pick[20] = DraftPick{};                                // a gap left by a trade
    futures[1].OwnerTeam[1][3] = 2, futures[1].Amount[1][3] = 500;  // a year owed to the team going
    futures[1].OwnerTeam[2][3] = 5, futures[1].Amount[2][3] = 600;
    auto put = [&](const char* file, const Bytes& bytes) { WriteFileAtomic(h.state.swap(file), bytes); };
    put(swp::Picks, EncodeRecords(picks));
    put(swp::Futures, EncodeRecords(futures));
    put(swp::Schedule, EncodeRecords(games));
    put(swp::Priority, kPriority);
    h.state.league.GamesPlayed = 7;
    h.state.league.LeagueGames = static_cast<i16>(games.size());
    put(swp::Waivers, EncodeRecords(std::vector<WaiverRecord>{Waived("T2 C 1", 2, 2, 255), Waived("T2 C 2", 2, 4, 4),
                                                              Waived("T5 C 1", 5, 5, 255)}));
    WriteEmailLines(h.state.swap(swp::Email), mail);
    put(swp::Career, EncodeRecords(std::vector<CareerRecord>{{2, MakePlayer("Left Two", kCentre, 50)},
                                                             {5, MakePlayer("Left Five", kCentre, 50)}}));
    std::vector<DbRecord> db;
    for (const char* name : {"T2 C 1", "T3 C 1", "Nobody Yet", "T2 D 1"})
      db.push_back({static_cast<i16>(name[0] == 'T' ? -1 : 0), MakePlayer(name, kCentre, 50)});
    put(swp::Database, EncodeRecords(db));
  }
  Harness h;
};

// Loading the saved league (the coach and roster checks) after a delete is the e2e tests'.
TEST_F(DeleteTeam, NoKeepsEverythingAndYesRenumbersEveryFileThatNamesTeams) {
  h.ui.push("no");
  Bytes roster = ReadFileBytes(h.state.swap(swp::Roster));
  EXPECT_FALSE(AlignLeague(h.state).cmdDelete(kGone));
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Roster)), roster);
  EXPECT_FALSE(h.state.Dirty);
  ASSERT_TRUE(AlignLeague(h.state).cmdDelete(kGone));
  ASSERT_EQ(h.state.numTeams(), kTeams - 1);
  EXPECT_TRUE(h.state.Dirty);
  for (int old = 0; old < kTeams; ++old) {
    if (old == kGone) continue;
    EXPECT_EQ(h.state.team(New(old)).Name.str(), "Team" + std::to_string(old));
    loadteam(h.state, New(old), 0);
    EXPECT_EQ(h.state.player(0, 0).Name.str(), "T" + std::to_string(old) + " C 1");
  }
  EXPECT_EQ(fs::file_size(h.state.swap(swp::Roster)), std::uintmax_t{(kTeams - 1) * kRosterSlots * Player::kSize});
  // Team t stood in conference (t % 4) / 2, division t % 2.
  EXPECT_EQ((std::array{TeamsIn(h.state, 0, 0), TeamsIn(h.state, 0, 1), TeamsIn(h.state, 1, 0), TeamsIn(h.state, 1, 1)}),
            (std::array<std::vector<u8>, 4>{{{0, New(4)}, {1, New(5)}, {}, {New(3)}}}));
  auto coaches = ReadRecords<Coach>(h.state.swap(swp::Coaches));
  ASSERT_EQ(coaches.size(), At(kTeams));
  for (int c = 0; c < kTeams; ++c)
    EXPECT_EQ(coaches[At(c)].Team, c == kGone ? Coach::kNoTeam : New(c) + 1) << "coach " << c;
  Bytes places = ReadFileBytes(h.state.swap(swp::Priority));
  EXPECT_EQ(places, (Bytes{New(3), New(1), New(5), New(0), New(4)}));
  for (std::size_t place = 0; place < places.size(); ++place) EXPECT_EQ(h.state.team(places[place]).Priority, place);

  // Picks follow their holders; picks made for the team going lapse and the gaps close.
  auto picks = ReadRecords<DraftPickRecord>(h.state.swap(swp::Picks));
  ASSERT_EQ(picks.size(), At(kTeams - 1));
  const auto& four = picks[New(4)];
  EXPECT_EQ(std::count_if(four.Pick.begin(), four.Pick.end(), [](const DraftPick& p) { return p.Active != 0; }), 53);
  EXPECT_EQ((std::array{int(four.Pick[53].Active), int(four.Pick[53].OrigTeam), int(four.Pick[53].Owner)}),
            (std::array{int(kTrue), int(New(4)), int(New(4))}));
  EXPECT_EQ((std::array{picks[0].Pick[55].OrigTeam, picks[0].Pick[55].Owner}), (std::array<u8, 2>{New(5), 0}));

  // The team's games go, the rest are renumbered, and the header's counts follow: of the first
  // seven games, played, five were without team 2.
  auto sched = ReadRecords<ScheduleRecord>(h.state.swap(swp::Schedule));
  ASSERT_EQ(sched.size(), 10u);
  EXPECT_EQ((std::array{sched[1].HomeTeam, sched[1].AwayTeam, sched[9].HomeTeam, sched[9].AwayTeam}),
            (std::array<u8, 4>{0, New(3), New(4), New(5)}));
  EXPECT_EQ((std::array{int(sched[9].GameNumber), int(sched[9].Played), int(sched[4].Played)}), (std::array{10, 0, -1}));
  EXPECT_EQ((std::array{int(h.state.league.GamesPlayed), int(h.state.league.LeagueGames)}), (std::array{5, 10}));

  auto w = ReadRecords<WaiverRecord>(h.state.swap(swp::Waivers));
  ASSERT_EQ(w.size(), 3u);
  EXPECT_TRUE(w[0].Name.empty());
  EXPECT_EQ((std::array{w[1].Holder, w[1].ClaimedBy, w[1].Owner}), (std::array<u8, 3>{New(4), New(4), 255}))
      << "the placing team is gone: nobody may recall him";
  EXPECT_EQ((std::array{w[2].Holder, w[2].ClaimedBy}), (std::array<u8, 2>{New(5), 255}));
  // Open is per team number: team 2's flag goes, later flags move down.
  EXPECT_EQ((std::array{w[2].Open[0], w[2].Open[At(New(3))], w[2].Open[At(New(5))], w[2].Open[5]}),
            (std::array<i16, 4>{-1, -4, -6, 0}));
  auto futures = ReadRecords<ContractFuture>(h.state.swap(swp::Futures));
  ASSERT_EQ(futures.size(), At(kTeams - 1));
  EXPECT_EQ((std::array{futures[New(5)].Amount[0][0], int(futures[New(5)].OwnerTeam[0][0])}),
            (std::array{6000, int(New(5))}));
  EXPECT_EQ(futures[1].OwnerTeam[1][3], 1);  // owed to the team going: back to its own team
  EXPECT_EQ(futures[1].OwnerTeam[2][3], New(5));
  auto mail = ReadEmailLines(h.state.swap(swp::Email));
  ASSERT_EQ(mail.size(), At(kTeams - 1));
  for (const auto& e : mail)
    EXPECT_EQ(e.address, "gm" + std::to_string(e.team < kGone ? e.team : e.team + 1) + "@example.org");
  auto career = ReadRecords<CareerRecord>(h.state.swap(swp::Career));
  ASSERT_EQ(career.size(), 1u);
  EXPECT_EQ((std::array{career[0].P.Name.str(), std::to_string(career[0].Team)}),
            (std::array<std::string, 2>{"Left Five", std::to_string(New(5))}));
  std::vector<i16> flags;
  for (const auto& d : ReadRecords<DbRecord>(h.state.swap(swp::Database))) flags.push_back(d.DbFlag);
  EXPECT_EQ(flags, (std::vector<i16>{0, -1, 0, 0})) << "the team's players are free again; team 3's stays held";
}

TEST_F(DeleteTeam, DeletingTheLastTeamLeavesAnEmptyLeague) {
  for (int t = kTeams - 1; t >= 0; --t) ASSERT_TRUE(AlignLeague(h.state).cmdDelete(t)) << t;
  EXPECT_EQ(h.state.numTeams(), 0);
  EXPECT_EQ(fs::file_size(h.state.swap(swp::Roster)), 0u);
  for (const auto& c : ReadRecords<Coach>(h.state.swap(swp::Coaches))) EXPECT_EQ(c.Team, Coach::kNoTeam);
}

// A new team's abbreviation is its own: the name's first three letters, else
// the first letter with two later ones, else the first two with a digit.
TEST(NewTeam, AbbreviationIsUnique) {
  const struct {
    std::vector<std::string> taken;
    std::string name, abbrev;
  } cases[] = {
      {{}, "Colorado", "COL"},
      {{"col"}, "Columbus", "COU"},  // taken in any case
      {{"COL", "COU"}, "Columbus", "COM"},
      {{"LA "}, "LA Kings", "LAK"},  // blanks are no letters
      {{"ABC", "AB2"}, "Abc", "AB3"},
  };
  for (const auto& c : cases) {
    Harness h;
    h.state.league.NumTeams = static_cast<u8>(c.taken.size() + 1);
    for (std::size_t t = 0; t < c.taken.size(); ++t) h.state.Teams[t].Abbrev.set(c.taken[t]);
    const int team = static_cast<int>(c.taken.size());
    EXPECT_EQ(UniqueAbbrev(h.state, team, c.name), c.abbrev) << c.name;
  }
}

}  // namespace
}  // namespace kvl::test
