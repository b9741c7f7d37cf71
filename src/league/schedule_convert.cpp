#include "league/schedule_convert.h"

namespace kvl {

// Conversion of the older schedule forms lands with the schedule maker.
void ConvertSchedCheck(LeagueState&) {}

}  // namespace kvl
