#pragma once
// Values the records can hold but the game cannot use: told once at load, and
// named again by the command that would otherwise stop on them.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// The names of the rating elements, Int first.
inline constexpr std::array<const char*, 13> kRatingNames{"Int", "Spd", "Str", "End", "Dur", "Dis", "Ska",
                                                          "Pas", "Pcc", "Def", "Sco", "Exp", "Ldr"};
inline constexpr int kMaxPlayableRating = 99;

// One line for each rating above 99 of team `team`, loaded into `side`:
// "Norwood, slot 12, record 613 (J. Smith): rating Spd is 255, above 99".
std::vector<std::string> UnplayableRatings(const LeagueState& s, int team, int side);
// One line for each division place that names a team the league lacks, and each
// count past what the header holds: "conference 1 (EAST), division 2 (NORTH),
// place 3: team 187, the league has teams 0 to 23".
std::vector<std::string> AlignmentProblems(const LeagueState& s);
// "<file>: <what>" and the lines, the first 20 of them.
std::string ProblemText(const std::string& file, const std::string& what, const std::vector<std::string>& lines);
// A KvlError naming the roster file and the ratings when team `team` in `side`
// cannot play.
void CheckRatingsPlayable(const LeagueState& s, int team, int side);
// At load: tells every such value of the league once, naming its file; the
// league still loads. Uses side 0 of the player buffer.
void TellUnplayableValues(LeagueState& s);

}  // namespace kvl
