// Commands of this area are registered here.
#include "session.h"

namespace kvl {

void RegisterAlignmentCommands(CLI::App&, Session&) {}

}  // namespace kvl
