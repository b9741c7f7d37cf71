#pragma once
// The earlier maker of the Schedule form: hosts and opponents drawn at random,
// steered toward the teams behind by the spread limits. Kept, though the
// commissioner is offered the day-filling maker.
#include <functional>

#include "league/league_state.h"
#include "season/schedule_allot_log.h"
#include "season/schedule_matrices.h"
#include "season/schedule_params.h"
#include "season/schedule_place.h"

namespace kvl {

class EarlierScheduleMaker {
 public:
  using Writer = std::function<void(int gameNumber, const ScheduleRecord&)>;
  EarlierScheduleMaker(LeagueState& s, const ScheduleParams& p, ScheduleMatrices& m, AllotGameLog& log,
                       double totalGames, Writer write);

  // Places every game; false when 1000 attempts in a row placed nothing.
  // `progress` is told the games placed after each day.
  bool run(const std::function<void(int placed)>& progress);

 private:
  struct Extremes {
    int leastTotal, fewestTotal, mostTotal, leastHome, fewestHome, mostHome, mostHomeTeam;
  };
  Extremes findExtremes() const;
  int drawTarget();
  int draw() { return static_cast<int>(s_.rnd() * n_); }
  int chooseHost(const Extremes& e);
  int chooseOpponent(int& host, const Extremes& e);
  int drawOpponent(int tries, const Extremes& e);
  bool acceptOpponent(int host, int opp, const Extremes& e) const;
  int firstOpenOpponent(int host) const;
  void swapIfMetHere(int& host, int& opp) const;
  void logStall(const Extremes& e);

  LeagueState& s_;
  const ScheduleParams& p_;
  ScheduleMatrices& m_;
  AllotGameLog& log_;
  double totalGames_;
  int n_;
  i16 placed_ = 0;
  int gameDay_ = 0;
  int stall_ = 0;
  int lead_ = 0;
  GameDayMaker book_;
};

}  // namespace kvl
