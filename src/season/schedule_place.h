#pragma once
// The second stage of schedule making: the allotted games laid out day by day,
// each day filled until a drawn count is met or nothing more fits, the teams
// behind in games and home games offered first.
#include <functional>

#include "league/records.h"
#include "season/schedule_matrices.h"
#include "season/schedule_params.h"
#include "util/rnd.h"

namespace kvl {

constexpr u8 kNoHost = 255;

// The number of games wanted for the rest of a day, drawn from `r` in [0, 1).
// A draw of exactly 20 becomes 0, which no running count meets: such a day runs
// until nothing more fits.
int PickDayGames(int GPDay, int Variance, int n, double r);

struct Spreads {
  int MinTotalGP = 255, MaxTotalGP = 0, MinHomeGP = 255, MaxHomeGP = 0;
  int MinTotalTeam = 0, MaxTotalTeam = 0, MinHomeTeam = 0, MaxHomeTeam = 0;
};

// Places the games of `m` (which it uses up) for a league of n teams. Each
// placed game goes to `write` with its number, which is also the count kept in
// `gamesPlayed`.
class GameDayMaker {
 public:
  using Writer = std::function<void(int gameNumber, const ScheduleRecord&)>;
  GameDayMaker(ScheduleMatrices& m, const ScheduleParams& p, int n, Rnd& rnd, i16& gamesPlayed, Writer write);

  // Clears the counts the allotment left, for counting placed games.
  void Start();
  // A new day: nobody has played in it yet.
  void ClearPlacedToday() { placedToday_.fill(0); }
  // Fills one day; returns its number of games, 0 when none fits.
  int MakeGameDay();
  bool GamePlaceable(int away, int home) const;
  void PlaceGame(int away, int home);
  void UpdateSpreads();
  void SortByTotal();
  void SortByHome();

  // The host tried at place i, and the opponent at place j for it.
  int HomeCandidate(int i) const;
  int OpponentCandidate(int j, int home) const;

  const Spreads& spreads() const { return spreads_; }
  const TeamList<u8>& OrderByTotal() const { return orderByTotal_; }
  const TeamList<u8>& OrderByHome() const { return orderByHome_; }
  const TeamGrid<u8>& LastHost() const { return lastHost_; }
  bool PlacedToday(int t) const { return placedToday_[t] != 0; }
  int DayNumber() const { return dayNumber_; }

 private:
  bool findPair(int& away, int& home) const;
  void sortBy(const TeamList<i16>& counts, int lo, int hi, TeamList<u8>& order);

  ScheduleMatrices& m_;
  const ScheduleParams& p_;
  int n_;
  Rnd& rnd_;
  i16& gamesPlayed_;
  Writer write_;
  TeamList<u8> placedToday_;
  TeamGrid<u8> lastHost_;
  Spreads spreads_;
  TeamList<u8> orderByTotal_, orderByHome_;
  int dayNumber_ = 0;
};

}  // namespace kvl
