#pragma once
// The e-mail file (.eml, swap copy swp.e): one line a team, written as the
// team's number, a comma and the address in quotes.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

struct EmailLine {
  int team = 0;
  std::string address;
};

// Every pair of the file in order; none when the file is missing.
std::vector<EmailLine> ReadEmailLines(const fs::path& file);
void WriteEmailLines(const fs::path& file, const std::vector<EmailLine>& lines);

// The team's address in swp.e; empty when it has none.
std::string TeamEmail(const LeagueState& s, int team);
// Replaces (or adds) the team's line of swp.e.
void SetTeamEmail(LeagueState& s, int team, const std::string& address);

}  // namespace kvl
