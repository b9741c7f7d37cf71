#pragma once
// A game of two teams played tick by tick: the two sides, the clock, the puck,
// and the record of events. One object per game; the engine never prints, and
// a state the roster rules exclude stops the game with a KvlError.
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "league/league_state.h"
#include "sim/game_side.h"
#include "util/fixed_text.h"

namespace kvl {

class Game;
class RosterCache;

struct GameOptions {
  bool isExhibition = false;
  bool isBatchRunning = false;
  // Rosters and coaches read once for many games; else the swap files.
  const RosterCache* rosters = nullptr;
  // The after-game step; run at the end of a game that is not an exhibition.
  std::function<void(Game&)> finish;
};

// One call of a penalty event, per side.
struct PenaltyCall {
  u8 offender = kNoPlayer;
  int minutes = 0, kind = 0, extra = 0;
  bool ejected = false, toBeSuspended = false, injuryCaused = false;
};

class Game {
 public:
  explicit Game(LeagueState& s, GameOptions options = {});

  LeagueState& s;
  GameOptions opt;
  std::array<GameSide, 2> side;
  std::array<int, 2> team{};

  // Puck and clock.
  int Attacker = 0, Defender = 1;
  int Zone = 2;
  int Clock = 0;
  int PeriodLength = 1200;
  int Period = 0, Periods = 3;
  bool InOvertime = false;
  int OvertimeCount = 0;
  int GoalCount = 0;
  int IsBreakaway = 0;
  std::array<int, 2> Breakaways{};
  std::array<i16, 2> GoalieChanged{};
  int Intensity = 350;
  bool forceChange = false;
  int FightAllowance = 0;
  int fights = 0;

  // The record of the game.
  std::vector<std::string> PlayByPlay, Notes;
  std::array<std::array<int, 5>, 2> PeriodShots{}, PeriodGoals{};
  std::string PeriodPenalties;
  int notedClock = 0;

  // 1 + Int(Rnd x n): n may be a fraction.
  int Rnd(double n) { return 1 + static_cast<int>(std::floor(s.rnd() * n)); }
  double Rnd() { return s.rnd(); }
  // Rnd(n) > 1, the same draw without the floor: Int(u x n) is 0 exactly when u x n < 1.
  bool RndAboveOne(int n) { return s.rnd() * n >= 1.0; }

  Player& player(int sd, int slot) { return s.player(sd, slot); }
  float scaled(int sd, int rating, int slot) const {
    return side[static_cast<std::size_t>(sd)].Scaled[static_cast<std::size_t>(rating)][static_cast<std::size_t>(slot)];
  }
  GameSide& sideOf(int sd) { return side[static_cast<std::size_t>(sd)]; }
  const GameSide& sideOf(int sd) const { return side[static_cast<std::size_t>(sd)]; }
  static int other(int sd) { return 1 - sd; }

  // Set-up and line changes.
  void SetupGame(int away, int home);
  void LoadSide(int sd, int teamIndex);
  void PrepareSide(int sd);
  void ComputeTerms(int sd, int slot);
  void FloorGoalie(int sd, int slot);
  void SetLine(int sd, int line);
  // Rebuilds the seats' terms of the team sums after a change of seats.
  void RefreshSeatTerms(int sd);
  u8 ChooseSubstitute(int sd, int slot, int seat);
  void NextLine(int sd, int opponent);
  // Positive when a is short.
  int ManDifference(int a, int b) const { return std::clamp(sideOf(a).MenInBox - sideOf(b).MenInBox, -2, 2); }
  int MeanEnergy(int sd) const {
    const GameSide& g = sideOf(sd);
    double sum = 0;
    int count = 0;
    for (u8 p : g.OnIce)
      if (p != kNoPlayer) {
        sum += g.Energy[p];
        ++count;
      }
    return count == 0 ? 0 : static_cast<int>(std::floor(sum / count));
  }

  // Play.
  void PlayGame(int away, int home);
  void PlayPeriod();
  bool EndOfPeriodRules();
  void FaceOff();
  bool Lapse(int sd);
  int LapseOdds(int sd) const;
  int DefenceSum(int sd);
  int AttackSum(int sd);
  int MoveSum(int sd);
  int StopSum(int sd);
  double KeepSum(int sd);
  int ScrambleSum(int sd);
  int CoverSum(int sd) const;
  int ShootOrLose();
  void BattleForPuck();
  void MovePuck();
  int Offside(int sd);
  void TakeShot();
  u8 PickShooter(int sd);
  u8 PickPasser(int sd, u8 shooter);
  u8 PickSecondAssist(int sd, u8 scorer, u8 first);
  double ShotValue(int sd, u8 shooter);
  double GoalieValue(int sd, u8 goalie);
  void LooseRebound();
  void Tick();
  void SwapPuck() { std::swap(Attacker, Defender); }
  void Whistle();
  int InAttackingZone(int sd) const { return (sd == 0 && Zone == 3) || (sd == 1 && Zone == 1) ? 1 : 0; }
  int InDefensiveZone(int sd) const { return (sd == 0 && Zone == 1) || (sd == 1 && Zone == 3) ? 1 : 0; }

  // Penalties and fights.
  void PenaltyEvent();
  u8 PickOffender(int sd);
  double PenaltyWeight(int sd, u8 slot);
  std::string PenaltyText(int sd, const PenaltyCall& c, bool otherHurt, bool fight);
  void PenaltyOver(int sd, u8 slot);
  void ReleaseMinor(int sd);
  void ChangeGoalie(int sd);
  bool AllowFight();
  bool ThrownOut(int sd);
  u8 PickServer(int sd, u8 offender);

  // Hits and injuries in play.
  void Hits();
  void whogothit();
  // `clock`: the game time noted for the event.
  bool TryInjury(int sd, u8 slot, int clock);

  // The record.
  void EndPeriod();
  void AddNote(std::string text) { Notes.push_back(std::move(text)); }
  std::string PlayerName(int sd, int slot) const;
  std::string ShortPlayerName(int sd, int slot) const;
  std::string TeamName(int sd) const;
  std::string TeamAbbrev(int sd) const;

  // The goal's bookkeeping; passDraw below 95 means assisted, below 85 twice.
  void ScoreGoal(u8 shooter, u8 passer, int passDraw, u8 goalie);
  // Puts a called penalty in the books and the box.
  void BookPenalty(int sd, PenaltyCall& c, const std::array<PenaltyCall, 2>& calls, bool fight);

 private:
  template <TeamSum kSum>
  double SeatSum(int sd);
  void Fight(std::array<PenaltyCall, 2>& calls);
  void OffencePass(int sd, std::array<PenaltyCall, 2>& calls, int& count, bool& hardPlay);
  void TickSide(int sd);
  u8 WalkSeats(int sd, const std::array<double, kSeats>& weights, double total);
  void CheckPlayable(int sd, int slot, const char* what) const;
  [[noreturn]] void Stop(const std::string& why) const;
};

// m + ":" + ss.
std::string ClockText(int clock);
// "1st", "2nd", "3rd"; higher periods have no ordinal ("4").
std::string Ordinal(int n);
// "1st Period".
std::string OrdinalPeriod(int period);

}  // namespace kvl
