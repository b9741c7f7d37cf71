// The trade office: the deadline, the values, and what a trade moves. The judgement, the cash entry,
// the roster and prospect limits and picks beyond the draft rounds are the forms transcript's
// (e2e/golden/forms_trade.txt); a whole trade shown on both rosters, in the money, picks, career file
// and log, and saved, is the demo's (e2e/golden/trade.txt).
#include "transactions/trade_office.h"

#include <fstream>

#include "league/ratings.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "transactions/draft_picks.h"

namespace kvl {
namespace {

TEST(TradeDeadline, ComparesTheShareOfGamesPlayedWithTheDeadline) {
  struct Case {
    bool scheduleMade, seasonOver;
    int deadline, played, games;
    bool passed;
  } cases[] = {
      {false, false, 80, 900, 1000, false},  // without a schedule trading is open
      {false, true, 80, 0, 1000, false},     // the season-over flag counts only with a schedule
      {true, false, 80, 800, 1000, false},   // the last day allowed: equal fractions
      {true, false, 80, 801, 1000, true},   {true, false, 50, 41, 82, false},  // 41/82 is exactly one half
      {true, false, 49, 41, 82, true},      {true, true, 100, 0, 1000, true}, {true, false, 0, 1, 1000, true},
  };
  for (const auto& c : cases) {
    League lg;
    lg.ScheduleMade = c.scheduleMade ? kTrue : 0;
    lg.SeasonOver = c.seasonOver ? kTrue : 0;
    lg.TradeDeadline = static_cast<u8>(c.deadline);
    lg.GamesPlayed = static_cast<i16>(c.played);
    lg.LeagueGames = static_cast<i16>(c.games);
    EXPECT_EQ(TradeDeadlinePassed(lg), c.passed) << c.deadline << "% at " << c.played << "/" << c.games;
  }
}

TEST(TradeValue, PicksFallByRoundAndYear) {
  struct Row {
    int round, year;
    double value;
  };
  const Row rows[] = {{0, 0, 5000}, {0, 1, 4500}, {1, 0, 3333}, {2, 1, 2075}, {3, 0, 1646}};
  for (const Row& r : rows) {
    DraftPick p;
    p.Round = static_cast<u8>(r.round);
    p.CurrentYear = static_cast<u8>(r.year);
    EXPECT_NEAR(PickTradeValue(p), r.value, 1.0) << "round " << r.round + 1 << " year " << r.year;
  }
}

TEST(TradeValue, PlayersByAgeRatingAndSalary) {
  Player base = test::MakePlayer("Base Player", kCentre, 60);
  ASSERT_EQ(Overall(base), 65);
  // 6.5^4.7 + 15^2 + 2 x (100 + 40^2.72 / 100 + 180 - 500)
  EXPECT_NEAR(PlayerTradeValue(base), 6858.134, 0.001);
  auto with = [&](int age, i32 salary) {
    Player p = base;
    p.Age = static_cast<u8>(age);
    p.Salary = salary;
    return PlayerTradeValue(p);
  };
  // The age term is squared: 30 and 50 are worth the same, 40 least; each
  // thousand dollars of salary costs two points.
  EXPECT_DOUBLE_EQ(with(30, 500000), with(50, 500000));
  EXPECT_NEAR(with(30, 500000) - with(40, 500000), 100.0, 1e-9);
  EXPECT_NEAR(with(25, 500000) - with(25, 501000), 2.0, 1e-9);
  Player weak = base;
  for (int i = 0; i < 13; ++i) weak.rating(i) = 5;
  ASSERT_LT(Overall(weak), 25);
  EXPECT_THROW(PlayerTradeValue(weak), KvlError);
}

TEST(TradeValue, CashAsTheListShowsIt) {
  for (auto [text, amount] : {std::pair{"", 0}, {"0", 0}, {"$1,500", 1500}, {"$2,345,678", 2345678}})
    EXPECT_EQ(CashShown(text), amount) << text;
}

// A standard league of four with picks, prospects and money; office on teams 0 and 1. The office's own
// refusals, which the command line's checks come before.
struct TradeFixture : ::testing::Test {
  test::Harness h;
  void SetUp() override {
    test::LeaguePlan plan = test::StandardLeague(4);
    plan.header.DraftRounds = 3;
    plan.header.CurrentYear = 2026;
    for (auto& t : plan.teams) t.CurFin = 1000000;
    h.load(plan);
    MakeDraftPicks(h.state);
    for (int t = 0; t < 2; ++t) {
      loadteam(h.state, t, 0);
      h.state.Prospects[0].Name[0].set("Prospect " + std::to_string(t));
      h.state.Prospects[0].Age[0] = 18;
      SaveTeam(h.state, t, 0);
    }
  }
};

TEST_F(TradeFixture, WhatASideDoesNotHoldIsNamedAndNothingMoves) {
  TradeOffice office(h.state, 0, 1);
  struct Row {
    TradeSelection sel;
    const char* told;
  };
  const Row rows[] = {
      {{{40}, {}, {}}, "Team0 holds no player at 40 to trade."},
      {{{}, {3}, {}}, "Team0 holds no prospect at 3 to trade."},
      {{{}, {}, {60}}, "Team0 holds no pick at 60 to trade."},
  };
  for (const Row& r : rows) {
    EXPECT_FALSE(office.cmdExecute({r.sel, TradeSelection{}}));
    EXPECT_TRUE(h.ui.told(r.told, "Trade")) << r.told;
    EXPECT_EQ(office.cmdAssess({r.sel, TradeSelection{}}), "");
  }
  EXPECT_EQ(office.lstPlayers(0).size(), 24u);
  std::array<TradeSelection, 2> self;
  self[0].players = {0};
  const std::size_t calls = h.ui.calls().size();
  EXPECT_FALSE(TradeOffice(h.state, 2, 2).cmdExecute(self)) << "the same team on both sides";
  EXPECT_EQ(h.ui.calls().size(), calls);
}

TEST_F(TradeFixture, LinesFilesGoWithProPlayersAndFuturesFollowThePlayer) {
  const auto lns = [&](int t) { return h.state.AppPath / (h.state.LeagueShort + std::to_string(t) + ".lns"); };
  for (int t = 0; t < 2; ++t) {
    std::ofstream(lns(t)) << "lines";
    h.state.team(t).LinesOK = kTrue;
  }
  ContractFuture future;
  future.Value[0] = 7;
  future.OwnerTeam[0][0] = 0;
  future.OwnerTeam[1][0] = 3;
  future.Amount[4][0] = 5000;
  RecordFile(h.state.swap(swp::Futures), ContractFuture::kSize).putRecord(1, future);
  RecordFile(h.state.swap(swp::Futures), ContractFuture::kSize).putRecord(2, ContractFuture{});
  loadteam(h.state, 0, 0);
  h.state.player(0, 0).Contract = 0;  // his future is in the file
  SaveTeam(h.state, 0, 0);

  TradeOffice office(h.state, 0, 1);
  const int minor = office.lstPlayers(1).back().index;
  ASSERT_EQ(h.state.player(1, minor).Status, 0);
  std::array<TradeSelection, 2> sel;
  sel[0].players = {0};
  sel[1].players = {minor};
  ASSERT_TRUE(office.cmdExecute(sel));
  // Team 0 lost a pro player; a minor leaguer's team keeps its lines file.
  EXPECT_EQ((std::array{fs::exists(lns(0)), fs::exists(lns(1))}), (std::array{false, true}));
  EXPECT_EQ(h.state.team(0).LinesOK + h.state.team(1).LinesOK, 0);
  // He took the minor leaguer's freed slot; the old team becomes the new, another team's entry stays.
  const ContractFuture f = RecordFile(h.state.swap(swp::Futures), ContractFuture::kSize).getRecord<ContractFuture>(2);
  const auto m = static_cast<std::size_t>(minor);
  EXPECT_EQ((std::array{int(f.Value[m]), int(f.OwnerTeam[0][m]), int(f.OwnerTeam[1][m]), int(f.Amount[4][m])}),
            (std::array{7, 1, 3, 5000}));
}

std::vector<CareerRecord> Career(LeagueState& s) { return test::ReadRecords<CareerRecord>(s.swap(swp::Career)); }

TEST_F(TradeFixture, ExecutionMarksPlayersWithGamesWritesTheLogAndTheHistoryAndClearsTheCash) {
  loadteam(h.state, 0, 0);
  h.state.player(0, 0).GP = 3;
  SaveTeam(h.state, 0, 0);
  TradeOffice office(h.state, 0, 1);
  const Player a0 = h.state.player(0, 0), a1 = h.state.player(0, 1), b0 = h.state.player(1, 3);
  std::array<TradeSelection, 2> sel;
  sel[0].players = {0, 1};
  sel[0].prospects = {0};
  sel[0].picks = {office.lstPicks(0)[1].index};
  sel[1].players = {3};
  ASSERT_TRUE(office.EnterCash(0, "250000"));
  ASSERT_TRUE(office.cmdExecute(sel));
  std::string traded;
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (h.state.player(1, slot).Traded) traded += h.state.player(1, slot).Name.str();
  EXPECT_EQ(traded, a0.Name.str()) << "the player with games only";
  ASSERT_EQ(Career(h.state).size(), 1u);
  EXPECT_EQ(Career(h.state)[0].Team, 0);
  EXPECT_EQ((std::array{office.lstProspects(0).size(), office.lstProspects(1).size()}),
            (std::array<std::size_t, 2>{0, 2}));
  EXPECT_EQ(office.txtCash(0), "0");
  const std::string text = "To Team1: " + a0.Name.str() + ", " + a1.Name.str() +
                           ", Prospect 0, 2027 Rnd 2 T00, $250,000<BR>\r\nTo Team0: " + b0.Name.str() +
                           "<BR>\r\n<BR>\r\n";
  EXPECT_EQ(test::ReadAll(h.state.swap(swp::Transactions)), text);
  EXPECT_EQ(test::ReadAll(h.state.swap(swp::History)), text);
}

TEST_F(TradeFixture, TradeSplitKeepsEachTeamsShareOfTheSeason) {
  Player p = test::MakePlayer("Much Traveled", kCentre, 60);
  p.GP = 30, p.G = 10, p.Hits = 40, p.Plus = -3;
  CareerRecord first{2, p};
  first.P.GP = 12, first.P.G = 4, first.P.Hits = 15, first.P.Plus = 2;
  CareerRecord other{3, test::MakePlayer("Someone Else", kCentre, 60)};
  other.P.GP = 50;
  {
    RecordFile f(h.state.swap(swp::Career), CareerRecord::kSize);
    f.putRecord(1, first);
    f.putRecord(2, other);
  }
  TradeSplit(h.state, p, 1);  // leaves team 1: 18 games there, a new line
  std::vector<CareerRecord> v = Career(h.state);
  ASSERT_EQ(v.size(), 3u);
  EXPECT_EQ((std::array{int(v[2].Team), int(v[2].P.GP), int(v[2].P.G), int(v[2].P.Hits), int(v[2].P.Plus)}),
            (std::array{1, 18, 6, 25, -5}));
  p.GP = 35, p.G = 11;
  TradeSplit(h.state, p, 2);  // back at team 2 for 5 more: added to its line in place
  v = Career(h.state);
  ASSERT_EQ(v.size(), 3u);
  EXPECT_EQ((std::array{int(v[0].P.GP), int(v[0].P.G)}), (std::array{17, 5}));
  EXPECT_EQ(v[1].P.GP, 50) << "another player's line is untouched";
  Player fresh = test::MakePlayer("No Games Yet", kCentre, 60);
  TradeSplit(h.state, fresh, 0);
  EXPECT_EQ(Career(h.state).size(), 3u) << "no line for a player without games";
}

}  // namespace
}  // namespace kvl
