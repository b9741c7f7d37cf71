#pragma once
// Runs the kvl program on a league written by the fixture, as a user would.
#include <string>

#include "support/league_fixture.h"

namespace kvl::test {

struct CliRun {
  int status = -1;
  std::string output;  // stdout and stderr together
};

class KvlCli {
 public:
  // Writes `plan` under a temporary folder; the first run opens it.
  explicit KvlCli(const LeaguePlan& plan);
  // `args` go after the global options; the league is named on every run.
  CliRun run(const std::string& args) const;
  std::string leaguePath() const { return league_; }

 private:
  TempDir dir_;
  std::string home_, league_;
};

}  // namespace kvl::test
