#pragma once
// What nearly every test uses: GoogleTest, fmt, the league fixture, the league's
// files and records, and the program's errors.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/league_fixture.h"
#include "util/error.h"
#include "util/record_file.h"
