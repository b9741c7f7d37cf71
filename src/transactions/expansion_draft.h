#pragma once
// The expansion draft: teams marked Expansion take the unprotected players of
// the other teams, one at a time, up to a quota by position. The draft is
// over when every expansion team has its quota, or when no unprotected player
// of a position it still lacks is left.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// What an expansion team takes: a dressed club of 12 forwards, 6 D and 2
// goalies with a spare of each, 24 players, above the 20 a schedule demands.
struct ExpansionQuota {
  int forwards = 13, defence = 8, goalies = 3;
};

// The command: asks to begin (clearing every team's ExpFwd, ExpDef, ExpGoal)
// or to continue. False when no team is marked or on no.
bool ExpansionDraft(LeagueState& s);

struct UnprotectedEntry {
  int team = 0, slot = 0;
  std::string name;
  int pos = 0, overall = 0;
};

// The draft console in its expansion mode.
class ExpansionDraftForm {
 public:
  explicit ExpansionDraftForm(LeagueState& s, ExpansionQuota quota = {}) : s_(s), quota_(quota) {}

  // "Unprotected Players": every unprotected player of a team not marked
  // Expansion, team by team in slot order.
  std::vector<UnprotectedEntry> unprotected();
  // "Expansion Teams".
  std::vector<int> expansionTeams() const;
  // How many more players of `pos`'s group `team` may take.
  int roomFor(int team, int pos) const;

  // `team` takes the player of `fromTeam`'s `slot`. False when refused (told).
  bool cmdAdd(int team, int fromTeam, int slot);
  // The expansion teams take in turn, each the best unprotected player by
  // Overall of a group it still lacks, until the draft is over. Returns the
  // players taken.
  int cmdAuto();
  bool over();
  // Writes ExpansionDraft.html: the unprotected players of each team.
  void cmdOutput();

 private:
  bool AutoWants(int team, int pos);
  void Finish();
  LeagueState& s_;
  ExpansionQuota quota_;
};

}  // namespace kvl
