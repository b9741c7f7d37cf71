#include "reports/auto_output.h"

namespace kvl {

void AutoHTMLOutput(LeagueState&) {}

}  // namespace kvl
