#pragma once
// Leagues made the way a user makes them: from the bundled database, with
// teams added through the alignment.
#include "support/league_fixture.h"

namespace kvl::test {

// Replaces the harness's league by a new one from the home folder's
// default.drs with `teams` teams ("Club0", ...) in four divisions a conference.
void NewBundledLeague(Harness& h, int teams);

}  // namespace kvl::test
