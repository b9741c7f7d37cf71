#pragma once
// The line editor as text: a page of four rows with their line averages, the
// goalie row, the team averages, and each dressed player's assignments.
#include <string>

#include "team/line_editor.h"

namespace kvl {

std::string LinePageText(const LineEditor& e, const LeagueState& s, int page);
std::string GoalieRowText(const LineEditor& e, const LeagueState& s);
std::string AssignmentsText(const LineEditor& e, const LeagueState& s);

}  // namespace kvl
