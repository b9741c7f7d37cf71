#pragma once
// The shape of a team's line table: which slots each row uses, its labels and
// captions, and the tests that make a table playable.
#include <string>
#include <string_view>
#include <vector>

#include "league/records.h"

namespace kvl {

constexpr int kGoalieRow = 12;
constexpr int kSkaterRows = 12;  // rows 0..11: E1-E4, P1-P4, K1-K4

// Slots a row uses, from slot 0: 5 on rows 0..5, 4 on rows 6..9, 3 on rows 10..12.
int SlotsInRow(int row);

// "E1".."E4", "P1".."P4", "K1".."K4" for rows 0..11.
std::string RowLabel(int row);
// The letter of a slot in the assignment text: C L R D D, C W D D, C D D.
std::string_view SlotLabel(int row, int slot);
// A seat as messages name it: "E1 C", "P3 W", "K4 D", "starting goalie", "spare 1", "spare 2".
std::string SeatName(int row, int slot);
// The editor's caption of a row; row 11 repeats the text of row 9.
std::string_view RowCaption(int row);

// The editor's three pages of four rows each.
enum LinePage : int { kEvenPage = 0, kPowerPlayPage = 1, kPenaltyKillPage = 2 };
std::string_view PageTitle(int page);
constexpr int PageFirstRow(int page) { return 4 * page; }
// The slot heading of a page column: C LW RW D on full rows, C W D on short ones.
std::string_view SlotHeading(int row, int slot);

// Sets to empty the slots no row uses: slot 4 of rows 6..12, slot 3 of rows 10..12.
void ForceUnusedSlots(LineTable& t);
// True when every used slot, the goalie row's three included, holds a player.
bool LinesComplete(const LineTable& t);
// The used slots that hold no player, named as a placement reads them with the
// seat after it: "E1:2 (RW)", "G:0 (starting goalie)".
std::vector<std::string> EmptySeats(const LineTable& t);
// Empties every entry holding `index` in rows 0..11 and in slots 0..3 of the
// goalie row; true when one was found.
bool RemoveFromLines(LineTable& t, int index);

}  // namespace kvl
