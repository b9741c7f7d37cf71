#include "reports/auto_output.h"

#include "reports/output_form.h"
#include "reports/page_groups.h"

namespace kvl {

void AutoHTMLOutput(LeagueState& s) { WritePageGroups(s, StoredPagePicks(s.league), false); }

void AutoRoundOutput(LeagueState& s) {
  constexpr std::size_t kScheduleGroup = 8;
  if (!StoredPagePicks(s.league)[kScheduleGroup]) return;
  PageRun run{s, false};
  WriteSchedule(run);
}

}  // namespace kvl
