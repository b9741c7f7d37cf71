#include "console/startup.h"

#include <algorithm>
#include <fstream>

#include "admin/default_data.h"
#include "league/league_files.h"
#include "ui/ui.h"
#include "util/record_file.h"

namespace kvl {

League DefaultLeagueHeader() {
  League lg;
  for (auto* f : {&lg.OutputDir, &lg.BoxscoreDir, &lg.CommandDir}) f->set("");
  lg.LgTextA.set("");
  lg.OptCoach = lg.OptInjuries = lg.LgFlagA = kTrue;
  lg.OptStreaks = lg.OptSuspensions = lg.OptWaivers = lg.OptAutoOutput = kTrue;
  lg.Slider.fill(5);
  lg.CurrentYear = 1;
  lg.AgeExempt = 23;
  lg.UnresAge = 30;
  lg.MinGP = 25;
  lg.TradeDeadline = 80;
  lg.TwoWayAfter = 50;
  lg.DraftRounds = 9;
  lg.OptLottery = kTrue;
  std::fill_n(lg.CheckFlags.begin(), 16, u8{255});
  return lg;
}

void WriteDefaultFiles(const fs::path& dir, bool replace) {
  auto wanted = [&](const std::string& name) { return replace || !fs::exists(dir / name); };
  if (wanted("default.lge")) WriteFileAtomic(dir / "default.lge", EncodeRecord(DefaultLeagueHeader()));
  for (const char* name : kDefaultDataNames)
    if (wanted(name)) WriteFileAtomic(dir / name, DefaultDataFile(name));
}

bool PrepareHomeFolder(const fs::path& home) {
  for (const char* dir : {"Headers", "Transfer", "Boxscores", "Command"}) fs::create_directories(home / dir);
  const bool fresh = !fs::exists(home / "default.lge");
  WriteDefaultFiles(home, false);
  return fresh;
}

namespace {

std::string ReadKvlDef(const fs::path& home) {
  std::ifstream in(home / "kvl.def");
  std::string line;
  std::getline(in, line);
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.pop_back();
  return line;
}

// The first league file of the home folder other than default.lge, by name.
std::string SearchHome(const fs::path& home) {
  std::vector<std::string> found;
  for (const auto& e : fs::directory_iterator(home)) {
    std::string name = e.path().filename().string();
    if (e.is_regular_file() && StripLeagueExtension(name) != name && StripLeagueExtension(name) != "default")
      found.push_back(name);
  }
  if (found.empty()) return "";
  std::sort(found.begin(), found.end());
  return (home / StripLeagueExtension(found.front())).string();
}

}  // namespace

std::string FindStartLeague(LeagueState& s, bool freshHome) {
  bool hasDef = fs::exists(s.AppPath / "kvl.def");
  std::string path = hasDef ? ReadKvlDef(s.AppPath) : "";
  if (hasDef && !path.empty() && fs::exists(FindLeagueFile(path, ".lge"))) return path;
  std::string found = SearchHome(s.AppPath);
  // Nothing was lost: no league was ever opened here, so there is nothing to warn of.
  if (path.empty() && found.empty()) {
    if (freshHome)
      s.ui.tell("New home folder " + s.AppPath.string() +
                    ": the default files were written (default.lge, default.coa, default.drs, inj.dtf).",
                "KVL");
    return found;
  }
  if (!path.empty())
    s.ui.tell("The last league files you loaded, " + path + "\nare not accessible.\n\nKVL will search for other league files.",
              "Load Last League");
  else
    s.ui.tell("KVL was unable to find default league files.\nKVL will search for league files.", "Load Default League");
  if (found.empty())
    s.ui.tell("Searching " + s.AppPath.string() +
                  " did not reveal any league files.\nYou must load new league files using the File|Load menu.",
              "Load Local League Files");
  return found;
}

void StartUp(LeagueState& s, const std::optional<std::string>& league) {
  try {
    const bool fresh = PrepareHomeFolder(s.AppPath);
    std::string path = league ? fs::absolute(StripLeagueExtension(*league)).lexically_normal().string()
                              : FindStartLeague(s, fresh);
    if (!path.empty()) LoadLg(s, path);
  } catch (const FatalStop&) {
    throw;  // already told
  } catch (const Refused&) {
    throw;
  } catch (const std::exception&) {
    s.ui.tell("An unexpected error occurred in the initialization of KVL.", "Load League");
    throw;
  }
}

}  // namespace kvl
