#include "league/ratings.h"

#include <algorithm>

#include "league/league_state.h"

namespace kvl {

namespace {

// Weights in rating order: Int Spd Str End Dur Dis Ska Pas Pcc Def Sco Exp Ldr.
using Weights = std::array<int, 13>;

constexpr Weights kOffense{3, 10, 3, 1, 1, 1, 10, 15, 12, 2, 18, 0, 0};
constexpr Weights kDefense{10, 2, 10, 2, 1, 1, 5, 1, 5, 20, 1, 0, 0};
constexpr Weights kForwardW{5, 5, 7, 3, 1, 1, 6, 10, 8, 7, 13, 1, 1};
constexpr Weights kDefensiveW{8, 5, 10, 3, 1, 1, 6, 8, 6, 13, 5, 1, 1};
constexpr Weights kOffensiveW{4, 8, 4, 3, 1, 1, 8, 11, 9, 6, 11, 1, 1};
constexpr Weights kGoalieW{5, 17, 4, 3, 1, 1, 7, 3, 8, 0, 0, 1, 1};

int WeightedSum(const Player& p, const Weights& w) {
  int s = 0;
  for (int i = 0; i < 13; ++i) s += w[static_cast<std::size_t>(i)] * p.rating(i);
  return s;
}

int Scaled(const Player& p, const Weights& w, int divisor, int added) {
  return std::min(99, WeightedSum(p, w) / divisor + added);
}

}  // namespace

int OffenseRating(const Player& p) { return Scaled(p, kOffense, 76, 5); }
int DefenseRating(const Player& p) { return Scaled(p, kDefense, 58, 0); }

int Overall(const Player& p) {
  switch (p.Pos) {
    case kCentre:
    case kLeftWing:
    case kRightWing:
      return Scaled(p, kForwardW, 68, 5);
    case kDefence: {
      bool defensive = p.rating(kDef) + p.rating(kStr) > p.rating(kSco) + p.rating(kPas);
      return Scaled(p, defensive ? kDefensiveW : kOffensiveW, 68, 5);
    }
    case kGoalie:
      return Scaled(p, kGoalieW, 53, 0);
    default:
      return 0;
  }
}

int OffenseRating(const LeagueState& s, int slot, int side) { return OffenseRating(s.player(side, slot)); }
int DefenseRating(const LeagueState& s, int slot, int side) { return DefenseRating(s.player(side, slot)); }
int Overall(const LeagueState& s, int slot, int side) { return Overall(s.player(side, slot)); }

}  // namespace kvl
