#include "team/line_table.h"

#include <array>

namespace kvl {

int SlotsInRow(int row) {
  if (row < 6) return 5;
  if (row < 10) return 4;
  return 3;
}

std::string RowLabel(int row) { return std::string(1, "EPK"[row / 4]) + std::to_string(row % 4 + 1); }

std::string_view SlotLabel(int row, int slot) {
  static constexpr std::array<std::string_view, 5> kFull{"C", "L", "R", "D", "D"};
  static constexpr std::array<std::string_view, 4> kFour{"C", "W", "D", "D"};
  static constexpr std::array<std::string_view, 3> kThree{"C", "D", "D"};
  auto at = static_cast<std::size_t>(slot);
  switch (SlotsInRow(row)) {
    case 5: return kFull[at];
    case 4: return kFour[at];
    default: return kThree[at];
  }
}

std::string SeatName(int row, int slot) {
  static constexpr std::array<std::string_view, 3> kGoalieRowSeats{"starting goalie", "spare 1", "spare 2"};
  if (row == kGoalieRow) return std::string(kGoalieRowSeats[static_cast<std::size_t>(slot)]);
  return RowLabel(row) + " " + std::string(SlotHeading(row, slot));
}

std::string_view RowCaption(int row) {
  static constexpr std::array<std::string_view, kSkaterRows> kCaptions{
      "Even Strength Line 1", "Even Strength Line 2", "Even Strength Line 3", "Even Strength Line 4",
      "PP Line 1 (5 on 4)",   "PP Line 2 (5 on 4)",   "PP Line 1 (4 on 3)",   "PP Line 2 (4 on 3)",
      "PK Line 1 (4 on 5)",   "PK Line 2 (4 on 5)",   "PK Line 1 (3 on 5)",   "PK Line 2 (4 on 5)"};
  return kCaptions[static_cast<std::size_t>(row)];
}

std::string_view PageTitle(int page) {
  static constexpr std::array<std::string_view, 3> kTitles{"Even Strength Lines", "Power Play Lines",
                                                           "Penalty Kill Lines"};
  return kTitles[static_cast<std::size_t>(page)];
}

std::string_view SlotHeading(int row, int slot) {
  static constexpr std::array<std::string_view, 4> kFull{"C", "LW", "RW", "D"};
  static constexpr std::array<std::string_view, 3> kShort{"C", "W", "D"};
  if (SlotsInRow(row) == 5) return kFull[static_cast<std::size_t>(slot < 3 ? slot : 3)];
  if (SlotsInRow(row) == 4) return kShort[static_cast<std::size_t>(slot < 2 ? slot : 2)];
  return slot == 0 ? kShort[0] : kShort[2];
}

void ForceUnusedSlots(LineTable& t) {
  for (int row = 6; row < kLineRows; ++row) t.at(row, 4) = kNoPlayer;
  for (int row = 10; row < kLineRows; ++row) t.at(row, 3) = kNoPlayer;
}

std::vector<std::string> EmptySeats(const LineTable& t) {
  static constexpr std::array<std::string_view, 3> kGoalieSeats{"starting goalie", "spare 1", "spare 2"};
  std::vector<std::string> seats;
  for (int row = 0; row < kLineRows; ++row)
    for (int slot = 0; slot < SlotsInRow(row); ++slot) {
      if (t.at(row, slot) <= 254) continue;
      const bool goalie = row == kGoalieRow;
      seats.push_back((goalie ? std::string("G") : RowLabel(row)) + ":" + std::to_string(slot) + " (" +
                      std::string(goalie ? kGoalieSeats[static_cast<std::size_t>(slot)] : SlotHeading(row, slot)) +
                      ")");
    }
  return seats;
}

bool LinesComplete(const LineTable& t) { return EmptySeats(t).empty(); }

bool RemoveFromLines(LineTable& t, int index) {
  bool found = false;
  for (int row = 0; row < kLineRows; ++row) {
    int slots = row == kGoalieRow ? 4 : kLineSlots;
    for (int slot = 0; slot < slots; ++slot) {
      if (t.at(row, slot) != index) continue;
      t.at(row, slot) = kNoPlayer;
      found = true;
    }
  }
  return found;
}

}  // namespace kvl
