#pragma once
// The draft-pick editor: a team's picks on a copy, picks added for any team or
// taken away, written back (and sorted) on leaving after a yes.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

class DraftPickEditor {
 public:
  DraftPickEditor(LeagueState& s, int team);

  struct Entry {
    int index;  // place in the record, from 1
    std::string text;
  };
  // Every active pick, hidden rounds included: the editor shows what is kept.
  std::vector<Entry> list() const;

  // Adds the pick of draft `year` (0 the coming one), round `round` (from 0),
  // made for `origTeam`; false (after telling) when out of range or the record is full.
  bool cmdAdd(int year, int round, int origTeam);
  // Takes away the pick at `index`; false when there is none.
  bool cmdRemove(int index);
  // Asks to keep the changes; on yes writes and sorts the record.
  bool cmdExit();

  bool Changed = false;

 private:
  LeagueState& s_;
  int team_;
  DraftPickRecord picks_;
};

}  // namespace kvl
