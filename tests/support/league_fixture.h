#pragma once
// Small leagues written to a temporary home folder, for tests.
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "league/league_state.h"
#include "ui/scripted_ui.h"
#include "util/clock.h"

namespace kvl::test {

namespace fs = std::filesystem;

// A temporary folder removed with the object.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

// A player of the given position with every rating at `level`.
Player MakePlayer(const std::string& name, int pos, int level, int status = 200);

// What a crafted league holds before it is written.
struct LeaguePlan {
  League header;
  std::vector<Team> teams;
  std::vector<std::vector<Player>> rosters;  // per team, up to 50 slots
  std::vector<Coach> coaches;
};

// `teams` teams in two conferences of two divisions (four above 40 teams), each with a legal dressed
// roster (4 C, 4 LW, 4 RW, 7 D, 3 G; 20 dressed) and two minor leaguers. Ratings
// vary by team and slot with `seed`.
LeaguePlan StandardLeague(int teams, unsigned seed = 1);
// StandardLeague's coach t hired by team t, for every team.
void HireStandardCoaches(LeaguePlan& plan);
// Writes the file set (.lge .tms .ros .pct .drs .dpk .coa .frm) at `path` (no extension).
void WriteLeague(const LeaguePlan& plan, const std::string& path);

// A home folder, a scripted user, a fixed clock and a league state over them.
struct Harness {
  Harness();
  TempDir dir;
  fs::path home;
  ScriptedUi ui;
  FixedClock clock{46000.5};
  LeagueState state;
  // Writes `plan` as home/league/<name> and loads it.
  std::string load(const LeaguePlan& plan, const std::string& name = "test");
};

// Replaces the harness's league by a new one made as a user makes it: from the home folder's
// default.drs, with `teams` teams ("Club0", ...) added in four divisions a conference.
void NewBundledLeague(Harness& h, int teams);

}  // namespace kvl::test
