#pragma once
// The card of a team's coach (DisplayCoach).
#include <optional>
#include <string>

#include "league/league_state.h"

namespace kvl {

struct CoachCard {
  std::string team;
  std::optional<Coach> coach;  // none without a record in 1..100
  u8 style = 0;
};

// Reads the coach that CoachRec names and stores his style in the Team record.
CoachCard DisplayCoach(LeagueState& s, int team);
std::string CoachCardText(const CoachCard& card);
// The card's rating fields cannot be edited: tells why and refuses.
[[noreturn]] void RefuseCoachEdit(LeagueState& s);

}  // namespace kvl
