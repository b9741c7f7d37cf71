// The expansion draft's page: each team's unprotected players.
#include <array>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "reports/player_lists.h"
#include "transactions/expansion_draft.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr const char* kColumns =
    "<PRE>Player                 AG CO     SALARY  PO IT SP ST EN DU DI SK PA PC DF SC EX LD OV";

std::string UnprotectedRow(const Player& p, const std::vector<std::size_t>& ends) {
  std::vector<std::string> values{NumText(p.Age), NumText(p.Contract), FormatNumber(p.Salary, "#,000")};
  for (std::string& v : PositionAndRatings(p)) values.push_back(std::move(v));
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
