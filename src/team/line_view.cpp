#include "team/line_view.h"

#include <fmt/format.h>

#include "league/tables.h"
#include "team/line_table.h"

namespace kvl {

namespace {

std::string SlotName(const LeagueState& s, int side, u8 entry) {
  if (entry >= kRosterSlots) return "(empty)";
  return fmt::format("{:>2} {}", entry, s.player(side, entry).Name.str());
}

std::string AveragesLine(const char* heading, const RatingAverages& a) {
  std::string out = fmt::format("    {:<8}", heading);
  for (int r = 0; r < kLdr + 1; ++r) out += fmt::format(" {:>2}", a[static_cast<std::size_t>(r)]);
  return out + fmt::format("  OV {:>2}\n", a[kRatingCount]);
}

}  // namespace

std::string LinePageText(const LineEditor& e, const LeagueState& s, int page) {
  std::string out = fmt::format("{}\n", PageTitle(page));
  out += fmt::format("    {:<8} IT SP ST EN DU DI SK PA PC DF SC EX LD\n", "");
  for (int row = PageFirstRow(page); row < PageFirstRow(page) + 4; ++row) {
    out += fmt::format("  {} {}\n", RowLabel(row), RowCaption(row));
    for (int slot = 0; slot < SlotsInRow(row); ++slot)
      out += fmt::format("    {:<3} {}\n", SlotHeading(row, slot), SlotName(s, e.side(), e.LineBuf.at(row, slot)));
    out += AveragesLine("average", e.LineAverages(row));
  }
  return out;
}

std::string GoalieRowText(const LineEditor& e, const LeagueState& s) {
  static constexpr const char* kSeats[] = {"Starting Goalie", "Spare 1", "Spare 2"};
  std::string out = "Goalie and spares\n";
  for (int slot = 0; slot < 3; ++slot)
    out += fmt::format("  {:<15} {}\n", kSeats[slot], SlotName(s, e.side(), e.LineBuf.at(kGoalieRow, slot)));
  return out + AveragesLine("team", e.TeamAverages());
}

std::string AssignmentsText(const LineEditor& e, const LeagueState& s) {
  std::string out = "Dressed players\n";
  for (int index : e.players()) {
    const Player& p = s.player(e.side(), index);
    out += fmt::format("  {:>2}  {}  {:<22}  {}\n", index, PosName[p.Pos], p.Name.str(), e.assignment(index));
  }
  return out;
}

}  // namespace kvl
