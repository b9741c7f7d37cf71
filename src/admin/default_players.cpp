// The bundled player database. Each player gets a target Overall and an age;
// his ratings follow the profile of his position around that target and are
// then shifted together until the Overall formula gives the target.
#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "admin/default_data.h"
#include "admin/name_lists.h"
#include "admin/random_draws.h"
#include "league/ratings.h"

namespace kvl {

namespace {

constexpr std::uint64_t kPlayerSeed = 0x6b766c2d64727331ULL;

// Share of each position, per 1,600: enough goalies and defencemen for 50 full clubs.
constexpr std::array<int, 5> kPositionCounts{304, 288, 288, 512, 208};
static_assert(304 + 288 + 288 + 512 + 208 == kDefaultPlayers);

// Offsets from the target for Int Spd Str End Dur Dis Ska Pas Pcc Def Sco.
using Profile = std::array<int, 11>;
constexpr Profile kCentreProfile{4, 2, -2, 2, 0, 2, 2, 6, 6, -25, 0};
constexpr Profile kLeftWingProfile{0, 4, 0, 2, 0, 0, 4, 0, 3, -29, 4};
constexpr Profile kRightWingProfile{0, 4, 1, 2, 0, -1, 3, 0, 2, -29, 4};
constexpr Profile kStayAtHome{3, -2, 8, 2, 2, 0, 0, -6, -4, -13, -16};
constexpr Profile kRushingD{0, 4, 0, 2, 0, 0, 4, 4, 4, -21, -6};
// Goalies are made where their Overall looks: Spd, Pcc, Ska and Int.
constexpr Profile kGoalieProfile{6, 11, -12, 2, 0, 2, 3, -16, 8, 0, 0};

// Weights of the ages 18 to 38.
constexpr std::array<int, 21> kAgeWeights{2, 4, 6, 7, 8, 8, 8, 8, 8, 7, 7, 6, 6, 5, 4, 3, 3, 2, 1, 1, 1};

constexpr std::array<int, 15> kGoalieNumbers{1, 29, 30, 31, 32, 33, 34, 35, 37, 39, 40, 41, 50, 60, 70};
constexpr std::array<int, 20> kDefenceNumbers{2, 3, 4, 5, 6, 7, 8, 22, 24, 25, 26, 27, 28, 44, 45, 47, 55, 58, 74, 77};
constexpr std::array<int, 36> kForwardNumbers{9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 23, 26, 36, 38, 42,
                                              43, 46, 48, 49, 51, 53, 57, 61, 63, 67, 71, 73, 81, 86, 88, 91, 92, 93};

struct Range {
  int lo, hi;
};
constexpr Range kDisciplineSkater{87, 99}, kDisciplineFighter{50, 59}, kDisciplineGoalie{70, 95};
constexpr int kFighterShare = 10;  // percent of skaters
// A league keeps only goalies who stop nine shots in ten: the pool stands higher.
constexpr int kGoalieLift = 8, kBestGoalie = 93;

int Clamp(int v, int lo, int hi) { return std::max(lo, std::min(hi, v)); }

const Profile& ProfileFor(int pos, Draws& d) {
  switch (pos) {
    case kCentre: return kCentreProfile;
    case kLeftWing: return kLeftWingProfile;
    case kRightWing: return kRightWingProfile;
    case kDefence: return d.chance(30) ? kRushingD : kStayAtHome;
    default: return kGoalieProfile;
  }
}

// Young players have not reached their level yet.
int TargetOverall(int age, Draws& d) {
  int t = 40 + (d.between(0, 53) + d.between(0, 53)) / 2;
  if (age < 23) t -= (23 - age) * 2;
  return std::max(40, t);
}

// Discipline is a temper, not a skill: it does not follow the Overall. Most
// players keep their heads; a few skaters are the league's fighters.
int Discipline(int pos, Draws& d) {
  if (pos == kGoalie) return d.between(kDisciplineGoalie.lo, kDisciplineGoalie.hi);
  if (d.chance(kFighterShare)) return d.between(kDisciplineFighter.lo, kDisciplineFighter.hi);
  return d.between(kDisciplineSkater.lo, kDisciplineSkater.hi);
}

// Ratings that the shift toward the target Overall leaves alone.
bool KeptOutOfShift(int pos, int rating) {
  return rating == kDis || (pos == kGoalie && (rating == kDef || rating == kSco));  // outside a goalie's Overall
}

void SetRatings(Player& p, int target, int age, Draws& d) {
  const Profile& prof = ProfileFor(p.Pos, d);
  for (int i = 0; i < 11; ++i) p.rating(i) = static_cast<u8>(Clamp(target + prof[static_cast<std::size_t>(i)] + d.between(-6, 6), 25, 99));
  p.rating(kDis) = static_cast<u8>(Discipline(p.Pos, d));
  if (p.Pos == kGoalie) {
    p.rating(kDef) = static_cast<u8>(d.between(15, 40));
    p.rating(kSco) = static_cast<u8>(d.between(5, 25));
  }
  p.rating(kExp) = static_cast<u8>(Clamp(22 + (age - 18) * 3 + (target - 65) / 4 + d.between(-6, 6), 20, 99));
  p.rating(kLdr) = static_cast<u8>(Clamp(20 + (age - 18) * 2 + (target - 65) / 2 + d.between(-10, 10), 20, 99));
  for (int round = 0; round < 8; ++round) {
    int gap = target - Overall(p);
    if (gap == 0) break;
    for (int i = 0; i < 11; ++i) {
      if (KeptOutOfShift(p.Pos, i)) continue;
      p.rating(i) = static_cast<u8>(Clamp(p.rating(i) + gap, 25, 99));
    }
  }
}

void SetBody(Player& p, Draws& d) {
  int base = p.Pos >= kDefence ? 74 : 72;
  p.Height = static_cast<u8>(Clamp(base + d.between(-4, 4), 67, 80));
  p.Weight = static_cast<u8>(Clamp(185 + (p.Height - 72) * 6 + (p.rating(kStr) - 60) / 3 + d.between(-10, 10), 160, 245));
  int leftShare = p.Pos == kLeftWing ? 80 : p.Pos == kRightWing ? 25 : p.Pos == kGoalie ? 80 : 62;
  p.Hand = d.chance(leftShare) ? 'L' : 'R';
  if (p.Pos == kGoalie) p.Num = static_cast<u8>(d.pick(std::span<const int>(kGoalieNumbers)));
  else if (p.Pos == kDefence) p.Num = static_cast<u8>(d.pick(std::span<const int>(kDefenceNumbers)));
  else p.Num = static_cast<u8>(d.pick(std::span<const int>(kForwardNumbers)));
}

// Pay follows quality; young players are on entry deals, veterans earn a little more.
void SetContract(Player& p, Draws& d) {
  int ov = Overall(p);
  long gap = std::max(0, ov - 50);
  long pay = (250000 + gap * gap * 2200) * d.between(85, 115) / 100;
  if (p.Age <= 22) pay = std::min(pay, 925000L);
  if (p.Age >= 30) pay = pay * 110 / 100;
  p.Salary = static_cast<i32>((pay + 2500) / 5000 * 5000);
  int longest = p.Age <= 22 ? 3 : p.Age <= 30 ? (ov >= 75 ? 5 : 4) : p.Age <= 34 ? 3 : 1;
  p.Contract = static_cast<u8>(d.between(1, longest));
}

class PlayerMaker {
 public:
  PlayerMaker() : d_(kPlayerSeed) {}

