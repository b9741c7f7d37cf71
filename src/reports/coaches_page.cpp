// Coach ratings: every team's coach, then those without a team.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "team/coach_file.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kCoaches{"Coaches.html", " Coaches", 14, 14, "<HTML><H1>Coach Ratings</H1>"};

const char* const kColumns = "                                   OF  DF  EX  LD  SALARY";

std::string Row(const Coach& c, const std::string& label) {
  return RowUnder(HtmlText(c.Name.str() + label),
                  {NumText(c.OF), NumText(c.DF), NumText(c.EX), NumText(c.LD), FormatNumber(c.Salary, "0,000")},
                  CaptionEnds(kColumns));
}

}  // namespace

void WriteCoaches(PageRun& run) {
  const LeagueState& s = run.s;
  const std::vector<Coach> coaches = ReadCoaches(s);
  Page page(run, kCoaches);
  page.add("<PRE>");
  page.add(kColumns);
  for (int t = 0; t < s.numTeams(); ++t)
    for (std::size_t n = 1; n < coaches.size(); ++n)
      if (CoachTeamIndex(coaches[n]) == t) page.add(Row(coaches[n], " (" + s.team(t).Name.str() + ")"));
  for (std::size_t n = 1; n < coaches.size(); ++n)
    if (!coaches[n].Name.empty() && CoachTeamIndex(coaches[n]) < 0) page.add(Row(coaches[n], " (Available)"));
  page.add("</PRE><P>");
  page.write();
}

}  // namespace kvl
