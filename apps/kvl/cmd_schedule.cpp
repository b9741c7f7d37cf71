// Commands of this area are registered here.
#include "session.h"

namespace kvl {

void RegisterScheduleCommands(CLI::App&, Session&) {}

}  // namespace kvl
