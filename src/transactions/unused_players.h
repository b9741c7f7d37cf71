#pragma once
// Assign Unused Players: database players no team holds yet, given to teams one
// at a time or all at once.
#include <string>
#include <vector>

#include "league/league_state.h"
#include "transactions/roster_fill.h"

namespace kvl {

struct UnusedEntry {
  int record = 0;  // in the database, from 1
  std::string name;
  int pos = 0;
  int overall = 0;
};

class UnusedPlayers {
 public:
  explicit UnusedPlayers(LeagueState& s) : s_(s) {}

  // The database players whose used mark is clear, in record order.
  std::vector<UnusedEntry> list();
  // Gives database record `record` to the first free slot of `team`, on the pro
  // roster while it holds fewer than 25, else in the minors, and marks the
  // record used. False when refused (told).
  bool cmdAdd(int team, int record);
  // Fills every team up to a full club (see FillRosters) and tells the outcome.
  FillResult cmdAuto();

 private:
  LeagueState& s_;
};

}  // namespace kvl
