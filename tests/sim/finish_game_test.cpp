// After the game: streaks, the gate and the money worked by hand, the
// suspension's days, and the farm game.
#include "sim/finish_game.h"

#include <gtest/gtest.h>

#include <cmath>

#include "league/league_files.h"
#include "sim/farm_game.h"
#include "team/roster_rules.h"
#include "support/golden.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

TEST(UpdateStreak, CountsRunsAndWrapsAsTheByteDoes) {
  struct Row {
    int before, code, after;
    const char* why;
  } rows[] = {
      {0, kStreakWin, 201, "a first game starts a run"},
      {203, kStreakWin, 204, "a run goes on"},
      {203, kStreakLoss, 1, "another result starts over"},
      {105, kStreakTie, 106, "ties run too"},
      {99, kStreakLoss, 100, "a 100-game losing run reads as a tie code"},
      {255, kStreakWin, 0, "past 255 the byte wraps"},
  };
  for (const Row& r : rows) {
    Team t;
    t.Streak = static_cast<u8>(r.before);
    UpdateStreak(t, r.code);
    EXPECT_EQ(t.Streak, r.after) << r.why;
  }
}

// A set-up game between teams 0 and 1 with nobody rated 80 or more.
struct GateGame : GameFixture {
  GateGame() : GameFixture(SimLeague(4)) {
    for (int sd = 0; sd < 2; ++sd)
      for (int slot = 0; slot < kRosterSlots; ++slot) {
        Player& p = h.state.player(sd, slot);
        for (int r = 0; r < kRatingCount - 1; ++r) p.rating(r) = 50;
        p.Salary = 0;
      }
    Team& home = h.state.team(1);
    home.Ticket = 25;
    home.Seats = 30000;
    home.W[0] = 10, home.L[0] = 5, home.T[0] = 5;  // rate .625
    home.Conf = 0, home.Div = 0;
    Team& away = h.state.team(0);
    away.W[0] = away.L[0] = away.T[0] = 0;  // no games: .56
    away.Conf = 1, away.Div = 0;
  }
  // The noise the next draw will make: 0.96 to 1.05.
  double Noise() {
    Rnd copy = h.state.rnd;
    return (100 + copy(10) - 5) / 100.0;
  }
};

TEST(Attendance, WorkedByHand) {
  struct Row {
    int awayConf, awayDiv, ticket, seats;
    double rivalry;
    bool full;
    const char* why;
  } rows[] = {
      {1, 0, 25, 30000, 1.0, false, "another conference"},
      {0, 1, 25, 30000, 1.0, false, "the same conference, another division"},
      {0, 0, 25, 30000, 1.04, false, "a division rival draws more"},
      {1, 0, 25, 9000, 1.0, true, "capped by the seats"},
      {1, 0, 0, 40000, 1.0, false, "ticket 0 reads as 20, seats above 32,767 as unsigned"},
  };
  for (const Row& r : rows) {
    GateGame g;
    g.h.state.team(0).Conf = static_cast<u8>(r.awayConf), g.h.state.team(0).Div = static_cast<u8>(r.awayDiv);
    g.h.state.team(1).Ticket = static_cast<u8>(r.ticket);
    g.h.state.team(1).Seats = static_cast<i16>(r.seats);
    const double noise = g.Noise(), price = r.ticket ? r.ticket : 20;
    const double expected = 25 / std::pow(price, 1.05) * 17000 * 1.125 * (0.56 / 2 + 0.75) * r.rivalry * noise;
    EXPECT_EQ(Attendance(g.game), r.full ? r.seats : static_cast<int>(std::floor(expected))) << r.why;
  }
}