  Player make(int pos) {
    Player p;
    p.Pos = static_cast<u8>(pos);
    const Birthplace& place = DrawBirthplace(d_);
    p.Birthplace.set(place.code);
    p.Name.set(DrawName(d_, *place.names, used_));
    p.Age = static_cast<u8>(18 + d_.weightedIndex(std::span<const int>(kAgeWeights)));
    p.Rookie = ToBool16(p.Age <= 21);
    p.Condition = 100;
    int target = TargetOverall(p.Age, d_);
    if (pos == kGoalie) target = std::min(target + kGoalieLift, kBestGoalie);
    SetRatings(p, target, p.Age, d_);
    SetBody(p, d_);
    SetContract(p, d_);
    return p;
  }

  Draws& draws() { return d_; }

 private:
  Draws d_;
  std::set<std::string> used_;
};

}  // namespace

std::vector<DbRecord> MakeDefaultPlayers() {
  std::vector<int> positions;
  for (int pos = 0; pos < 5; ++pos) positions.insert(positions.end(), static_cast<std::size_t>(kPositionCounts[static_cast<std::size_t>(pos)]), pos);
  PlayerMaker maker;
  maker.draws().shuffle(positions);
  std::vector<DbRecord> out;
  out.reserve(positions.size());
  for (int pos : positions) out.push_back(DbRecord{0, maker.make(pos)});
  return out;
}

}  // namespace kvl
