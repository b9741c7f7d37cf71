#include "reports/output_form.h"

#include "reports/page_groups.h"
#include "ui/ui.h"

namespace kvl {

const std::array<PageGroup, kPageGroups>& PageGroups() {
  static const std::array<PageGroup, kPageGroups> groups{{
      {12, "teamstats", "Creating Team Stats Page", WriteTeamStats},
      {1, "standings", "Creating Standings Page", WriteStandings},
      {2, "rosters", "Creating Rosters Page", WriteRosters},
      {3, "leaders", "Creating Leaderboard Page", WriteLeaders},
      {4, "teamscoring", "Creating Team Scoring Page", WriteTeamScoring},
      {5, "injury", "Creating Injury Report", WriteInjury},
      {6, "finance", "Creating Financial Page", WriteFinance},
      {7, "futures", "Creating Prospects Page", WriteFutures},
      {8, "schedule", "Creating Schedule Page", WriteSchedule},
      {9, "lines", "Creating Lines Page", WriteLines},
      {10, "individual", "Creating Indiv. Leaders Page", WriteIndividual},
      {11, "waivers", "Creating Waivers Page", WriteWaivers},
      {13, "vitals", "Creating Player Vitals Page", WritePlayerVitals},
      {14, "coaches", "Creating Coach Ratings Page", WriteCoaches},
      {15, "transactions", "Creating Transactions Page",
       [](PageRun& run) {
         OutputTransactions(run);
         // The season's list is written by the transaction commands too; here
         // it keeps the published folder whole.
         OutputHistoricTransactions(run);
       }},
      {16, "gms", "Creating GM Page", WriteGMs},
  }};
  return groups;
}

PagePicks StoredPagePicks(const League& lg) {
  PagePicks picks{};
  for (std::size_t i = 1; i < picks.size(); ++i) picks[i] = lg.CheckFlags[i] != 0;
  return picks;
}

PagePicks AllPageGroups() {
  PagePicks picks{};
  picks.fill(true);
  return picks;
}

int WritePageGroups(LeagueState& s, const PagePicks& picks, bool treeAlways) {
  PageRun run{s, treeAlways};
  long step = 0;
  for (const PageGroup& g : PageGroups()) {
    if (!picks[static_cast<std::size_t>(g.flag)]) continue;
    s.ui.progress("Output", g.status, step, kPageGroups - 1);
    g.write(run);
    ++step;
  }
  s.ui.progressDone();
  return run.pages;
}

Output::Output(LeagueState& s) : Check(StoredPagePicks(s.league)), s_(s) {}

int Output::cmdOutput() {
  int pages = WritePageGroups(s_, Check, true);
  s_.ui.tell("Output complete", "Output");
  return pages;
}

}  // namespace kvl
