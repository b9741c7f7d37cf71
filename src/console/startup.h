#pragma once
// Start-up of the console: the home folder, the one-copy lock, the default
// header, and finding the last league.
#include <optional>
#include <string>

#include "league/league_state.h"
#include "util/file_lock.h"

namespace kvl {

// Holds an exclusive lock on the home folder while the program runs.
class HomeLock {
 public:
  // False when another copy holds it.
  bool acquire(const fs::path& home) { return lock_.acquire(home / "kvl.lock"); }

 private:
  FileLock lock_;
};

// The header a new default.lge holds.
League DefaultLeagueHeader();
// Writes the bundled default files (default.lge, default.coa, default.drs,
// inj.dtf) into `dir`; with `replace` false only those that are missing.
void WriteDefaultFiles(const fs::path& dir, bool replace);
// Creates the folders and the default files when missing; true for a new home
// folder (default.lge was missing).
bool PrepareHomeFolder(const fs::path& home);
// Finds the league to open (kvl.def, else a search of the home folder), telling
// as the old console did when a league was lost or none is found. A home folder
// where no league was ever loaded or made starts quietly, a new one (`freshHome`)
// with one line saying the default files were written. Empty when there is none.
std::string FindStartLeague(LeagueState& s, bool freshHome);
// The whole start-up after the lock: folders, defaults, then `league` when given
// (without extension), else the last league, loaded.
void StartUp(LeagueState& s, const std::optional<std::string>& league);

}  // namespace kvl
