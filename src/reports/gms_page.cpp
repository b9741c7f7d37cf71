// The general managers: who runs each team and how to reach them.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "team/cards_email.h"

namespace kvl {

namespace {

// The page closes itself before the footer, and one more "</HTML>" follows it.
const PageInfo kGMs{"GMs.html", " GM Page", 16, 16, "<HTML><H1>General Managers</H1>"};

}  // namespace

void WriteGMs(PageRun& run) {
  const LeagueState& s = run.s;
  Page page(run, kGMs);
  page.add("<PRE>TEAM            GENERAL MANAGER           INSTANT MSG ID   EMAIL");
  std::string all;
  for (int t = 0; t < s.numTeams(); ++t) {
    const Team& team = s.team(t);
    const std::string mail = TeamEmail(s, t);
    page.add(HtmlText(Pad(team.Name.str(), 16)) + HtmlText(Pad(team.Owner.str(), 26)) +
             HtmlText(Pad(team.ICQ.str(), 17)) + (mail.empty() ? "" : Link("mailto:" + mail, HtmlText(mail))));
    if (!mail.empty()) all += (all.empty() ? "" : ",") + mail;
  }
  page.add("<BR><BR>" + Link("mailto:" + all, "Email All GMs"));
  page.add("</PRE></HTML>");
  page.write();
}

}  // namespace kvl
