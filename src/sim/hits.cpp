// Checks that land, and injuries in play.
#include <cmath>

#include "sim/game.h"

namespace kvl {

namespace {

// The smarter the hitter, the more often his check lands.
int HitThreshold(int intelligence) {
  if (intelligence <= 40) return 10;
  if (intelligence <= 60) return 20;
  if (intelligence <= 70) return 30;
  if (intelligence <= 80) return 40;
  if (intelligence <= 90) return 50;
  return 60;
}

// The first `seats` seats weighted by a rating byte of their players; the total.
double ByteWeights(const Game& g, int sd, int rating, int seats, std::array<double, kSeats>& w) {
  double total = 0;
  for (int seat = 0; seat < seats; ++seat) {
    u8 p = g.sideOf(sd).OnIce[seat];
    w[seat] = p == kNoPlayer ? 0 : g.s.player(sd, p).rating(rating);
    total += w[seat];
  }
  return total;
}

}  // namespace

void Game::Hits() {
  GameSide& def = sideOf(Defender);
  std::array<double, kSeats> w{};
  double total = ByteWeights(*this, Defender, kInt, kSeats, w);
  int d = Rnd(200);
  u8 hitter = WalkSeats(Defender, w, total);
  if (hitter == kNoPlayer) return;
  int t = HitThreshold(player(Defender, hitter).rating(kInt));
  if (s.league.InPlayoffs) t += 10;
  if (d >= t) return;
  ++def.Hits[hitter];
  whogothit();
}

void Game::whogothit() {
  GameSide& att = sideOf(Attacker);
  int seats = att.OnIce[4] != kNoPlayer ? 5 : att.OnIce[3] != kNoPlayer ? 4 : 3;
  std::array<double, kSeats> w{};
  double total = ByteWeights(*this, Attacker, kStr, seats, w);
  Rnd(200);  // drawn and never used; it still takes its random number
  u8 victim = WalkSeats(Attacker, w, total);
  if (victim == kNoPlayer) return;
  att.Energy[victim] = static_cast<float>(att.Energy[victim] - (11 - player(Attacker, victim).rating(kSka) / 10));
}

bool Game::TryInjury(int sd, u8 slot, int clock) {
  if (!s.league.OptInjuries) return false;
  GameSide& g = sideOf(sd);
  if (slot == kNoPlayer) {
    bool goalieDraw = Rnd(25) == 1;
    if (goalieDraw && !g.goalieHurt) {
      slot = g.Goalie;
    } else {
      slot = g.OnIce[static_cast<std::size_t>(Rnd(5) - 1)];
      if (slot == kNoPlayer) return false;
    }
  }
  const int limit = 120 + (s.league.PenaltiesLevel() - 5) * 5;
  if (player(sd, slot).empty()) Stop("a blank name was picked for an injury on " + TeamName(sd));
  if (Rnd(limit) <= player(sd, slot).rating(kDur)) return false;  // he shrugs it off
  g.Status[slot] = kInjured;
  if (slot == g.Goalie) {
    ChangeGoalie(sd);
    g.goalieHurt = true;
    g.goalieHurtScore = g.Goals;
  }
  AddNote(PlayerName(sd, slot) + " injured at " + ClockText(clock) + " of the " + OrdinalPeriod(Period) + "<BR>");
  g.lastHurt = slot;
  ++g.injuries;
  return true;
}

}  // namespace kvl
