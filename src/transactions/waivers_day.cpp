#include "transactions/waivers_day.h"

namespace kvl {

void WaiversDay(LeagueState&) {}

}  // namespace kvl
