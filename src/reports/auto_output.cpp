#include "reports/auto_output.h"

#include "reports/output_form.h"

namespace kvl {

void AutoHTMLOutput(LeagueState& s) { WritePageGroups(s, StoredPagePicks(s.league), false); }

}  // namespace kvl
