#pragma once
// One side of a game in progress: who is dressed, on the ice and in the box,
// the ratings as scaled for this game, and what the side did. Built when a
// game is set up and thrown away after the box score.
#include <array>
#include <cstdint>

#include "league/records.h"

namespace kvl {

constexpr int kGameSlots = 50;
constexpr int kSeats = 5;
constexpr int kGoalieRow = 12;

// In-game status of a slot.
enum SlotStatus : i16 {
  kNotDressed = -1,
  kOnBench = 0,
  kOnIce = 1,
  kInBox = 2,
  kInjured = 3,
  kEjected = 4,
  kEjectedSuspend = 5,
};

// The parts of the team sums that depend on ratings alone. Ratings do not
// change during a game, so these are computed once and a tick only weighs
// them by energy.
struct SlotTerms {
  double defenceMain = 0, defenceDefensive = 0, defenceD = 0;
  double attackMain = 0, attackFree = 0;
  double moveMain = 0, moveForward = 0;
  double stopMain = 0, stopDefensive = 0, stopD = 0;
  double keepMain = 0;
  double scrambleMain = 0;
  double faceoff = 0;
  double cover = 0;      // a defenceman's part of the cover in front of his goalie
  // The powers of the shot and the penalty draws.
  double passer = 0;        // weight as the passer of a shot
  double secondAssist = 0;  // weight for the second assist
  double passBonus = 0;     // what his pass adds to the shot
  double shot = 0;          // the power of his shot
  double offender = 0;      // weight as the offender of a penalty
  double goalie = 0;        // in goal: his value before the cover and his condition
  double holdsGround = 0;   // in goal: his odds of holding on a breakaway
  double rebound = 0;       // in goal: his odds of smothering a shot
};

// The team sums, in the order of a seat's terms.
enum TeamSum : int { kDefenceSum, kAttackSum, kMoveSum, kStopSum, kKeepSum, kScrambleSum, kTeamSums };

// What the player in a seat brings to each team sum: the main term, weighed by
// energy and lost to a lapse, and the rest, which depends on his position and
// shift role. Neither changes while he sits, so it is built when he sits down.
struct SeatTerms {
  std::array<double, kTeamSums> main{}, rest{};
  bool outOfPosition = false;
  bool defence = false;
};

struct GameSide {
  GameSide() {
    Status.fill(kNotDressed);
    OnIce.fill(kNoPlayer);
    HurtBy.fill(kNoPlayer);
    for (auto& seat : Lines) seat.fill(kNoPlayer);
  }

  u8 Goalie = 0;
  std::array<float, kGameSlots> Energy{};
  std::array<i16, kGameSlots> Status{};
  std::array<std::array<float, kGameSlots>, kRatingCount> Scaled{};
  std::array<u8, kGameSlots> Checking{};
  std::array<i16, kGameSlots> Hits{};
  u8 MenInBox = 0;
  int TeamPIM = 0;
  std::array<int, kGameSlots> PIM{};
  std::array<u8, kGameSlots> PenaltyKind{};
  std::array<int, kGameSlots> BoxTicks{};
  std::array<int, kGameSlots> ServeTicks{};
  std::array<u8, kSeats> OnIce{};
  u8 CurrentLine = 0;
  std::array<std::array<u8, kLineRows>, kSeats> Lines{};  // [seat][line]
  std::array<i16, kGameSlots> IceTime{};
  std::array<u8, kGameSlots> Penalised{};
  u8 LineToughness = 0, LineDiscipline = 0, LineDurability = 0, LineChecking = 0;
  int Goals = 0;
  std::array<int, kGameSlots> PlayerGoals{}, PlayerAssists{};
  std::array<i16, kGameSlots> PlusMinus{};
  int Shots = 0;
  std::array<int, kGameSlots> PlayerShots{};
  std::array<int, kGameSlots> GoalsOnGoalie{}, ShotsOnGoalie{};
  int PowerPlayGoals = 0, PowerPlays = 0;
  u8 CreditGoalie = 0;
  std::array<u8, 256> Scorers{};
  i16 TiedAt = 0;
  u8 ShiftCycle = 0;
  std::array<u8, kGameSlots> HurtBy{};
  std::array<i16, kGameSlots> Defensive{}, OutOfPosition{};

  // Working values of this program beyond the side record.
  int team = 0;
  std::array<SlotTerms, kGameSlots> terms{};
  // By seat, for the players in OnIce; rebuilt whenever a seat changes.
  std::array<SeatTerms, kSeats> seatTerms{};
  // What a tick does to energy: Scaled End, the gain per tick on the bench,
  // and the most he gets back there (his Condition).
  std::array<double, kGameSlots> endurance{}, recovery{}, energyCap{};
  std::array<int, kGameSlots> offenseRating{}, defenseRating{};
  std::array<u8, kGameSlots> dressed{};  // dressed slots in ascending order
  int dressedCount = 0;
  bool goalieHurt = false;  // an injury replaced the goalie
  int goalieHurtScore = 0;  // this side's goals when that happened
  u8 lastHurt = kNoPlayer;
  // Slots that may have box or serving time left, by bit: set with BoxTicks or
  // ServeTicks, cleared by the tick that ends both, so a tick visits the box only.
  std::uint64_t boxed = 0;
  // Slots that may be on the bench below their condition, by bit; a tick
  // gives energy back to these only.
  std::uint64_t recovering = 0;

  // Sends a player to the bench, where he gets his energy back.
  void Bench(int slot) {
    Status[static_cast<std::size_t>(slot)] = kOnBench;
    recovering |= std::uint64_t{1} << slot;
  }
  void Box(int slot) { boxed |= std::uint64_t{1} << slot; }
  u8 ChainCount = 0;
  int injuries = 0;
};

}  // namespace kvl
