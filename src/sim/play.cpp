// The tick loop: periods, face-offs, moving the puck, and the clock.
#include <algorithm>
#include <bit>
#include <cmath>

#include "sim/game.h"
#include "util/numbers.h"

namespace kvl {

void Game::PlayGame(int away, int home) {
  Intensity = 350;
  GoalieChanged = {0, 0};
  team = {away, home};
  side[0].team = away;
  side[1].team = home;
  auto finish = [&] {
    if (!opt.isExhibition && opt.finish) opt.finish(*this);
  };
  // A team paired with itself is the schedule's mark of an empty game.
  if (away == home) return finish();
  SetupGame(away, home);
  SetLine(Attacker, 0);
  SetLine(Defender, 0);
  // An exhibition changes nothing of the league, so it leaves the mark alone.
  if (!opt.isExhibition) s.Dirty = true;
  do {
    PlayPeriod();
    EndPeriod();
  } while (!EndOfPeriodRules());
  finish();
}

void Game::PlayPeriod() {
  ++Period;
  PeriodPenalties.clear();
  PlayByPlay.push_back("<BR>");
  PlayByPlay.push_back(Period >= 4 ? "<B>Overtime</B><BR>" : "<B>Period " + NumText(Period) + "</B><BR>");
  Clock = 1;
  Zone = 2;
  FaceOff();
  const int penaltiesLevel = s.league.PenaltiesLevel();
  while (Clock < PeriodLength) {
    if (InAttackingZone(Attacker)) {
      if (ShootOrLose() == 1) TakeShot();
      else BattleForPuck();
    } else {
      MovePuck();
    }
    // Disciplined lines on both sides make a penalty less likely.
    int t = static_cast<u8>(sideOf(0).LineDiscipline + sideOf(1).LineDiscipline);
    int n = static_cast<int>(std::floor(t * 1.8)) - (penaltiesLevel - 5);
    if (Rnd(n) == 1 && Clock >= 4) PenaltyEvent();
    Tick();
  }
}

// Overtime after a tied third period; a playoff game repeats overtime until
// somebody scores. True when the game is over.
bool Game::EndOfPeriodRules() {
  bool tied = sideOf(0).Goals == sideOf(1).Goals;
  if (Period == 3 && tied) {
    Periods = 4;
    InOvertime = true;
    OvertimeCount = 1;
    PeriodLength = s.league.SeasonOver ? 1200 : 300;
  }
  if (Period >= 4 && tied && s.league.InPlayoffs) {
    Period = 3;
    ++OvertimeCount;
  }
  return Period >= Periods;
}

void Game::FaceOff() {
  auto strength = [&](int sd) {
    u8 c = sideOf(sd).OnIce[0];
    return c == kNoPlayer ? 0.0 : sideOf(sd).terms[c].faceoff;
  };
  double s0 = strength(Attacker), s1 = strength(Defender);
  int r = Rnd(std::floor(s0 + s1));
  if (r > s0) SwapPuck();
}

int Game::ShootOrLose() {
  const int shotsLevel = s.league.ShotsLevel();
  double pace = 0;
  if (Period < 4) {
    // Behind its shot target a side shoots more: every game comes back toward it.
    double x = (((Period - 1) * 1200 + Clock) / 3600.0) * (shotsLevel + 24);
    pace = 60 * (x - sideOf(Attacker).Shots);
  }
  double d = 3400 + std::floor(14.0 * DefenceSum(Defender)) + 100 * Defender;
  double a = 1550 + (shotsLevel * 50 - 250) - 400 * ManDifference(Attacker, Defender) + 2.0 * AttackSum(Attacker) + pace;
  return Rnd(d + a) > d ? 1 : 0;
}

void Game::BattleForPuck() {
  int m = ManDifference(Attacker, Defender);
  double steal = 3.5 * StopSum(Defender) + 700 - 1400 * m;
  double keep = 3 * KeepSum(Attacker) + 700 - 1400 * m;
  if (Rnd(steal + keep) <= steal) SwapPuck();
}

void Game::MovePuck() {
  double d = 3.0 * StopSum(Defender) + 1600 - 1600 * ManDifference(Defender, Attacker) + 100 * Defender;
  int a = 2 * MoveSum(Attacker) + 1400 - 1600 * ManDifference(Attacker, Defender);
  int ba = static_cast<int>(std::floor(a * 0.97));
  int r = Rnd(d + a);
  // A short side in its own end clears before the draw is looked at.
  if (InDefensiveZone(Attacker) == 1 && ManDifference(Attacker, Defender) > 0) {
    Zone = 2;
    SwapPuck();
  }
  if (r <= d) {
    Hits();
    SwapPuck();
  } else {
    Zone = std::clamp(Zone + (Attacker == 1 ? -1 : 1), 1, 3);
    if (r - d > ba) {
      IsBreakaway = 1;
      ++Breakaways[static_cast<std::size_t>(Attacker)];
      Zone = Attacker == 0 ? 3 : 1;
      TakeShot();
    }
  }
  if (InAttackingZone(Attacker) == 1 && Offside(Attacker) == 1) {
    Zone = 2;
    Whistle();
  }
}

int Game::Offside(int sd) {
  const GameSide& g = sideOf(sd);
  int count = 0;
  double sum = 0;
  for (u8 p : g.OnIce) {
    if (p == kNoPlayer || player(sd, p).Pos == kDefence) continue;
    ++count;
    sum += static_cast<double>(g.Scaled[kSka][p]) + g.Scaled[kPcc][p];
  }
  return Rnd(20.0 * count) > sum ? 1 : 0;
}

void Game::LooseRebound() {
  int a = ScrambleSum(Defender) + 1600 - 1300 * ManDifference(Defender, Attacker) + 100 * Defender;
  int b = ScrambleSum(Attacker) + 1600 - 1300 * ManDifference(Attacker, Defender);
  // The scramble is drawn and not looked at: the sums and the draw still take
  // their random numbers.
  Rnd(static_cast<double>(a) + b);
  if (InDefensiveZone(Attacker) == 1) {
    u8 g = sideOf(Defender).Goalie;
    bool cleared = static_cast<double>(scaled(Defender, kPas, g)) + scaled(Defender, kSka, g) > Rnd(100);
    SwapPuck();
    if (cleared) Zone = 2;
  } else {
    SwapPuck();
  }
  // A short side that wins the puck in its own end may ice it.
  if (InDefensiveZone(Attacker) == 1 && ManDifference(Attacker, Defender) > 0 && Rnd(500) > CoverSum(Defender)) {
    Zone = 2;
    Tick();
    Tick();
    SwapPuck();
  }
}

void Game::Tick() {
  Clock += 5;
  if (Clock >= 1200) return;
  TickSide(0);
  TickSide(1);
}

void Game::TickSide(int sd) {
  GameSide& g = sideOf(sd);
  const double wear = sideOf(other(sd)).LineToughness / 4.0 + 13;
  g.IceTime[g.Goalie] = static_cast<i16>(g.IceTime[g.Goalie] + 5);
  // Box time first: it changes no one's energy but his own status.
  int inBox = 0;
  for (std::uint64_t bits = g.boxed; bits != 0; bits &= bits - 1) {
    const int slot = std::countr_zero(bits);
    int& box = g.BoxTicks[static_cast<std::size_t>(slot)];
    if (box > 0) {
      if (--box > 0) ++inBox;
      else PenaltyOver(sd, static_cast<u8>(slot));
    }
    int& serve = g.ServeTicks[static_cast<std::size_t>(slot)];
    if (serve > 0 && --serve == 0 && g.Status[static_cast<std::size_t>(slot)] < kInjured) g.Bench(slot);
    if (box <= 0 && serve <= 0) g.boxed &= ~(std::uint64_t{1} << slot);
  }
  g.MenInBox = static_cast<u8>(inBox);
  // Whoever is on the ice sits in a seat.
  for (u8 slot : g.OnIce) {
    if (slot == kNoPlayer || g.Status[slot] != kOnIce) continue;
    g.Energy[slot] = static_cast<float>(g.Energy[slot] - (wear - g.endurance[slot]) / 12);
    g.IceTime[slot] = static_cast<i16>(g.IceTime[slot] + 5);
  }
  // On the bench a player gets energy back up to his condition; once there,
  // or off the bench, he leaves the set until he is benched again.
  for (std::uint64_t bits = g.recovering; bits != 0; bits &= bits - 1) {
    const int slot = std::countr_zero(bits);
    const std::size_t i = static_cast<std::size_t>(slot);
    if (g.Status[i] == kOnBench && g.Energy[i] < g.energyCap[i])
      g.Energy[i] = static_cast<float>(std::min(g.Energy[i] + g.recovery[i], g.energyCap[i]));
    if (g.Status[i] != kOnBench || g.Energy[i] >= g.energyCap[i]) g.recovering &= ~(std::uint64_t{1} << slot);
  }
  if (MeanEnergy(sd) < 90 && InDefensiveZone(sd) != 1) NextLine(sd, other(sd));
}

void Game::Whistle() {
  forceChange = true;
  NextLine(Attacker, Defender);
  forceChange = true;
  NextLine(Defender, Attacker);
  FaceOff();
}

}  // namespace kvl
