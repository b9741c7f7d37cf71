#pragma once
// The entry draft: Begin and Continue Entry Draft, and the draft console in
// its entry mode, which walks the rounds and the picks, enters each choice on
// the roster or the prospect list of the team at the turn and, after the last
// round, turns the draft picks over a year and writes the draft page.
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"
#include "transactions/draft_turn.h"

namespace kvl {

// Begin (or re-start) the entry draft: asks, reads the list (`list`, else the
// file question), reports each bad item of it by line, sets the order by
// Priority or by lottery. False when declined or refused; nothing changes then.
bool EntryDraft(LeagueState& s, const std::optional<std::filesystem::path>& list = std::nullopt);
// Asks to continue the draft under way; false when there is none or on no.
bool ConEntryDraft(LeagueState& s);

struct UndraftedEntry {
  int record = 0;  // in the draft list, from 1
  std::string name;
  int pos = 0, age = 0, overall = 0;
};

struct MadePick {
  int overall = 0, round = 0;  // round from 0
  std::string team, fromTeam;  // fromTeam empty for a team's own pick
  std::string player;
};

class DraftNew {
 public:
  explicit DraftNew(LeagueState& s) : s_(s) {}

  std::string caption() const;  // "Entry Draft - Round N"
  // "Undrafted Players", in list order.
  std::vector<UndraftedEntry> undrafted() const;
  std::vector<MadePick> picks() const;
  DraftTurn turn() { return CurrentTurn(s_); }

  // The team at the turn takes list record `record` on its roster, or on its
  // prospect list. False when refused (told): no draft, a name drafted
  // already, no room.
  bool cmdAdd(int record);
  bool cmdProspect(int record);
  // The next `n` picks take the best undrafted player by Overall, on the
  // roster while it has room, else on the prospect list. Returns the picks made.
  int cmdAuto(int n);
  // Writes EntryDraft.html.
  void cmdOutput();

  // Moves the turn past picks that nobody holds; ends the draft after the
  // last round or once the list is used up.
  void PassUnheldPicks();

 private:
  bool Take(int record, bool prospect);
  void Advance();
  void Finish();
  LeagueState& s_;
};

}  // namespace kvl
