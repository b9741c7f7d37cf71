#pragma once
// The AlignLeague form: two conferences of up to four divisions, up to ten
// teams a division and fifty a league. Each command works on the open league
// at once; refusals are told and thrown as Refused, a No to a question returns
// false with nothing changed.
#include <optional>
#include <string>

#include "league/league_state.h"

namespace kvl {


class AlignLeague {
 public:
  // Checks the header's lists first: a broken one is told as the form's
  // unexpected error.
  explicit AlignLeague(LeagueState& s);

  // Prompts for the name unless `name` is given; an empty name ends the command.
  bool cmdAdd(int conf, int div, std::optional<std::string> name = std::nullopt);
  bool cmdDelete(int team);
  bool cmdRenameConf(int conf, std::optional<std::string> name = std::nullopt);
  bool cmdRenameDiv(int conf, int div, std::optional<std::string> name = std::nullopt);
  // Dragging a team to another division.
  bool MoveTeam(int team, int conf, int div);
  // sldDivsPerConf: the conference's number of divisions, 1 to 4.
  void ChangeDivisions(int conf, int count);
  // Marks (or clears) the team as an expansion team awaiting its draft.
  void Expansion(int team, bool mark = true);
  // Conferences, divisions and their teams, as the form's lists show them.
  std::string Listing() const;

 private:
  Division& division(int conf, int div);
  void CheckConference(int conf) const;
  void CheckDivision(int conf, int div) const;
  bool ScheduleDisruptionAccepted(bool onlyWithSchedule);
  void Refuse(const std::string& text) const;

  LeagueState& s_;
};

}  // namespace kvl
