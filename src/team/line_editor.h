#pragma once
// The line editor (Lines): places dressed players on a working copy of the
// team's line table, three pages of four rows and the goalie row, and stores
// the table on leaving when it is complete. Wrong placements change nothing,
// without a word.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "team/auto_lines.h"

namespace kvl {

// Per rating (Int .. Ldr, then RatingSpare) and Overall last.
using RatingAverages = std::array<int, kRatingCount + 1>;

// Why the editor would not seat a dressed player: a goalie on a line or as a
// spare, a skater in goal, or a player already in another seat of the row.
enum class SeatFault { None, GoalieOnLine, SkaterInGoal, TwiceOnRow };
// The editor's rule for `p`, roster index `index`, in (row, slot) of `t`. Lines
// files are checked by it too, so a file holds only what the editor could place.
SeatFault PlacementFault(const LineTable& t, int row, int slot, const Player& p, int index);

class LineEditor : public LineMaker {
 public:
  // Loads `team` into side 0 and opens on its table; warns when nobody is dressed.
  LineEditor(LeagueState& s, int team);

  std::string caption() const;
  // The players offered: dressed (injured too) and of a ticked position.
  void AddPlayers();
  const std::vector<int>& players() const { return Offered; }
  void ShowPage(int page);
  int page() const { return Page; }
  void Check1(int pos, bool shown);

  // Places `player` on slot `index` of the page (0..19: line x 5 + slot;
  // 20 starter, 21 and 22 spares). True when the table changed.
  bool Place(int index, int player);
  // Only a dressed player of the roster can be placed.
  bool Offers(int player) const;
  // Gives a row the focus; its averages then show.
  void ChooseLine(int row) { Focus = row; }
  std::optional<int> focus() const { return Focus; }

  // "E1C P1C" for each player, "No Assignments" for one on no line.
  void ReadLineAssgts();
  const std::string& assignment(int index) const { return Assignment[static_cast<std::size_t>(index)]; }
  RatingAverages LineAverages(int row) const;
  RatingAverages TeamAverages() const;

  // False (after telling) unless exactly 20 players are dressed and healthy.
  bool cmdAuto();
  // Asks to keep changes; an incomplete table keeps the editor open (false).
  bool cmdExit();
  void cmdClose();

  bool Changed = false;
  std::array<bool, 5> ShowPos{true, true, true, true, true};

 private:
  void Changes(int row);

  int Page = 0;
  std::optional<int> Focus;
  std::vector<int> Offered;
  std::array<std::string, kRosterSlots> Assignment;
};

}  // namespace kvl
