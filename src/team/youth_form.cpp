#include "team/youth_form.h"

#include <algorithm>

#include "league/league_files.h"
#include "league/transaction_log.h"
#include "reports/html.h"
#include "team/youth_promotion.h"
#include "transactions/database_players.h"
#include "ui/ui.h"
#include "util/cp1252.h"

namespace kvl {

namespace {

constexpr std::size_t At(int i) { return static_cast<std::size_t>(i); }

}  // namespace

ViewProspects::ViewProspects(LeagueState& s, int team) : s_(s), team_(team) {
  s.CurTeam = static_cast<u8>(team);
  loadteam(s, team, 0);
}

std::vector<int> ViewProspects::entries() const {
  std::vector<int> out;
  for (int i = 0; i < kMaxProspects; ++i)
    if (!list().Name[At(i)].empty()) out.push_back(i);
  return out;
}

int ViewProspects::cmdAdd(std::optional<std::string> name, const ProspectTerms& terms) {
  int free = -1;
  for (int i = 0; i < kMaxProspects && free < 0; ++i)
    if (list().Name[At(i)].empty()) free = i;
  if (free < 0) {
    s_.ui.tell("No room on prospect list", "Add Prospect");
    return -1;
  }
  if (!name) name = s_.ui.prompt("Name of prospect", "Add Prospect", "");
  if (!name || name->empty()) return -1;
  ProspectList& l = s_.Prospects[0];
  l.Name[At(free)].set(Utf8ToCp1252(*name));
  l.Pos[At(free)] = static_cast<u8>(terms.pos);
  l.Age[At(free)] = static_cast<u8>(terms.age);
  l.Contract[At(free)] = static_cast<u8>(terms.contract);
  l.Salary[At(free)] = static_cast<i16>(terms.salary / 100);
  SaveTeam(s_, team_, 0);
  s_.Dirty = true;
  return free;
}

void ViewProspects::cmdDelete(int entry) {
  s_.Prospects[0].Name[At(entry)].clear();
  SaveTeam(s_, team_, 0);
  s_.Dirty = true;
}

FindMatch ViewProspects::cmdActivate(int entry) { return FindMatch(s_, team_, entry); }

FindMatch::FindMatch(LeagueState& s, int team, int entry) : s_(s), team_(team), entry_(entry), db_(ReadDatabase(s)) {
  const auto& name = s.Prospects[0].Name[At(entry)];
  // A drafted prospect's record is marked used (he is no free agent) while
  // no roster holds him: it is his own to be activated from.
  // A free record of his name comes first.
  const bool held = OnAnyRoster(s, name);
  std::optional<int> drafted;
  for (std::size_t n = 0; n < db_.size(); ++n) {
    const bool his = db_[n].P.Name == name && !name.empty();
    const bool used = db_[n].DbFlag != 0;
    if (used && (held || !his)) continue;
    Records.push_back(static_cast<int>(n + 1));
    std::optional<int>& match = used ? drafted : Matched;
    if (!match && his) match = static_cast<int>(n + 1);
  }
  if (!Matched) Matched = drafted;
}

std::string FindMatch::status() const { return Matched ? "Name has been matched" : "No match has been found"; }

bool FindMatch::cmdMatch(int record) {
  if (std::find(Records.begin(), Records.end(), record) == Records.end()) return false;
  const int slot = FirstFreeSlot(s_, 0);
  if (slot < 0) {
    s_.ui.tell("You cannot have more than 50 players on your roster", "No Room on Roster");
    return false;
  }
  PlaceOnRoster(s_, 0, slot, db_[At(record - 1)].P, NewcomerStatus(s_, 0));
  MarkUsed(s_, {record});
  Records.erase(std::find(Records.begin(), Records.end(), record));
  Signed(slot);
  return true;
}

bool FindMatch::cmdManual(std::optional<std::string> name) {
  const ProspectList& list = s_.Prospects[0];
  if (!name) name = s_.ui.prompt("Name of new player", "Name Player", Cp1252ToUtf8(list.Name[At(entry_)].str()));
  if (!name || name->empty()) return false;
  const int slot = FirstFreeSlot(s_, 0);
  if (slot < 0) {
    s_.ui.tell("No room on roster", "Name Player");
    return false;
  }
  const i32 salary = static_cast<i32>(list.Salary[At(entry_)]) * 100;
  const Player p = PromoteProspect(NewPlayerFields(Utf8ToCp1252(*name), list.Pos[At(entry_)], list.Age[At(entry_)],
                                                   salary, list.Contract[At(entry_)]));
  PlaceOnRoster(s_, 0, slot, p, NewcomerStatus(s_, 0));
  Signed(slot);
  return true;
}

void FindMatch::Signed(int slot) {
  s_.Prospects[0].Name[At(entry_)].clear();
  const std::string name = Condense(s_.player(0, slot).Name.str());
  const std::string team = Condense(s_.team(team_).Name.str());
  s_.ui.tell(name + " added to the " + team, "Activate Prospect");
  AppendTransactionAndHistory(s_, HtmlText(team) + " sign " + HtmlText(name) + "<BR><BR>");
  SaveTeam(s_, team_, 0);
  s_.Dirty = true;
}

}  // namespace kvl
