// The entry draft's picks as made, and the draft page.
#include <algorithm>

#include "reports/html.h"
#include "reports/page_files.h"
#include "transactions/draft_list.h"
#include "transactions/draft_lottery.h"
#include "transactions/draft_turn.h"
#include "transactions/entry_draft.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

std::vector<MadePick> DraftNew::picks() const {
  const std::vector<DraftListRecord> list = ReadDraftList(s_);
  const int teams = std::max(s_.numTeams(), 1);
  std::vector<MadePick> out;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const DraftListRecord& r = list[i];
    if (r.FieldA == 0 || r.FieldE < 1 || r.FieldE > static_cast<int>(list.size())) continue;
    const int overall = static_cast<int>(i) + 1;
    out.push_back({overall, (overall - 1) / teams, r.FieldB.str(), r.FieldC.empty() ? "" : r.FieldC.str(),
                   list[static_cast<std::size_t>(r.FieldE - 1)].Name.str()});
  }
  return out;
}

void DraftNew::cmdOutput() {
  const std::string prefix = s_.LeagueShort;
  std::vector<std::string> page{"<HTML>", "<TITLE>" + prefix + " Entry Draft</TITLE>",
                                "<H1>" + prefix + " Entry Draft</H1>"};
  const std::vector<MadePick> made = picks();
  if (auto move = s_.league.OptLottery && (s_.league.EntryDraftOn || !made.empty()) ? LotteryMoveText(s_)
                                                                                      : std::nullopt)
    page.push_back("<P>" + HtmlText(*move) + "</P>");
  // Once the draft is over the picks held are next year's; the rounds below tell who picked for whom.
  if (s_.league.EntryDraftOn) {
    page.push_back("<H3>Order of Round " + NumText(s_.league.DraftRound + 1) + "</H3>");
    for (const std::string& line : RoundOrderLines(s_, s_.league.DraftRound)) page.push_back(HtmlText(line) + "<BR>");
  }
  for (int round = 0; round < s_.league.DraftRounds; ++round) {
    page.push_back("<H3>Round " + NumText(round + 1) + "</H3>");
    for (const MadePick& p : made) {
      if (p.round != round) continue;
      std::string line = NumText(p.overall) + ". " + HtmlText(p.team);
      if (!p.fromTeam.empty()) line += " (from " + HtmlText(p.fromTeam) + ")";
      page.push_back(line + ", <B>" + HtmlText(p.player) + "</B><BR>");
    }
  }
  // The closing tag does not match: the page has always been written so.
  page.push_back("<H2>Available Players</H3>");
  for (const UndraftedEntry& e : undrafted()) page.push_back(HtmlText(e.name) + "<BR>");
  page.push_back("</HTML>");
  WritePage(TransferFile(s_, "EntryDraft.html"), page);
  s_.ui.tell("Output Complete", "Entry Draft Outputted");
}

}  // namespace kvl
