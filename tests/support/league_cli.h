#pragma once
// A crafted league written where the kvl program finds it, and kvl run over it.
#include <string>
#include <vector>

#include "support/found_cli.h"
#include "support/league_fixture.h"

namespace kvl::test {

// The plan is written as <dir>/league/<name>; every run takes --home <dir>/home,
// --league and then `lead` (such as a seed) before its own arguments.
struct CliLeague {
  explicit CliLeague(const LeaguePlan& plan, const std::string& name = "test", std::vector<std::string> lead = {});
  ProgramRun kvl(std::vector<std::string> args, const std::string& input = "") const;
  TempDir dir;
  fs::path home;
  std::string path;  // without extension
  std::vector<std::string> lead;
};

}  // namespace kvl::test
