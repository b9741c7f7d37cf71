#pragma once
// The page groups, one writer each, in the fixed order of writing.
#include <array>
#include <string_view>

#include "reports/page.h"

namespace kvl {

void WriteTeamStats(PageRun& run);
void WriteStandings(PageRun& run);  // the tree, the standings and the farm standings
void WriteRosters(PageRun& run);
void WriteLeaders(PageRun& run);  // with Top5Points and the farm leaders
void WriteTeamScoring(PageRun& run);
void WriteInjury(PageRun& run);
void WriteFinance(PageRun& run);
void WriteFutures(PageRun& run);
void WriteSchedule(PageRun& run);
void WriteLines(PageRun& run);
void WriteIndividual(PageRun& run);  // with Top5Goals and Top5Assist
void WriteWaivers(PageRun& run);
void WritePlayerVitals(PageRun& run);
void WriteCoaches(PageRun& run);
void OutputTransactions(PageRun& run);
void OutputHistoricTransactions(PageRun& run);
void WriteGMs(PageRun& run);

struct PageGroup {
  int flag;               // the group's number, 1..16, as the options list it
  std::string_view name;  // its name on the command line
  const char* status;     // the progress text while it is written
  void (*write)(PageRun&);
  // The pages it writes, behind the league prefix; the playoffs' schedule
  // pages are named by round instead.
  std::array<const char*, 3> files;
};

constexpr int kPageGroups = 16;
// In the order of writing.
const std::array<PageGroup, kPageGroups>& PageGroups();

// Transfer/<league>index.html, linking every page the league has in
// Transfer/, and Transfer/index.html, which points to it.
void WriteLeagueIndex(PageRun& run);

}  // namespace kvl
