// OffenseRating, DefenseRating and Overall on crafted players. Expected values
// are worked by hand from the weights: S / divisor, floored, plus the addition.
#include "league/ratings.h"

#include <map>

#include "support/kvl_test.h"

namespace kvl {
namespace {

// A player of `pos` with every rating at `base`, then the listed ratings changed.
Player Rated(int pos, int base, std::map<Rating, int> set = {}) {
  Player p;
  p.Name.set("Rated");
  p.Pos = static_cast<u8>(pos);
  for (int i = 0; i < 13; ++i) p.rating(i) = static_cast<u8>(base);
  for (auto [r, v] : set) p.rating(r) = static_cast<u8>(v);
  return p;
}

TEST(Ratings, AsWorkedByHand) {
  struct Case {
    const char* name;
    Player p;
    int offense, defense, overall;
  } cases[] = {
      // 99 x 76 / 76 + 5 = 104 -> 99; 99 x 58 / 58 = 99; forward 6732 / 68 + 5 = 104 -> 99.
      {"ForwardAll99", Rated(kCentre, 99), 99, 99, 99},
      // 5049 / 53 = 95.26: the goalie weights add to 51 over a divisor of 53.
      {"GoalieAll99", Rated(kGoalie, 99), 99, 99, 95},
      {"AllZero", Rated(kLeftWing, 0), 5, 0, 5},
      {"GoalieAllZeroHasNoAddition", Rated(kGoalie, 0), 5, 0, 0},
      {"AllFifty", Rated(kRightWing, 50), 55, 50, 55},
      {"PositionFiveHasNoOverall", Rated(5, 70), 75, 70, 0},
      {"PositionTwoFiftyFive", Rated(255, 70), 75, 70, 0},
      // Sco 5: 18 x 5 = 90 / 76 = 1.18 -> 1 + 5; forward 13 x 5 = 65 / 68 -> 0 + 5.
      {"FloorsNotRounds", Rated(kCentre, 0, {{kSco, 5}}), 6, 0, 5},
      // Def 3: 20 x 3 = 60 / 58 = 1.03; Def 2: 40 / 58 = 0.69.
      {"DefenseFloorAbove", Rated(kDefence, 0, {{kDef, 3}}), 5, 1, 5},
      {"DefenseFloorBelow", Rated(kDefence, 0, {{kDef, 2}}), 5, 0, 5},
      // Exp and Ldr only count in Overall: (99 + 99) / 68 = 2.9 -> 2 + 5.
      {"ExperienceAndLeadershipOnlyInOverall", Rated(kCentre, 0, {{kExp, 99}, {kLdr, 99}}), 5, 0, 7},
      {"SpareRatingIsIgnored", Rated(kCentre, 0, {{kRatingSpare, 255}}), 5, 0, 5},
      // Goalie: Spd 17 x 99 = 1683 / 53 = 31.75; Def and Sco weigh nothing in his Overall.
      {"GoalieSpeed", Rated(kGoalie, 0, {{kSpd, 99}}), 18, 3, 31},
      {"GoalieIgnoresDefenceAndScoring", Rated(kGoalie, 0, {{kDef, 99}, {kSco, 99}}), 31, 35, 0},
      // Forward Sco 99: 13 x 99 = 1287 / 68 = 18.9 -> 23; offense 1782 / 76 = 23.4 -> 28.
      {"ForwardScoring", Rated(kCentre, 0, {{kSco, 99}}), 28, 1, 23},
      // 255 means no rating, but the sums take it as a number: 255 + 5 capped.
      {"NoRatingCountsAs255", Rated(kCentre, 255), 99, 99, 99},
      {"OneRating255", Rated(kCentre, 0, {{kSco, 255}}), 65, 4, 53},
      // Def + Str = 100 = Sco + Pas: a tie is offensive: 3420 / 68 = 50.3 -> 55
      // (the defensive row would give 3370 / 68 = 49.6 -> 54). Offense 3850 / 76,
      // defense 3000 / 58.
      {"DefencemanTieIsOffensive", Rated(kDefence, 50, {{kDef, 60}, {kStr, 40}, {kSco, 70}, {kPas, 30}}), 55, 51, 55},
      // Def + Str = 101: defensive, 3383 / 68 = 49.75 -> 54 (offensive 3426 / 68 -> 55).
      {"DefencemanDefensive", Rated(kDefence, 50, {{kDef, 61}, {kStr, 40}, {kSco, 70}, {kPas, 30}}), 55, 52, 54}};
  for (const Case& c : cases) {
    EXPECT_EQ(OffenseRating(c.p), c.offense) << c.name;
    EXPECT_EQ(DefenseRating(c.p), c.defense) << c.name;
    EXPECT_EQ(Overall(c.p), c.overall) << c.name;
  }
}

TEST(Ratings, BufferedFormReadsSlotOfSide) {
  test::Harness h;
  h.state.player(1, 3) = Rated(kGoalie, 99);
  h.state.player(0, 3) = Rated(kCentre, 99);
  h.state.player(1, 50) = Rated(kDefence, 0, {{kDef, 3}});
  EXPECT_EQ(Overall(h.state, 3, 1), 95);
  EXPECT_EQ(Overall(h.state, 3, 0), 99);
  EXPECT_EQ(DefenseRating(h.state, 50, 1), 1);
  EXPECT_EQ(OffenseRating(h.state, 50, 1), 5);
}

}  // namespace
}  // namespace kvl
