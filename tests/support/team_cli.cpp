#include "support/team_cli.h"

#include <sys/wait.h>

#include <array>
#include <cstdio>

namespace kvl::test {

KvlCli::KvlCli(const LeaguePlan& plan)
    : home_((dir_.path() / "home").string()), league_((dir_.path() / "league" / "cli").string()) {
  fs::create_directories(dir_.path() / "league");
  WriteLeague(plan, league_);
}

CliRun KvlCli::run(const std::string& args) const {
  std::string cmd = std::string(KVL_BINARY) + " --home '" + home_ + "' --league '" + league_ + ".lge' " + args +
                    " </dev/null 2>&1";
  CliRun r;
  FILE* pipe = ::popen(cmd.c_str(), "r");
  if (!pipe) return r;
  std::array<char, 4096> buf{};
  for (std::size_t n; (n = std::fread(buf.data(), 1, buf.size(), pipe)) > 0;) r.output.append(buf.data(), n);
  int raw = ::pclose(pipe);
  r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return r;
}

}  // namespace kvl::test
