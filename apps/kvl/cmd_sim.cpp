// Commands of this area are registered here.
#include "session.h"

namespace kvl {

void RegisterSimCommands(CLI::App&, Session&) {}

}  // namespace kvl
