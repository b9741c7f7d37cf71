#pragma once
// The one open league: the header, the teams and farm clubs, the two-side player
// buffer and the working values. Passed by reference; there are no globals.
#include <array>
#include <filesystem>
#include <string>

#include "league/records.h"
#include "util/clock.h"
#include "util/file_lock.h"
#include "util/file_system.h"
#include "util/rnd.h"

namespace kvl {

class Ui;

namespace fs = std::filesystem;

// What a league is, apart from who it talks to and where its swap files lie.
struct LeagueData {
  Rnd rnd;

  League league;
  std::array<Team, kMaxTeams> Teams{};
  std::array<FarmTeam, kMaxTeams> Farm{};
  // Player(side, slot): side 0 visitors, side 1 home; slot 50 is scratch.
  std::array<std::array<kvl::Player, kBufferSlots>, 2> Player{};
  std::array<ProspectList, 2> Prospects{};
  std::array<std::array<i16, 201>, 2> DbIndex{};
  PlayoffState Playoff;

  bool Dirty = false;
  std::string LeaguePath;  // full path without extension; empty for an unnamed league
  std::string LeagueShort;
  u8 CurTeam = 0;
  u8 CurPlayer = 0;

  bool loaded = false;

  // Where league files are written; a test puts one in that fails on demand.
  FileSystem* fileSystem = &RealFileSystem();
  // Held on the open league's lock file, so no other copy opens it. A copy of
  // the state (the engine's parallel runs) holds no lock of its own.
  struct LeagueLock : FileLock {
    LeagueLock() : FileLock(true) {}
    LeagueLock(const LeagueLock&) : FileLock(true) {}
    using FileLock::operator=;
  };
  LeagueLock leagueLock;
};

struct LeagueState : LeagueData {
  LeagueState(Ui& ui, const Clock& clock, fs::path appPath) : ui(ui), clock(clock), AppPath(std::move(appPath)) {}
  // The same league talking to another Ui, on swap files in another folder
  // (a season played on a copy); the caller copies the swap files there.
  LeagueState(const LeagueState& from, Ui& otherUi, fs::path appPath)
      : LeagueData(from), ui(otherUi), clock(from.clock), AppPath(std::move(appPath)) {}
  LeagueState(const LeagueState&) = default;

  Ui& ui;
  const Clock& clock;
  fs::path AppPath;  // the home folder: swap files, defaults, kvl.def

  bool hasLeague() const { return loaded; }
  FileSystem& files() const { return *fileSystem; }

  kvl::Player& player(int side, int slot) { return Player[static_cast<std::size_t>(side)][static_cast<std::size_t>(slot)]; }
  const kvl::Player& player(int side, int slot) const {
    return Player[static_cast<std::size_t>(side)][static_cast<std::size_t>(slot)];
  }
  Team& team(int t) { return Teams[static_cast<std::size_t>(t)]; }
  const Team& team(int t) const { return Teams[static_cast<std::size_t>(t)]; }
  int numTeams() const { return league.NumTeams; }

  // A swap file of the home folder, such as "swp.t".
  fs::path swap(const std::string& name) const { return AppPath / name; }
  // A league file: LeaguePath with the extension (".tms").
  fs::path leagueFile(const std::string& ext) const { return fs::path(LeaguePath + ext); }
};

}  // namespace kvl
