#pragma once
// The main console's UpdateStats: the ratings and vitals of the league's
// players, prospects and free agents replaced by name from a chosen database.
// A record serves one player only, so namesakes take successive records.
#include <filesystem>
#include <optional>

#include "league/league_state.h"

namespace kvl {

// Asks first, then the salaries question, then (unless `chosen`) the file.
// False when the commissioner stopped it.
bool UpdateStats(LeagueState& s, std::optional<std::filesystem::path> chosen = std::nullopt);

}  // namespace kvl
