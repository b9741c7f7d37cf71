// Rough play: injuries in a scrum, penalties on either side, fights, ejections,
// serving time and goalie changes.
#include <cmath>

#include "sim/game.h"
#include "sim/penalty_tables.h"
#include "util/numbers.h"

namespace kvl {

namespace {
constexpr int kTicksPerMinute = 12;
constexpr int kMaxRedraws = 100000;
}  // namespace

void Game::PenaltyEvent() {
  notedClock = Clock;
  const int base = (5 - s.league.InjuriesLevel()) * 5 + 50;
  std::array<PenaltyCall, 2> calls{};
  for (int sd = 0; sd < 2; ++sd)
    if (Rnd(base - sideOf(sd).LineToughness) == 1) calls[sd].injuryCaused = TryInjury(sd, kNoPlayer, notedClock);
  int count = 0;
  bool hardPlay = false;
  for (int sd = 0; sd < 2; ++sd) OffencePass(sd, calls, count, hardPlay);
  bool fight = false;
  if (count != 2) {
    // Whoever hurt a man and was called for it is thrown out, to be suspended.
    for (int sd = 0; sd < 2; ++sd) {
      PenaltyCall& c = calls[sd];
      if (!calls[other(sd)].injuryCaused || c.minutes <= 0) continue;
      c.ejected = ThrownOut(sd);
      c.toBeSuspended = true;
      c.extra = 10;
    }
  } else {
    const Player& a = player(0, calls[0].offender);
    const Player& b = player(1, calls[1].offender);
    fight = std::fabs(static_cast<double>(scaled(0, kStr, calls[0].offender)) - scaled(1, kStr, calls[1].offender)) <= 2.0 &&
            scaled(0, kDis, calls[0].offender) < 6.0f && scaled(1, kDis, calls[1].offender) < 6.0f &&
            a.Pos != kGoalie && b.Pos != kGoalie && !hardPlay && AllowFight();
    if (fight) Fight(calls);
  }
  if (count != 0)
    for (int sd = 0; sd < 2; ++sd)
      if (calls[sd].minutes > 0 || calls[sd].extra > 0) BookPenalty(sd, calls[sd], calls, fight);
  if (calls[1].minutes < calls[0].minutes) ++side[1].PowerPlays;
  else if (calls[1].minutes > calls[0].minutes) ++side[0].PowerPlays;
  forceChange = true;
  Whistle();
}

void Game::OffencePass(int sd, std::array<PenaltyCall, 2>& calls, int& count, bool& hardPlay) {
  GameSide& g = sideOf(sd);
  PenaltyCall& c = calls[sd];
  u8 o = kNoPlayer;
  for (int i = 0;; ++i) {
    if (i == kMaxRedraws) Stop("no offender on the ice for " + TeamName(sd));
    o = PickOffender(sd);
    if (o == kNoPlayer) continue;
    if (player(sd, o).empty()) Stop("a blank name was picked as offender for " + TeamName(sd));
    if (g.Status[o] == kOnIce || o == g.Goalie) break;
  }
  c.offender = o;
  double w = PenaltyWeight(sd, o);
  if (calls[other(sd)].injuryCaused) {
    w += 30;
    g.HurtBy[o] = sideOf(other(sd)).lastHurt;
  }
  int r = Rnd(150);
  if (r < w / 15) {
    c.minutes = 5;
    c.kind = kMajor;
    if (g.Penalised[o] == 1) c.ejected = ThrownOut(sd);
    g.Penalised[o] = 1;
    ++count;
    hardPlay = true;
  } else if (r < w / 8) {
    c.minutes = 4;
    c.kind = kDoubleMinor;
    ++count;
    hardPlay = true;
  } else if (r < w) {
    c.minutes = 2;
    c.kind = kMinor;
    ++count;
  }
  if (c.minutes > 0 && Rnd(700) < w) {
    c.extra = 10;  // a misconduct on top
    if (g.Penalised[o] == 1) c.ejected = ThrownOut(sd);
    g.Penalised[o] = 1;
    hardPlay = true;
  }
}

void Game::Fight(std::array<PenaltyCall, 2>& calls) {
  std::array<double, 2> f{};
  for (int sd = 0; sd < 2; ++sd) {
    PenaltyCall& c = calls[sd];
    GameSide& g = sideOf(sd);
    u8 o = c.offender;
    c.minutes = 5;
    c.extra = 5;
    c.kind = kMajor;
    auto r = [&](int rating) { return static_cast<double>(g.Scaled[rating][o]); };
    f[sd] = (r(kInt) + 1.5 * r(kDis) + 2.5 * r(kStr) + Rnd(10)) * (g.Energy[o] / 100.0);
    if (g.Penalised[o] == 1) {
      c.ejected = ThrownOut(sd);
      c.extra = 15;
      g.Penalised[o] = 1;
    }
  }
  ++fights;
  if (std::fabs(f[0] - f[1]) < 5) {
    AddNote(PlayerName(0, calls[0].offender) + " and " + PlayerName(1, calls[1].offender) + " fight to a draw<BR>");
    return;
  }
  int winner = f[0] > f[1] ? 0 : 1, loser = other(winner);
  u8 w = calls[winner].offender, l = calls[loser].offender;
  AddNote(PlayerName(winner, w) + " beats up " + PlayerName(loser, l) + "<BR>");
  if (TryInjury(loser, l, notedClock)) {
    PenaltyCall& c = calls[winner];
    c.ejected = ThrownOut(winner);
    c.extra = 10;
    c.toBeSuspended = true;
    sideOf(winner).HurtBy[w] = l;
  }
}

void Game::BookPenalty(int sd, PenaltyCall& c, const std::array<PenaltyCall, 2>& calls, bool fight) {
  GameSide& g = sideOf(sd);
  u8 o = c.offender;
  g.PIM[o] += c.minutes + c.extra;
  std::string text = ShortPlayerName(sd, o) + " " + TeamAbbrev(sd) + " " +
                     PenaltyText(sd, c, calls[other(sd)].injuryCaused, fight);
  if (g.Status[o] != kInjured) g.Status[o] = kInBox;
  if (c.ejected) {
    g.Status[o] = kEjected;
    AddNote(PlayerName(sd, o) + " ejected at " + ClockText(notedClock) + " of the " + OrdinalPeriod(Period) + "<BR>");
    if (c.toBeSuspended) g.Status[o] = kEjectedSuspend;
  }
  bool goalie = player(sd, o).Pos == kGoalie;
  // A goalie never leaves his net for the box, nor does a hurt or ejected man serve.
  if (goalie || (c.injuryCaused && c.minutes > 0) || c.ejected) {
    u8 server = PickServer(sd, o);
    g.BoxTicks[server] = c.minutes * kTicksPerMinute;
    g.PenaltyKind[server] = static_cast<u8>(c.kind);
    text += " (Served by " + ShortPlayerName(sd, server) + ")";
    g.Status[server] = kInBox;
    g.Box(server);
  } else {
    g.BoxTicks[o] = g.ServeTicks[o] = c.minutes * kTicksPerMinute;
    g.PenaltyKind[o] = static_cast<u8>(c.kind);
    g.Box(o);
  }
  if (!PeriodPenalties.empty()) PeriodPenalties += ", ";
  PeriodPenalties += text;
  ++g.MenInBox;
  g.TeamPIM += c.minutes + c.extra;
  if (goalie && c.ejected) ChangeGoalie(sd);
}

u8 Game::PickOffender(int sd) {
  const GameSide& g = sideOf(sd);
  if (Rnd(60) == 1) {
    double w = std::pow(12 - static_cast<double>(g.Scaled[kDis][g.Goalie]), 2);
    if (w > Rnd(100)) return g.Goalie;
  }
  std::array<double, kSeats> w{};
  double total = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p == kNoPlayer) continue;
    w[seat] = g.terms[p].offender;
    total += w[seat];
  }
  return WalkSeats(sd, w, total);
}

