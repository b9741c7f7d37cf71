#pragma once
// The league's transaction logs: this season's (.tra) and the history (.htr),
// text files in the swap folder that only ever grow by a line.
#include <string>

#include "league/league_state.h"

namespace kvl {

// Appends `line` and a line break to the season's log.
void AppendTransaction(LeagueState& s, const std::string& line);
// Appends `line` to the season's log and to the history.
void AppendTransactionAndHistory(LeagueState& s, const std::string& line);

}  // namespace kvl
