#include "admin/update_stats.h"

#include <vector>

#include "admin/player_database.h"
#include "league/league_files.h"
#include "ui/ui.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Update Ratings";
constexpr i32 kMaxProspectSalary = 32767;  // hundreds of dollars in a 16-bit field

struct Update {
  LeagueState& s;
  const std::vector<DbRecord>& db;
  std::vector<bool> used;
  bool newSalaries;

  // The record for `name`, marked used; nullptr when none is left.
  const Player* Take(const FixedText<22>& name) {
    const int n = FindUnusedByName(db, used, name);
    if (n < 0) return nullptr;
    used[static_cast<std::size_t>(n)] = true;
    return &db[static_cast<std::size_t>(n)].P;
  }

  void Rostered(Player& p) {
    const Player* d = Take(p.Name);
    if (!d) return;
    TakeDatabaseValues(p, *d, newSalaries);
    // New values start healthy and free to play on the list he stands on.
    p.Status = static_cast<u8>(p.list() * 100);
    p.Suspended = 0;
    p.Contract = d->Contract;
  }

  void Prospect(ProspectList& l, std::size_t i) {
    const Player* d = Take(l.Name[i]);
    if (!d) return;
    l.Pos[i] = d->Pos;
    l.Age[i] = d->Age;
    l.Contract[i] = d->Contract;
    if (!newSalaries) return;
    i32 hundreds = d->Salary / 100;
    if (hundreds > kMaxProspectSalary) {
      s.ui.tell("Warning " + l.Name[i].str() +
                    " new salary is greater than the maximum integer size. It has been lowered to 32,767",
                kTitle);
      hundreds = kMaxProspectSalary;
    }
    l.Salary[i] = static_cast<i16>(hundreds);
  }

  void Team(int team) {
    loadteam(s, team, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (!s.player(0, slot).empty()) Rostered(s.player(0, slot));
    ProspectList& l = s.Prospects[0];
    for (std::size_t i = 0; i < kMaxProspects; ++i)
      if (!l.Name[i].empty()) Prospect(l, i);
    SaveTeam(s, team, 0);
  }

  void FreeAgents() {
    RecordFile f(s.swap(swp::Database), DbRecord::kSize);
    for (std::size_t n = 1; n <= f.count(); ++n) {
      DbRecord r = f.getRecord<DbRecord>(n);
      if (r.DbFlag != 0 || r.P.empty()) continue;
      const Player* d = Take(r.P.Name);
      if (!d) continue;
      TakeDatabaseValues(r.P, *d, newSalaries);
      r.P.Contract = d->Contract;
      f.putRecord(n, r);
    }
  }
};

}  // namespace

bool UpdateStats(LeagueState& s, std::optional<std::filesystem::path> chosen) {
  if (s.ui.ask("Current statistics will be lost. Update Player Ratings?", kTitle, Buttons::YesNo) != Answer::Yes)
    return false;
  const bool newSalaries = s.ui.ask("Use New Salaries?", kTitle, Buttons::YesNo) == Answer::Yes;
  if (!chosen) chosen = s.ui.chooseFile("Select Player DB", "All Files|*.*|Data Files|*.drs", s.AppPath, false);
  if (!chosen || chosen->empty()) return false;
  const std::vector<DbRecord> db = ReadPlayerDatabase(*chosen);
  Update u{s, db, std::vector<bool>(db.size(), false), newSalaries};
  for (int team = 0; team < s.numTeams(); ++team) {
    s.ui.progress("Updating Player Ratings", s.team(team).Name.str(), team, s.numTeams());
    u.Team(team);
  }
  s.ui.progressDone();
  u.FreeAgents();
  s.Dirty = true;
  s.ui.tell("Done", kTitle);
  return true;
}

}  // namespace kvl
