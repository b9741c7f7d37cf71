// The team sums that every draw of play weighs: each seat adds its terms,
// weighted by energy, unless the player takes the moment off.
#include <cmath>

#include "sim/game.h"

namespace kvl {

// 20 halved to the nearest whole, ties to even, once for each condition that
// holds: 20, 10, 5, 2 (5 halves to 2), 1.
int Game::LapseOdds(int sd) const {
  static constexpr std::array<int, 5> kOdds{20, 10, 5, 2, 1};
  const GameSide& own = sideOf(sd);
  const GameSide& opp = sideOf(other(sd));
  int halvings = (ManDifference(sd, other(sd)) != 0) + InOvertime + (opp.Goals == 0 && Period == 3) +
                 (own.Shots > 2 * opp.Shots);
  return kOdds[static_cast<std::size_t>(halvings)];
}

bool Game::Lapse(int sd) { return RndAboveOne(LapseOdds(sd)); }

void Game::RefreshSeatTerms(int sd) {
  GameSide& g = sideOf(sd);
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p == kNoPlayer) continue;
    const SlotTerms& t = g.terms[p];
    const bool defensive = g.Defensive[p] != 0, defence = player(sd, p).Pos == kDefence;
    SeatTerms& st = g.seatTerms[seat];
    st.main = {t.defenceMain, t.attackMain, t.moveMain, t.stopMain, t.keepMain, t.scrambleMain};
    auto sum = [](bool first, double a, bool second, double b) {
      double x = 0;
      if (first) x += a;
      if (second) x += b;
      return x;
    };
    st.rest = {sum(defensive, t.defenceDefensive, defence, t.defenceD),
               sum(!defensive, t.attackFree, false, 0),  // weighed by energy
               sum(!defence, t.moveForward, false, 0),
               sum(defensive, t.stopDefensive, defence, t.stopD),
               0,
               0};
    st.outOfPosition = g.OutOfPosition[p] != 0;
    st.defence = defence;
  }
}

namespace {

int Floor(double x) { return static_cast<int>(std::floor(x)); }

}  // namespace

// acc starts at the manpower term; after each seat an out-of-position player
// takes 5% off everything summed so far, not only his own part.
template <TeamSum kSum>
double Game::SeatSum(int sd) {
  const GameSide& g = sideOf(sd);
  double acc = 0 - ManDifference(sd, other(sd)) * Intensity / 5.0;
  const int odds = LapseOdds(sd);
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p == kNoPlayer) continue;
    const SeatTerms& t = g.seatTerms[seat];
    double e = g.Energy[p] / 100.0;
    if (RndAboveOne(odds)) acc += t.main[kSum] * e;
    acc += kSum == kAttackSum ? t.rest[kSum] * e : t.rest[kSum];
    if (t.outOfPosition) acc *= 0.95;
  }
  return acc;
}

int Game::DefenceSum(int sd) { return Floor(SeatSum<kDefenceSum>(sd)); }

int Game::AttackSum(int sd) { return Floor(SeatSum<kAttackSum>(sd)); }

int Game::MoveSum(int sd) { return Floor(SeatSum<kMoveSum>(sd)) - 10 * sideOf(other(sd)).LineChecking; }

int Game::StopSum(int sd) { return Floor(SeatSum<kStopSum>(sd)) - 10 * sideOf(other(sd)).LineChecking; }

double Game::KeepSum(int sd) { return SeatSum<kKeepSum>(sd); }

int Game::ScrambleSum(int sd) { return Floor(SeatSum<kScrambleSum>(sd)) - 10 * sideOf(other(sd)).LineChecking; }

int Game::CoverSum(int sd) const {
  const GameSide& g = sideOf(sd);
  double sum = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p != kNoPlayer && g.seatTerms[seat].defence) sum += g.terms[p].cover;
  }
  return Floor(sum / 2);
}

}  // namespace kvl
