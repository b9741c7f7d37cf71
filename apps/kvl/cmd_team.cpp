// Commands of this area are registered here.
#include "session.h"

namespace kvl {

void RegisterTeamCommands(CLI::App&, Session&) {}

}  // namespace kvl