double Game::PenaltyWeight(int sd, u8 slot) {
  const GameSide& g = sideOf(sd);
  double b = std::pow(12.5 - g.Scaled[kDis][slot], 2);
  int line = g.CurrentLine;
  if (line == 0 || line >= 4) b = b * 0.7;
  else if (line == 2 || line == 3) b = b * 1.3;
  return b + s.league.PenaltiesLevel() * 10 - 50;
}

std::string Game::PenaltyText(int sd, const PenaltyCall& c, bool otherHurt, bool fight) {
  int row = otherHurt ? Rnd(6) - 1 : Rnd(10) - 1;
  int pos = player(sd, c.offender).Pos;
  if (pos == kGoalie) row = Rnd(4) + 6;
  if (pos == kDefence && row == 6) row = 5;
  std::string text = "(";
  if (fight) text += "FIGHTING";
  else text += std::string(PenaltyName[row][c.kind]) + ", " + std::string(PenaltyKindName[c.kind]);
  if (c.ejected) text += ", Game Misconduct";
  else if (c.extra > 5) text += ", Misconduct";
  return text + ")";
}

// Someone off the ice sits in the box: a man of the current line if one is on
// the bench, else any skater from the bench. Never a goalie: out of the box he
// may jump straight into a skater's seat.
u8 Game::PickServer(int sd, u8 offender) {
  const GameSide& g = sideOf(sd);
  std::array<u8, kGameSlots> pool{};
  int n = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.Lines[seat][g.CurrentLine];
    if (p < kGameSlots && p != offender && g.Status[p] == kOnBench) pool[static_cast<std::size_t>(n++)] = p;
  }
  if (n == 0)
    for (int i = 0; i < g.dressedCount; ++i) {
      u8 p = g.dressed[i];
      if (p != offender && player(sd, p).Pos != kGoalie && g.Status[p] == kOnBench) pool[static_cast<std::size_t>(n++)] = p;
    }
  if (n == 0) Stop("nobody left to serve a penalty for " + TeamName(sd));
  return pool[static_cast<std::size_t>(Rnd(n) - 1)];
}

