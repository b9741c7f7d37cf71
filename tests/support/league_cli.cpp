#include "support/league_cli.h"

namespace kvl::test {

CliLeague::CliLeague(const LeaguePlan& plan, const std::string& name, std::vector<std::string> lead)
    : home(dir.path() / "home"), path((dir.path() / "league" / name).string()), lead(std::move(lead)) {
  fs::create_directories(dir.path() / "league");
  WriteLeague(plan, path);
}

ProgramRun CliLeague::kvl(std::vector<std::string> args, const std::string& input) const {
  std::vector<std::string> all{"--home", home.string(), "--league", path + ".lge"};
  all.insert(all.end(), lead.begin(), lead.end());
  all.insert(all.end(), args.begin(), args.end());
  return RunKvl(all, dir.path() / "io", input);
}

}  // namespace kvl::test
