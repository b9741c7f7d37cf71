// The waiver wire and the priority list. Until the waiver wire is built the
// waiver file holds no players, and the page says so.
#include "league/league_files.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "reports/page_groups.h"
#include "util/dates.h"
#include "util/record_file.h"

namespace kvl {

namespace {

const PageInfo kWaivers{"Waivers.html", " Waivers", 11, 20, "<H2>Waivers</H2>", true, ")</P><BR><BR>"};

std::string TeamOrNone(const LeagueState& s, int team, const char* none) {
  return team < s.numTeams() ? TeamText(s, team) : none;
}

void Wire(const LeagueState& s, Page& page) {
  std::vector<WaiverRecord> wire;
  for (const WaiverRecord& w : ReadSwapRecords<WaiverRecord>(s, swp::Waivers))
    if (!w.Name.empty() && !w.Name.str().empty()) wire.push_back(w);
  if (wire.empty()) {
    page.add("<H3>NO PLAYERS ON WAIVERS</H3><P>");
    return;
  }
  page.add("<H3>WAIVED PLAYERS</H3>");
  page.add("<PRE>Player                  Date Waived         Waived By      Claimed By ");
  for (const WaiverRecord& w : wire)
    page.add(HtmlText(Pad(w.Name.str(), 24)) + Pad(FormatDate(w.WaivedAt, "hh:mm ampm mmm d"), 20) +
             Pad(TeamOrNone(s, w.Holder, ""), 15) + TeamOrNone(s, w.ClaimedBy, "NO CLAIMS"));
  page.add("</PRE>");
}

void PriorityList(const LeagueState& s, Page& page) {
  page.add("<H3>PRIORITY LIST</H3>");
  if (!fs::exists(s.swap(swp::Priority))) return;
  RecordFile f(s.swap(swp::Priority), 1);
  for (std::size_t n = 1; n <= f.count(); ++n) {
    int team = f.get(n)[0];
    if (team < s.numTeams()) page.add(TeamText(s, team) + "<BR>");
  }
}

}  // namespace

void WriteWaivers(PageRun& run) {
  Page page(run, kWaivers);
  Wire(run.s, page);
  PriorityList(run.s, page);
  page.write();
}

}  // namespace kvl
