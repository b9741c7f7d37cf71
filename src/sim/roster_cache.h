#pragma once
// The rosters and coaches of a league read once, for runs of many games in
// memory (the calibration report, the benchmark): a game then copies a roster
// instead of reading the swap file.
#include <array>
#include <optional>
#include <vector>

#include "league/league_state.h"

namespace kvl {

class RosterCache {
 public:
  using Roster = std::array<Player, kRosterSlots>;
  // Reads every team through loadteam; the player buffer is left as it was.
  explicit RosterCache(LeagueState& s);
  // Rosters and coaches (record n at index n - 1) made in memory.
  RosterCache(std::vector<Roster> rosters, std::vector<Coach> coaches)
      : rosters_(std::move(rosters)), coaches_(std::move(coaches)) {}
  const Roster& roster(int team) const { return rosters_.at(static_cast<std::size_t>(team)); }
  // The coach at a 1-based record number; nullopt past the end of the file.
  std::optional<Coach> coach(int record) const;

 private:
  std::vector<Roster> rosters_;
  std::vector<Coach> coaches_;
};

// The coach record of the coaches swap file, or of the cache when given.
std::optional<Coach> ReadCoach(LeagueState& s, const RosterCache* cache, int record);

}  // namespace kvl
