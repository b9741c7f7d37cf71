#include "transactions/unused_players.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "league/ratings.h"
#include "transactions/database_players.h"
#include "ui/ui.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Assign Unused Players";

}  // namespace

std::vector<UnusedEntry> UnusedPlayers::list() {
  std::vector<UnusedEntry> out;
  std::vector<DbRecord> db = ReadDatabase(s_);
  for (std::size_t i = 0; i < db.size(); ++i)
    if (db[i].DbFlag == 0 && !db[i].P.empty())
      out.push_back({static_cast<int>(i) + 1, db[i].P.Name.str(), db[i].P.Pos, Overall(db[i].P)});
  return out;
}

bool UnusedPlayers::cmdAdd(int team, int record) {
  std::vector<DbRecord> db = ReadDatabase(s_);
  if (record < 1 || record > static_cast<int>(db.size()) || db[static_cast<std::size_t>(record - 1)].P.empty()) {
    s_.ui.tell(fmt::format("There is no player {} in the database.", record), kTitle);
    return false;
  }
  const DbRecord& r = db[static_cast<std::size_t>(record - 1)];
  if (r.DbFlag != 0) {
    s_.ui.tell(r.P.Name.str() + " already plays for a team.", kTitle);
    return false;
  }
  loadteam(s_, team, 0);
  int slot = FirstFreeSlot(s_, 0);
  if (slot < 0) {
    s_.ui.tell("No room on roster", kTitle);
    return false;
  }
  PlaceOnRoster(s_, 0, slot, r.P, NewcomerStatus(s_, 0));
  SaveTeam(s_, team, 0);
  MarkUsed(s_, {record});
  s_.Dirty = true;
  s_.ui.tell(r.P.Name.str() + " added to roster", kTitle);
  return true;
}

FillResult UnusedPlayers::cmdAuto() {
  FillResult r = FillRosters(s_);
  std::string text = fmt::format("{} players assigned.", r.assigned);
  if (!r.shortTeams.empty()) {
    text += "\nNot enough unused players to complete:";
    for (int t : r.shortTeams) text += "\n" + s_.team(t).Name.str();
  }
  s_.ui.tell(text, kTitle);
  return r;
}

}  // namespace kvl
