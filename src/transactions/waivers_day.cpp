#include "transactions/waivers_day.h"

#include "transactions/waivers.h"

namespace kvl {

void WaiversDay(LeagueState& s) { UpdateWaivers(s); }

}  // namespace kvl
