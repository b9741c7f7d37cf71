#pragma once
// The automatic roster maker over the roster editor's working statuses. Nothing
// reaches the Player records until TransferBuffer, save what ResetFlags repairs.
#include <array>

#include "league/league_state.h"

namespace kvl {

class RosterMaker {
 public:
  // Works on `team`, whose roster is loaded in `side`.
  RosterMaker(LeagueState& s, int team, int side);

  // Fills TempStatus and PrevStatus; an injured player becomes a scratch.
  void ResetFlags();
  // The best free scratch for `pos` (0..4, or kAnySkater) by `mode`, else a
  // minor leaguer through PromoteMinor. Finding nobody is a run-time stop.
  int BestAvailable(int pos, int mode);
  int PromoteMinor(int pos);
  // Dresses 9 forwards, 6 defencemen, 3 more skaters and 2 goalies in
  // TempStatus; with `write` also stores the roster and makes the lines.
  void AutoRoster(bool write);
  // Releases the players marked for it, stores TempStatus and saves the team.
  void TransferBuffer();

  int team() const { return team_; }
  int side() const { return side_; }

  std::array<u8, kRosterSlots> TempStatus{};
  std::array<u8, kRosterSlots> PrevStatus{};

 protected:
  Player& at(int i) { return s_.player(side_, i); }
  u8& temp(int i) { return TempStatus[static_cast<std::size_t>(i)]; }
  LeagueState& s_;
  // Who moves players down, for the waiver question: the team itself, or the
  // editor acting for the commissioner.
  int actor_;

 private:
  void Dress(int pos, int mode);

  int team_;
  int side_;
};

// AutoRoster(side, 1) for `team` loaded in `side`: roster, lines, saved.
void AutoRoster(LeagueState& s, int team, int side);

}  // namespace kvl
