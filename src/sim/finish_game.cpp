#include "sim/finish_game.h"

#include <algorithm>
#include <cmath>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/transaction_log.h"
#include "reports/payroll.h"
#include "season/playoff_series.h"
#include "sim/condition.h"
#include "sim/farm_game.h"
#include "sim/injuries.h"
#include "team/roster_rules.h"
#include "util/numbers.h"

namespace kvl {

namespace {

std::size_t At(int i) { return static_cast<std::size_t>(i); }

std::string Tag(const Game& g, int sd, int slot) { return g.PlayerName(sd, slot) + " (" + g.TeamAbbrev(sd) + ")"; }

// The automatic roster dresses the team anew before its next game, as after an
// injury: a suspended player's place is filled, and a returning one is back in
// the pool it picks from.
void ClearLines(Game& g, int sd) { g.s.team(g.sideOf(sd).team).LinesOK = kFalse; }

void CountSuspension(Game& g, int sd, int slot) {
  Player& p = g.player(sd, slot);
  if (p.Suspended == 0 || p.Suspended == kHoldOut || p.Suspended == kPersonal) return;
  if (--p.Suspended != 0) return;
  AppendTransaction(g.s, Tag(g, sd, slot) + " completes suspension<BR><BR>");
  ClearLines(g, sd);
}

void SkaterStep(Game& g, int sd, int slot) {
  GameSide& own = g.sideOf(sd);
  Player& p = g.player(sd, slot);
  const int goals = own.PlayerGoals[At(slot)];
  ++p.GP;
  p.G = static_cast<u8>(p.G + goals);
  p.GSStreak = goals > 0 ? static_cast<u8>(p.GSStreak + 1) : 0;
  if (goals >= 3) {
    g.AddNote(g.PlayerName(sd, slot) + " scores a hat trick<BR>");
    ++p.HatTricks;
  }
  p.Plus = static_cast<i16>(p.Plus + own.PlusMinus[At(slot)]);
  p.PIM = static_cast<i16>(p.PIM + own.PIM[At(slot)]);
  const int ice = own.IceTime[At(slot)];
  if (ice == 0)
    RestDraw(g.s, p, g.scaled(sd, kEnd, slot));
  else if (ice > 1500)
    TireDraw(g.s, p, g.scaled(sd, kEnd, slot));
}

// The goals against a goalie are counted as they are scored, so they are not
// added again here.
void GoalieStep(Game& g, int sd, int slot) {
  GameSide& own = g.sideOf(sd);
  Player& p = g.player(sd, slot);
  const int ice = own.IceTime[At(slot)];
  if (ice == 0) return RestDraw(g.s, p, g.scaled(sd, kEnd, slot));
  ++p.GP;
  p.Shots = static_cast<i16>(p.Shots + own.ShotsOnGoalie[At(slot)]);
  p.G = static_cast<u8>(p.G + own.PIM[At(slot)]);
  p.Plus = CInt(ice / 60.0 + p.Plus);
  if (g.sideOf(Game::other(sd)).Goals == 0 && ice / 60.0 >= 45) ++p.PP;
  TireDraw(g.s, p, g.scaled(sd, kEnd, slot));
}

void Suspend(Game& g, int sd, int slot) {
  int days = SuspensionDays(g, sd, slot);
  if (!g.s.league.OptSuspensions || days <= 0) return;
  Player& p = g.player(sd, slot);
  p.Suspended = static_cast<u8>(days);
  p.Status = 100;
  ClearLines(g, sd);
  g.AddNote(g.PlayerName(sd, slot) + " receives " + NumText(days) + " game suspension<BR>");
  AppendTransaction(g.s, Tag(g, sd, slot) + " suspended " + NumText(days) + " games<BR><BR>");
}

void PlayerStep(Game& g, int sd, int slot) {
  GameSide& own = g.sideOf(sd);
  Player& p = g.player(sd, slot);
  CountSuspension(g, sd, slot);
  const i16 status = own.Status[At(slot)];
  if (status < 0) {
    if (p.injury() != 0)
      RecoverDay(g.s, own.team, sd, slot);
    else
      RestDraw(g.s, p, g.scaled(sd, kEnd, slot));
    return;
  }
  if (status == kInjured) DecideInjury(g.s, own.team, sd, slot);
  const bool pointed = own.PlayerGoals[At(slot)] > 0 || own.PlayerAssists[At(slot)] > 0;
  p.A = static_cast<u8>(p.A + own.PlayerAssists[At(slot)]);
  p.Hits = static_cast<i16>(p.Hits + own.Hits[At(slot)]);
  p.PSStreak = pointed ? static_cast<u8>(p.PSStreak + 1) : 0;
  if (p.Pos == kGoalie)
    GoalieStep(g, sd, slot);
  else
    SkaterStep(g, sd, slot);
  if (status == kEjectedSuspend) Suspend(g, sd, slot);
}

void Result(Game& g, int sd) {
  GameSide& own = g.sideOf(sd);
  Team& t = g.s.team(own.team);
  const int us = own.Goals, them = g.sideOf(Game::other(sd)).Goals;
  const bool overtime = g.OvertimeCount > 0;
  Player& goalie = g.player(sd, own.CreditGoalie);
  if (us == them) {
    ++t.T[0];
    UpdateStreak(t, kStreakTie);
    ++goalie.GT;
    if (own.TiedAt == -1) ++g.player(sd, own.Scorers[At(us)]).GT;
    if (overtime) ++t.T[1];
  } else if (us < them) {
    ++t.L[0];
    UpdateStreak(t, kStreakLoss);
    ++goalie.GW;
    if (overtime) ++t.L[1];
  } else {
    ++t.W[0];
    UpdateStreak(t, kStreakWin);
    ++goalie.SH;
    ++g.player(sd, own.Scorers[At(them + 1)]).GW;
    if (overtime) ++t.W[1];
  }
}

void TeamStep(Game& g, int sd, BoxScoreInfo& info) {
  GameSide& own = g.sideOf(sd);
  const GameSide& opp = g.sideOf(Game::other(sd));
  Team& t = g.s.team(own.team);
  t.PPO = static_cast<i16>(t.PPO + own.PowerPlays);
  t.PPG = static_cast<u8>(t.PPG + own.PowerPlayGoals);
  t.PKO = static_cast<i16>(t.PKO + opp.PowerPlays);
  t.PKG = static_cast<u8>(t.PKG + opp.PowerPlayGoals);
  t.GA = static_cast<i16>(t.GA + opp.Goals);
  t.GF = static_cast<i16>(t.GF + own.Goals);
  Result(g, sd);
  t.TeamPIM += own.TeamPIM;
  t.SF += own.Shots;
  t.SA += opp.Shots;
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (!g.player(sd, slot).empty()) PlayerStep(g, sd, slot);
  if (sd == 1) {
    info.attendance = Attendance(g);
    info.net = GameNet(g.s, own.team, info.attendance);
    GameFinances(g, info.net, info.attendance);
  }
}

// A team's share of points so far; early in the season a hopeful one.
double WinRate(const Team& t) {
  const int games = t.W[0] + t.L[0] + t.T[0];
  const double early = (6 - games) * 0.01 + 0.5;
  if (games == 0) return early;
  const double rate = (2.0 * t.W[0] + t.T[0]) / (2.0 * games);
  return games < 6 ? std::max(rate, early) : rate;
}

int Stars(const Game& g, int sd) {
  int n = 0;
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (g.sideOf(sd).Status[At(slot)] >= 0 && Overall(g.s.player(sd, slot)) >= 80) ++n;
  return n;
}

int TicketPrice(const Team& t) { return t.Ticket == 0 ? 20 : t.Ticket; }

}  // namespace

void UpdateStreak(Team& team, int code) {
  const int old = team.Streak / 100;
  const int count = old == code ? team.Streak % 100 + 1 : 1;
  team.Streak = static_cast<u8>(code * 100 + count);
}

int Attendance(Game& g) {
  LeagueState& s = g.s;
  const Team& home = s.team(g.sideOf(1).team);
  const Team& away = s.team(g.sideOf(0).team);
  double a = 25 / std::pow(TicketPrice(home), 1.05) * 17000;
  a *= (WinRate(home) + 0.5) * (1 + Stars(g, 1) / 10.0);
  a *= (WinRate(away) / 2 + 0.75) * (1 + Stars(g, 0) / 15.0);
  if (home.Conf == away.Conf && home.Div == away.Div) a *= 1.04;
  a *= (100 + g.Rnd(10) - 5) / 100.0;
  if (s.league.InPlayoffs) a *= 1.2;
  // Seats holds up to 65,535 in its 16 bits.
  const double seats = static_cast<u16>(home.Seats);
  return a > seats ? static_cast<int>(seats) : static_cast<int>(std::floor(a));
}

double GameNet(const LeagueState& s, int home, int attendance) {
  const int level = s.league.FinancesLevel();
  const double factor = level == 5 ? 0.6 : level < 5 ? (level + 1) / 10.0 : (level - 4) * 3 / 10.0 + 0.6;
  return attendance * static_cast<double>(TicketPrice(s.team(home))) * factor;
}

void GameFinances(Game& g, double net, int attendance) {
  LeagueState& s = g.s;
  if (s.league.Exhibition) return;
  Team& home = s.team(g.sideOf(1).team);
  ++home.HomeGames;
  if (!s.league.OptMoney) return;
  const int n = home.HomeGames;
  home.CurFin = static_cast<i32>(home.CurFin + net);
  // The gate's mean is kept in 16 bits, read back unsigned as Seats is.
  home.Attendance =
      static_cast<i16>(static_cast<u16>((static_cast<u16>(home.Attendance) * (n - 1.0) + attendance) / n));
  home.Revenue = static_cast<i32>((home.Revenue * (n - 1.0) + net) / n);
  if (s.league.InPlayoffs) return;
  const double games = CInt(SeasonGames(s));
  for (int sd = 0; sd < 2; ++sd) {
    Team& t = s.team(g.sideOf(sd).team);
    const double costs = ProPayroll(s, sd) + FarmPayroll(s, sd) + ProspectFees(s, sd) + t.Coach.Salary;
    if (games > 0) t.CurFin -= static_cast<i32>(std::floor(costs / games + 0.5));
  }
}

int SuspensionDays(Game& g, int sd, int slot) {
  const u8 victim = g.sideOf(sd).HurtBy[At(slot)];
  const int c = victim == kNoPlayer ? 0 : g.player(Game::other(sd), victim).injury();
  // The rating as scaled for this game: a raw one would always pass.
  const double dis = std::pow(g.scaled(sd, kDis, slot), 1.5);
  const int r = g.Rnd(c);
  int days = 1;
  if (dis + 65 - 5 * c <= g.Rnd(100) && c > 1) days = g.Rnd(3) + r * c - 1;
  if (g.sideOf(sd).PIM[At(slot)] >= 20 && dis + 50 > g.Rnd(100)) days += g.Rnd(5);
  return std::min(days, 5);
}

std::filesystem::path FinishGame(Game& g, BoxScoreInfo info) {
  LeagueState& s = g.s;
  const int away = g.sideOf(0).team, home = g.sideOf(1).team;
  if (s.league.OptFarm && !s.league.InPlayoffs) {
    info.farmLines = PlayFarmGame(s, away, home);
    info.farmPlayed = true;
  }
  if (s.league.InPlayoffs && !s.league.OffSeason) {
    const bool homeWon = g.sideOf(1).Goals > g.sideOf(0).Goals;
    SeriesWin(s, homeWon ? home : away, homeWon ? away : home);
  }
  for (int sd = 0; sd < 2; ++sd) TeamStep(g, sd, info);
  std::filesystem::path page = WriteBoxScore(g, info);
  SaveTeam(s, away, 0);
  SaveTeam(s, home, 1);
  return page;
}

}  // namespace kvl
