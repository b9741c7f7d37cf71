// The expansion draft's page: each team's unprotected players.
#include <array>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "transactions/expansion_draft.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr const char* kColumns =
    "<PRE>Player                 AG CO     SALARY  PO IT SP ST EN DU DI SK PA PC DF SC EX LD OV";

// A goalie's rating of 0 is one that does not apply to him.
std::string RatingText(const Player& p, int value) { return p.Pos == kGoalie && value == 0 ? "NA" : NumText(value); }

std::string UnprotectedRow(const Player& p, const std::vector<std::size_t>& ends) {
  std::vector<std::string> values{NumText(p.Age), NumText(p.Contract), FormatNumber(p.Salary, "#,000"),
                                  Trim(PosName[std::min<std::size_t>(p.Pos, 4)])};
  for (int r = kInt; r <= kLdr; ++r) values.push_back(RatingText(p, p.rating(r)));
  values.push_back(RatingText(p, Overall(p)));
  return RowUnder(CutLabel(p.Name.str(), 22), values, ends);
}

}  // namespace

void ExpansionDraftForm::cmdOutput() {
  const std::string prefix = s_.LeagueShort;
  std::vector<std::string> page{"<HTML>", "<TITLE>" + prefix + " Unprotected Players</TITLE>",
                                "<H1>" + prefix + " Unprotected Players</H1>"};
  std::vector<std::size_t> ends = CaptionEnds(kColumns);
  ends.erase(ends.begin());  // the name is the row's label
  for (int t = 0; t < s_.numTeams(); ++t) {
    if (s_.team(t).Expansion != 0) continue;
    page.push_back("<H3>" + TeamText(s_, t) + "</H3>");
    page.push_back(kColumns);
    loadteam(s_, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s_.player(0, slot);
      if (!p.empty() && p.Protected == 0) page.push_back(UnprotectedRow(p, ends));
    }
    page.push_back("</PRE>");
  }
  page.push_back("</HTML>");
  WritePage(TransferFile(s_, "ExpansionDraft.html"), page);
  s_.ui.tell("Output Complete", "Unprotected Players Outputted");
}

}  // namespace kvl
