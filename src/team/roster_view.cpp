#include "team/roster_view.h"

#include <fmt/format.h>

#include "league/ratings.h"
#include "league/tables.h"

namespace kvl {

namespace {

std::string EntryLine(const RosterEditor::Entry& entry, const Player& p) {
  std::string notes;
  if (p.injury() > 0)
    notes += " injured " + std::string(InjuryName[static_cast<std::size_t>(InjuryClassFor(p.injury()))]);
  if (p.Suspended == 99) notes += " hold-out";
  else if (p.Suspended == 88) notes += " personal reasons";
  else if (p.Suspended > 0) notes += fmt::format(" suspended {}", p.Suspended);
  std::string_view pos = p.Pos < 5 ? PosName[p.Pos] : "??";
  return fmt::format("  {:>2}  {}  {:<23} {:>2}{}\n", entry.index, pos, entry.text, Overall(p), notes);
}

}  // namespace

std::string RosterEditorText(const RosterEditor& e, const LeagueState& s) {
  static constexpr std::array<std::pair<int, const char*>, 3> kLists{
      {{kDressedList, "Dressed"}, {kScratchList, "Scratched"}, {kMinorsList, "Minors"}}};
  std::string out = e.title() + "\n";
  for (auto [which, heading] : kLists) {
    out += fmt::format("{} ({})\n", heading, e.list(which).size());
    for (const auto& entry : e.list(which)) out += EntryLine(entry, s.player(e.side(), entry.index));
  }
  return out + e.caption() + "\n";
}

}  // namespace kvl
