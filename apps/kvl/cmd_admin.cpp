// Commands of this area are registered here.
#include "session.h"

namespace kvl {

void RegisterAdminCommands(CLI::App&, Session&) {}

}  // namespace kvl