TEST(GameFinances, BooksTheGateAndBothTeamsDailyCosts) {
  GateGame g;
  LeagueState& s = g.h.state;
  s.league.OptMoney = kTrue;
  s.league.LeagueGames = 40;  // 4 teams: 20 games each
  s.league.FinancesLevel() = 5;
  for (int sd = 0; sd < 2; ++sd) {
    s.player(sd, 0).Salary = 5000000;  // slot 0 is never paid
    s.player(sd, 1).Salary = 2000000;  // dressed
    s.player(sd, 1).Suspended = 0;
    s.player(sd, 2).Salary = 3000000;  // suspended: not paid
    s.player(sd, 2).Suspended = 2;
    Player& farm = s.player(sd, 25) = MakePlayer("Farm Hand", kCentre, 50, 0);  // below TwoWayAfter: a tenth
    farm.Salary = 1000000;
    s.team(sd).Coach.Salary = 500000;
    s.team(sd).CurFin = 0;
  }
  s.league.TwoWayAfter = 10;
  GameFinances(g.game, GameNet(s, 1, 10000), 10000);  // 150,000 net at level 5
  const int daily = (2000000 + 100000 + 500000) / 20;
  EXPECT_EQ(s.team(0).CurFin, -daily);
  const Team& home = s.team(1);
  EXPECT_EQ(std::tuple(home.CurFin, home.HomeGames, home.Attendance, home.Revenue),
            std::tuple(150000 - daily, 1, 10000, 150000));
}

TEST(GameNet, FollowsTheFinancesLevel) {
  GateGame g;
  const std::pair<int, double> levels[] = {{1, 0.2}, {4, 0.5}, {5, 0.6}, {6, 1.2}, {9, 2.1}};
  for (auto [level, factor] : levels) {
    g.h.state.league.FinancesLevel() = static_cast<u8>(level);
    EXPECT_NEAR(GameNet(g.h.state, 1, 1000), 1000 * 25 * factor, 1e-6) << "level " << level;
  }
}

TEST(SuspensionDays, OneGameUnlessTheInjuryOrTheFightWasBad) {
  GameFixture f(SimLeague(4));
  GameSide& own = f.side(0);
  const int slot = kFirstD;
  struct Row {
    int victimClass, pim, low, high;
    const char* why;
  } rows[] = {
      {0, 5, 1, 1, "no injury done: one game"},
      {1, 5, 1, 1, "a light injury: one game"},
      {6, 5, 1, 5, "a grave injury: up to five"},
      {0, 25, 1, 5, "a fighting major: more may follow"},
  };
  for (const Row& r : rows) {
    f.h.state.player(1, 0).Status = static_cast<u8>(200 + r.victimClass);
    own.HurtBy[slot] = 0;
    own.PIM[slot] = r.pim;
    int most = 0;
    for (int n = 0; n < 300; ++n) {
      int days = SuspensionDays(f.game, 0, slot);
      EXPECT_GE(days, r.low) << r.why;
      EXPECT_LE(days, r.high) << r.why;
      most = std::max(most, days);
    }
    if (r.high > 1) {
      EXPECT_GT(most, 1) << r.why;
    }
  }
}

// A suspension clears the team's lines at its start and its end, as an injury
// does, so the next game dresses a replacement and then the player again; a
// for-life mark is never counted down.
TEST(Suspension, TheNextGameDressesAReplacementAndThenThePlayerAgain) {
  const int scratchD = kFirstD + 6;
  struct Row {
    int slot, before;
    bool ejected;
    int low, high;
    bool linesKept, dressedNext;
    const char* logged;
    const char* why;
  } rows[] = {
      {kFirstD, 0, true, 1, 5, false, false, " suspended ", "ejected: out, a replacement dressed"},
      {scratchD, 2, false, 1, 1, true, false, "", "one game served of two: the lines stand"},
      {scratchD, 1, false, 0, 0, false, true, " completes suspension", "served: back in the pool, and the best D"},
      {scratchD, kHoldOut, false, kHoldOut, kHoldOut, true, false, "", "a hold-out is not counted down"},
  };
  for (const Row& r : rows) {
    GameFixture f(SimLeague(4));
    LeagueState& s = f.h.state;
    s.league.OptSuspensions = kTrue;
    Player& p = s.player(0, r.slot);
    p.Suspended = static_cast<u8>(r.before);
    if (r.dressedNext)
      for (int i = 0; i < kRatingCount - 1; ++i) p.rating(i) = 95;
    if (r.ejected) f.side(0).Status[r.slot] = kEjectedSuspend;
    const std::string name = f.game.PlayerName(0, r.slot);
    const std::string page = ReadAll(FinishGame(f.game, {.kind = GameKind::RegularSeason, .gameNumber = 1, .farmLines = {}}));
    EXPECT_TRUE(p.Suspended >= r.low && p.Suspended <= r.high) << r.why << ": " << int(p.Suspended);
    EXPECT_EQ(bool(s.team(0).LinesOK), r.linesKept) << r.why;
    const std::string log = ReadAll(s.swap(swp::Transactions));
    if (*r.logged) {
      EXPECT_NE(log.find(name + " (T00)" + r.logged), std::string::npos) << r.why;
    }
    if (r.ejected) {
      EXPECT_EQ(p.Status, 100);
      EXPECT_NE(page.find(name + " receives " + std::to_string(p.Suspended) + " game suspension<BR>"),
                std::string::npos);
    }
    Game next(s);
    next.SetupGame(0, 1);
    const GameSide& side = next.sideOf(0);
    int skaters = 0;
    bool dressed = false;
    for (int i = 0; i < side.dressedCount; ++i) {
      const u8 slot = side.dressed[static_cast<std::size_t>(i)];
      skaters += s.player(0, slot).Pos != kGoalie;
      dressed = dressed || slot == r.slot;
    }
    EXPECT_EQ(skaters, 18) << r.why;
    EXPECT_EQ(dressed, r.dressedNext) << r.why;
  }
}