void Game::PenaltyOver(int sd, u8 slot) {
  GameSide& g = sideOf(sd);
  if (g.ServeTicks[slot] > 0) return;
  if (g.PenaltyKind[slot] == kMajor) {
    g.Bench(slot);
  } else if (g.PenaltyKind[slot] < kMajor) {
    // Out of the box straight into an empty seat.
    if (g.OnIce[3] == kNoPlayer) {
      g.OnIce[3] = slot;
      g.Status[slot] = kOnIce;
    } else if (g.OnIce[4] == kNoPlayer) {
      g.OnIce[4] = slot;
      g.Status[slot] = kOnIce;
    } else {
      g.Bench(slot);
    }
    RefreshSeatTerms(sd);
  }
  g.PenaltyKind[slot] = kNoPenalty;
}

void Game::ReleaseMinor(int sd) {
  GameSide& g = sideOf(sd);
  u8 pick = kNoPlayer;
  for (int i = 0; i < g.dressedCount; ++i) {
    u8 p = g.dressed[i];
    bool lastOfDouble = g.PenaltyKind[p] == kDoubleMinor && g.BoxTicks[p] >= 25;
    if (g.BoxTicks[p] > 0 && g.PenaltyKind[p] < kMajor && !lastOfDouble &&
        (pick == kNoPlayer || g.BoxTicks[p] < g.BoxTicks[pick]))
      pick = p;
  }
  if (pick == kNoPlayer) return;
  if (g.PenaltyKind[pick] == kDoubleMinor && g.BoxTicks[pick] > 24) {
    g.BoxTicks[pick] = 24;
    g.PenaltyKind[pick] = kMinor;
  } else {
    PenaltyOver(sd, pick);
  }
}

void Game::ChangeGoalie(int sd) {
  GameSide& g = sideOf(sd);
  int next = -1;
  for (int slot = 0; slot < kGameSlots && next < 0; ++slot)
    if (g.Status[slot] == kOnBench && player(sd, slot).Pos == kGoalie && slot != g.Goalie) next = slot;
  if (next < 0) return;
  if (g.Status[g.Goalie] != kInjured) g.Bench(g.Goalie);
  g.Goalie = static_cast<u8>(next);
  if (Clock > 5)
    AddNote(PlayerName(sd, next) + " enters game at " + ClockText(Clock) + " of " + Ordinal(Period) + " period<BR>");
  FloorGoalie(sd, next);
  ComputeTerms(sd, next);
  RefreshSeatTerms(sd);
}

// The first two fights of a game always happen; each later one is less likely.
bool Game::AllowFight() {
  if (FightAllowance == 0) FightAllowance = 1;
  double p = 2.0 / FightAllowance;
  if (Rnd() >= p) return false;
  ++FightAllowance;
  return true;
}

bool Game::ThrownOut(int sd) {
  GameSide& g = sideOf(sd);
  if (g.ChainCount == 0) g.ChainCount = 1;
  return Rnd() < 1.0 / g.ChainCount + 0.15;
}

}  // namespace kvl
