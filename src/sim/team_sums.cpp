// The team sums that every draw of play weighs: each seat adds its terms,
// weighted by energy, unless the player takes the moment off.
#include <cmath>

#include "sim/game.h"

namespace kvl {

int Game::LapseOdds(int sd) const {
  const GameSide& own = sideOf(sd);
  const GameSide& opp = sideOf(other(sd));
  int n = 20;
  auto halve = [&n] {  // to the nearest whole, ties to even: 5 halves to 2
    int q = n / 2;
    n = n % 2 != 0 && q % 2 != 0 ? q + 1 : q;
  };
  if (ManDifference(sd, other(sd)) != 0) halve();
  if (InOvertime) halve();
  if (opp.Goals == 0 && Period == 3) halve();
  if (own.Shots > 2 * opp.Shots) halve();
  return n;
}

bool Game::Lapse(int sd) { return Rnd(LapseOdds(sd)) != 1; }

namespace {

// acc starts at the manpower term; after each seat an out-of-position player
// takes 5% off everything summed so far, not only his own part.
template <class Main, class Extra>
double Accumulate(Game& game, int sd, Main main, Extra extra) {
  const GameSide& g = game.sideOf(sd);
  double acc = 0 - game.ManDifference(sd, Game::other(sd)) * game.Intensity / 5.0;
  const int odds = game.LapseOdds(sd);
  for (u8 p : g.OnIce) {
    if (p == kNoPlayer) continue;
    const SlotTerms& t = g.terms[p];
    double e = g.Energy[p] / 100.0;
    if (game.Rnd(odds) != 1) acc += main(t) * e;
    acc += extra(p, t, e);
    if (g.OutOfPosition[p]) acc *= 0.95;
  }
  return acc;
}

int Floor(double x) { return static_cast<int>(std::floor(x)); }

}  // namespace

int Game::DefenceSum(int sd) {
  const GameSide& g = sideOf(sd);
  return Floor(Accumulate(
      *this, sd, [](const SlotTerms& t) { return t.defenceMain; },
      [&](u8 p, const SlotTerms& t, double) {
        double x = 0;
        if (g.Defensive[p]) x += t.defenceDefensive;
        if (player(sd, p).Pos == kDefence) x += t.defenceD;
        return x;
      }));
}

int Game::AttackSum(int sd) {
  const GameSide& g = sideOf(sd);
  return Floor(Accumulate(
      *this, sd, [](const SlotTerms& t) { return t.attackMain; },
      [&](u8 p, const SlotTerms& t, double e) { return g.Defensive[p] ? 0.0 : t.attackFree * e; }));
}

int Game::MoveSum(int sd) {
  double acc = Accumulate(
      *this, sd, [](const SlotTerms& t) { return t.moveMain; },
      [&](u8 p, const SlotTerms& t, double) { return player(sd, p).Pos == kDefence ? 0.0 : t.moveForward; });
  return Floor(acc) - 10 * sideOf(other(sd)).LineChecking;
}

int Game::StopSum(int sd) {
  const GameSide& g = sideOf(sd);
  double acc = Accumulate(
      *this, sd, [](const SlotTerms& t) { return t.stopMain; },
      [&](u8 p, const SlotTerms& t, double) {
        double x = 0;
        if (g.Defensive[p]) x += t.stopDefensive;
        if (player(sd, p).Pos == kDefence) x += t.stopD;
        return x;
      });
  return Floor(acc) - 10 * sideOf(other(sd)).LineChecking;
}

double Game::KeepSum(int sd) {
  return Accumulate(
      *this, sd, [](const SlotTerms& t) { return t.keepMain; }, [](u8, const SlotTerms&, double) { return 0.0; });
}

int Game::ScrambleSum(int sd) {
  double acc = Accumulate(
      *this, sd, [](const SlotTerms& t) { return t.scrambleMain; }, [](u8, const SlotTerms&, double) { return 0.0; });
  return Floor(acc) - 10 * sideOf(other(sd)).LineChecking;
}

int Game::CoverSum(int sd) const {
  const GameSide& g = sideOf(sd);
  double sum = 0;
  for (u8 p : g.OnIce) {
    if (p != kNoPlayer && s.player(sd, p).Pos == kDefence) sum += g.terms[p].cover;
  }
  return Floor(sum / 2);
}

}  // namespace kvl
