#pragma once
// The Schedule form: the commissioner's parameters and the two makers that turn
// them into the league's schedule file. The matrices live here for one making.
#include <optional>
#include <string>

#include "league/league_state.h"
#include "season/schedule_allot_log.h"
#include "season/schedule_matrices.h"
#include "season/schedule_params.h"

namespace kvl {

enum class ScheduleOutcome {
  Made,
  Refused,          // unbalanced alignment, or the reset was declined
  AllotFailed,      // the same parameters will fail again
  PlacementFailed,  // another press draws anew
};

class ScheduleForm {
 public:
  // Loading the form: the defaults for the league's size and a suggested
  // number of games per team.
  explicit ScheduleForm(LeagueState& s);

  // Recomputes GPTeam from the minimums; false (after telling) when a team has
  // no conference, leaving GPTeam as it was.
  bool SuggestGamesPerTeam();
  // A change of one parameter's control. The three minimums rerun the suggestion.
  void setParam(ScheduleParam which, int value);
  // The exhibition box sets the league's flag at each click.
  void chkExhibition(bool ticked);

  // The day-filling maker.
  ScheduleOutcome cmdNewSchedule();
  // The earlier maker, which draws teams at random under the spread limits.
  ScheduleOutcome cmdSchedule();

  const ScheduleParams& params() const { return p_; }
  ParamRange range(ScheduleParam which) const;
  int suggested() const { return suggested_; }
  // False while the last suggestion found a team without a conference.
  bool aligned() const { return aligned_; }
  const ScheduleMatrices& matrices() const { return m_; }

 private:
  // What both makers do before placing: returns TotalGames, or the outcome
  // that ends the press.
  struct Prepared {
    double totalGames = 0;
    std::optional<ScheduleOutcome> stop;
  };
  Prepared prepare(const std::string& allotFailureText);
  void finish();
  void progress(const std::string& label, long value);
  ScheduleOutcome fail(ScheduleOutcome why);

  LeagueState& s_;
  ScheduleParams p_;
  ScheduleMatrices m_;
  int suggested_ = 0;
  bool aligned_ = false;
  long progressMax_ = 0;
  League before_;  // the header as it was when the press began
  std::optional<AllotGameLog> log_;
};

// The suggested schedule of the league's size, made with the day-filling
// maker; placement can fail on a draw, so a few presses. False when none made it.
bool MakeSuggestedSchedule(LeagueState& s);

// The main console's Make Schedule: the form opens only for a league of at
// least 8 teams whose expansion teams have been stocked. Tells why not.
bool ScheduleFormMayOpen(LeagueState& s);

}  // namespace kvl
