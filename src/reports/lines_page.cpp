// Each team's lines: even strength, power play, penalty kill, the starting
// goalie and who sits out, with why.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "team/line_table.h"

namespace kvl {

namespace {

const PageInfo kLines{"Lines.html", " Team Lines", 9, 9, "<H2>Team Lines</H2>", true, ")</P><BR><BR>"};

const char* const kFullColumns =
    "<B>    CENTER                LEFT WING             RIGHT WING            DEFENCE               DEFENCE</B>";
const char* const kKillColumns = "<B>    CENTER                WINGER                DEFENCE               DEFENCE</B>";

std::string SlotName(const LeagueState& s, u8 index) {
  if (index >= kRosterSlots) return std::string(22, ' ');
  return HtmlText(Pad(s.player(0, index).Name.str(), 22));
}

void Rows(const LeagueState& s, const LineTable& t, int first, Page& page) {
  for (int row = first; row < first + 4; ++row) {
    std::string line = RowLabel(row) + "  ";
    for (int slot = 0; slot < SlotsInRow(row); ++slot) line += SlotName(s, t.at(row, slot));
    page.add(line);
  }
}

std::string ScratchReason(const Player& p) {
  if (p.Suspended == 99) return " (Holding out)";
  if (p.Suspended == 88) return " (Personal reasons)";
  if (p.Suspended != 0) return " (Suspended)";
  return p.injury() == 0 ? " (Healthy)" : " (Injured)";
}

void Scratches(const LeagueState& s, const LineTable& t, Page& page) {
  std::array<bool, kRosterSlots> inLines{};
  for (u8 cell : t.cells)
    if (cell < kRosterSlots) inLines[cell] = true;
  bool any = false;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (p.empty() || p.list() == 0 || inLines[static_cast<std::size_t>(slot)]) continue;
    page.add(HtmlText(p.Name.str()) + ScratchReason(p) + "<BR>");
    any = true;
  }
  if (!any) page.add("None");
}

}  // namespace

void WriteLines(PageRun& run) {
  LeagueState& s = run.s;
  Page page(run, kLines);
  ForEachLoadedTeam(s, [&](int team) {
    const LineTable& t = s.team(team).Lines;
    page.add(TeamAnchor(s, team));
    page.add("<PRE><BR><B>EVEN STRENGTH<BR></B>");
    page.add(kFullColumns);
    Rows(s, t, PageFirstRow(kEvenPage), page);
    page.add("<BR><BR><B>POWER PLAY<BR></B>");
    page.add(kFullColumns);
    Rows(s, t, PageFirstRow(kPowerPlayPage), page);
    page.add("<BR><BR><B>PENALTY KILL<BR></B>");
    page.add(kKillColumns);
    Rows(s, t, PageFirstRow(kPenaltyKillPage), page);
    page.add("<BR><BR><B>STARTING GOALIE</B><BR>");
    page.add(Condense(SlotName(s, t.at(kGoalieRow, 0))));
    page.add("<BR><BR><B>SCRATCHES</B><BR>");
    Scratches(s, t, page);
    page.add("</PRE><BR><BR><BR>");
  });
  page.write();
}

}  // namespace kvl
