// Each team's prospects and the draft picks it owns.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "transactions/draft_picks.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kFutures{"Futures.html", " Team Prospects", 7, 7, "<HTML><H1>Team Futures</H1>"};

std::string Prospects(const ProspectList& list) {
  std::string out;
  for (const auto& name : list.Name)
    if (!name.empty() && !name.str().empty()) out += (out.empty() ? "" : ", ") + HtmlText(name.str());
  return out;
}

void Picks(LeagueState& s, int team, Page& page) {
  const DraftPickRecord picks = ReadDraftPicks(s, team);
  for (int year = 0; year < kPickYears; ++year) {
    std::string line = "<B>Year: " + NumText(s.league.CurrentYear + year) + ":</B> ";
    for (const DraftPick& p : picks.Pick)
      if (p.Active && p.CurrentYear == year && p.Owner == team && p.OrigTeam < s.numTeams())
        line += NumText(p.Round + 1) + HtmlText(s.team(p.OrigTeam).Abbrev.str()) + " ";
    page.add(line + "<BR>");
  }
}

}  // namespace

void WriteFutures(PageRun& run) {
  LeagueState& s = run.s;
  Page page(run, kFutures);
  ForEachLoadedTeam(s, [&](int team) {
    page.add(TeamAnchor(s, team));
    page.add("<H4>Prospects</H4>");
    page.add(Prospects(s.Prospects[0]));
    page.add("<P><H4>Draft Picks</H4>");
    Picks(s, team, page);
  });
  page.write();
}

}  // namespace kvl