TEST(FarmGame, AClubWithoutAGoalieStillPlays) {
  GameFixture f(SimLeague(4));
  LeagueState& s = f.h.state;
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (s.player(1, slot).list() == 0 && s.player(1, slot).Pos == kGoalie) s.player(1, slot).Pos = kCentre;
  std::vector<std::string> box = PlayFarmGame(s, 0, 1);
  ASSERT_GE(box.size(), 3u);
  EXPECT_EQ(box[1], std::string(37, '-'));
  EXPECT_EQ(box.back().substr(box.back().rfind(", ") + 2), "unknown");
  const FarmTeam &a = s.Farm[0], &h = s.Farm[1];
  EXPECT_EQ(a.W + a.L + a.T, 1);
  EXPECT_EQ(a.GF, h.GA);
  EXPECT_EQ(a.W, h.L);
}

// The farm game to the letter: a goal weighs two in its scorer's total (four,
// one time in ten), the goalie earns a star point for each goal under three he
// lets in, and only with Farm Streak/Slump on does a farm player's condition move.
TEST(FarmGame, GoalsWeighTwoGoaliesEarnStarsAndStreaksMoveCondition) {
  for (bool streaks : {false, true}) {
    LeaguePlan plan = SimLeague(4);
    for (std::size_t t : {0u, 1u}) {
      for (int k = 0; k < 18; ++k) plan.rosters[t].push_back(MakePlayer("Farm " + std::to_string(k), k % 4, 60, 0));
      plan.rosters[t].push_back(MakePlayer("Farm G", kGoalie, 60, 0));
      for (Player& p : plan.rosters[t]) p.Condition = 95;
    }
    GameFixture f(plan);
    LeagueState& s = f.h.state;
    s.league.OptFarmStreaks = streaks;
    // Sums over a side's farm players: skaters' FarmStatD, goalies' StarPoints, everyone's condition.
    auto sums = [&](int sd) {
      std::array<int, 3> out{};
      for (int slot = 1; slot < kRosterSlots; ++slot) {
        const Player& p = s.player(sd, slot);
        if (p.empty() || p.Status != 0) continue;
        out[p.Pos == kGoalie ? 1 : 0] += p.Pos == kGoalie ? p.StarPoints : p.FarmStatD;
        out[2] += p.Condition;
      }
      return out;
    };
    int doubled = 0, moved = 0;
    for (int game = 0; game < 40; ++game) {
      const std::array<std::array<int, 3>, 2> before{sums(0), sums(1)};
      const std::array<int, 2> gf{s.Farm[0].GF, s.Farm[1].GF};
      PlayFarmGame(s, 0, 1);
      for (int sd = 0; sd < 2; ++sd) {
        const int goals = s.Farm[sd].GF - gf[sd], against = s.Farm[1 - sd].GF - gf[1 - sd];
        const std::array<int, 3> now = sums(sd);
        const int weight = now[0] - before[sd][0];
        EXPECT_TRUE(weight % 2 == 0 && weight >= 2 * goals && weight <= 4 * goals) << weight << " for " << goals;
        doubled += (weight - 2 * goals) / 2;
        EXPECT_EQ(now[1] - before[sd][1], std::max(0, 3 - against));
        moved += now[2] != before[sd][2];
      }
    }
    EXPECT_GT(doubled, 0);
    EXPECT_EQ(moved > 0, streaks);
  }
}

}  // namespace
}  // namespace kvl::test
