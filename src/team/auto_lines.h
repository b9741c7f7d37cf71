#pragma once
// The automatic line maker and its picker, over a working copy of a team's
// line table. The line editor builds on the same working state.
#include <array>

#include "league/league_state.h"

namespace kvl {

class LineMaker {
 public:
  // Works on `team`, whose roster is loaded in `side`; LineBuf starts as its Lines.
  LineMaker(LeagueState& s, int team, int side);

  // The roster index of the best dressed player for `pos` (0..4, or kAnySkater)
  // by `mode`, marked in RowUsed and GroupUsed. Thin teams repeat players.
  // Finding nobody is a run-time stop.
  int BestPlayer(int pos, int mode);
  // Fills LineBuf from the dressed players; with `write` stores it.
  void AutoLines(bool write);
  // Stores LineBuf in the team's Lines, sets LinesOK and Dirty, and saves the team.
  void TransferBuffer();

  int team() const { return team_; }
  int side() const { return side_; }

  LineTable LineBuf;
  std::array<bool, kRosterSlots> RowUsed{};
  std::array<bool, kRosterSlots> GroupUsed{};

 protected:
  LeagueState& s_;

 private:
  int Scan(int pos, int mode, bool checkGroup);
  int ScanAnyStatus(int pos);
  int ScanCentreByCondition();
  void FillRow(int row, int step);

  int team_;
  int side_;
};

// AutoLines(side, 1) for `team` loaded in `side`.
void AutoLines(LeagueState& s, int team, int side);

}  // namespace kvl
