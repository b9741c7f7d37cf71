#include "reports/output_form.h"

#include "reports/page_groups.h"
#include "ui/ui.h"

namespace kvl {

const std::array<PageGroup, kPageGroups>& PageGroups() {
  static const std::array<PageGroup, kPageGroups> groups{{
      {12, "teamstats", "Creating Team Stats Page", WriteTeamStats, {"TeamStats.html"}},
      {1, "standings", "Creating Standings Page", WriteStandings,
       {"StandingsTree.html", "Standings.html", "FarmStandings.html"}},
      {2, "rosters", "Creating Rosters Page", WriteRosters, {"Rosters.html"}},
      {3, "leaders", "Creating Leaderboard Page", WriteLeaders,
       {"Leaders.html", "Top5Points.html", "FarmLeaders.html"}},
      {4, "teamscoring", "Creating Team Scoring Page", WriteTeamScoring, {"TeamScoring.html"}},
      {5, "injury", "Creating Injury Report", WriteInjury, {"Injury.html"}},
      {6, "finance", "Creating Financial Page", WriteFinance, {"Finance.html"}},
      {7, "futures", "Creating Prospects Page", WriteFutures, {"Futures.html"}},
      {8, "schedule", "Creating Schedule Page", WriteSchedule, {"Schedule.html"}},
      {9, "lines", "Creating Lines Page", WriteLines, {"Lines.html"}},
      {10, "individual", "Creating Indiv. Leaders Page", WriteIndividual,
       {"Individual.html", "Top5Goals.html", "Top5Assist.html"}},
      {11, "waivers", "Creating Waivers Page", WriteWaivers, {"Waivers.html"}},
      {13, "vitals", "Creating Player Vitals Page", WritePlayerVitals, {"PlayerVitals.html"}},
      {14, "coaches", "Creating Coach Ratings Page", WriteCoaches, {"Coaches.html"}},
      {15, "transactions", "Creating Transactions Page",
       [](PageRun& run) {
         OutputTransactions(run);
         // The season's list is written by the transaction commands too; here
         // it keeps the published folder whole.
         OutputHistoricTransactions(run);
       },
       {"Transact.html", "TransactSeason.html"}},
      {16, "gms", "Creating GM Page", WriteGMs, {"GMs.html"}},
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
  WriteLeagueIndex(run);
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
