#include "transactions/expansion_draft.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/transaction_log.h"
#include "reports/html.h"
#include "team/auto_all.h"
#include "team/auto_roster.h"
#include "transactions/database_players.h"
#include "ui/ui.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Expansion Draft";
constexpr int kStockedRoster = 20;  // what a schedule demands of an expansion team

enum Group { kForwards, kDefenceGroup, kGoalies };
Group GroupOf(int pos) { return pos < kDefence ? kForwards : pos == kDefence ? kDefenceGroup : kGoalies; }
const char* GroupName(Group g) { return g == kForwards ? "forwards" : g == kDefenceGroup ? "defencemen" : "goalies"; }

int NamedPlayers(LeagueState& s, int team) {
  loadteam(s, team, 0);
  return kRosterSlots - static_cast<int>(std::count_if(s.Player[0].begin(), s.Player[0].begin() + kRosterSlots,
                                                       [](const Player& p) { return p.empty(); }));
}

}  // namespace

bool ExpansionDraft(LeagueState& s) {
  if (ExpansionDraftForm(s).expansionTeams().empty()) {
    s.ui.tell("No team is marked as an expansion team: mark one in Align League first.", kTitle);
    return false;
  }
  League& l = s.league;
  if (l.ExpansionRounds != 0) return s.ui.ask("Continue Expansion Draft?", kTitle, Buttons::YesNo) == Answer::Yes;
  if (s.ui.ask("Begin Expansion Draft?", kTitle, Buttons::YesNo) != Answer::Yes) return false;
  l.ExpansionRounds = 1;
  l.ExpansionDraftOn = kTrue;
  for (int t = 0; t < s.numTeams(); ++t) s.team(t).ExpFwd = s.team(t).ExpDef = s.team(t).ExpGoal = 0;
  s.Dirty = true;
  return true;
}

std::vector<UnprotectedEntry> ExpansionDraftForm::unprotected() {
  std::vector<UnprotectedEntry> out;
  for (int t = 0; t < s_.numTeams(); ++t) {
    if (s_.team(t).Expansion != 0) continue;
    loadteam(s_, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s_.player(0, slot);
      if (!p.empty() && p.Protected == 0) out.push_back({t, slot, p.Name.str(), p.Pos, Overall(p)});
    }
  }
  return out;
}

std::vector<int> ExpansionDraftForm::expansionTeams() const {
  std::vector<int> out;
  for (int t = 0; t < s_.numTeams(); ++t)
    if (s_.team(t).Expansion != 0) out.push_back(t);
  return out;
}

int ExpansionDraftForm::roomFor(int team, int pos) const {
  const Team& t = s_.team(team);
  switch (GroupOf(pos)) {
    case kForwards:
      return quota_.forwards - t.ExpFwd;
    case kDefenceGroup:
      return quota_.defence - t.ExpDef;
    default:
      return quota_.goalies - t.ExpGoal;
  }
}

bool ExpansionDraftForm::cmdAdd(int team, int fromTeam, int slot) {
  auto refuse = [&](const std::string& text, const char* title = kTitle) {
    s_.ui.tell(text, title);
    return false;
  };
  if (!s_.league.ExpansionDraftOn)
    return refuse("No expansion draft is under way: begin one with Begin Expansion Draft.");
  if (s_.team(team).Expansion == 0) return refuse(s_.team(team).Name.str() + " is not an expansion team.");
  loadteam(s_, fromTeam, 0);
  loadteam(s_, team, 1);
  Player& p = s_.player(0, slot);
  if (s_.team(fromTeam).Expansion != 0 || p.empty() || p.Protected != 0)
    return refuse(fmt::format("{} has no unprotected player in slot {}.", s_.team(fromTeam).Name.str(), slot + 1));
  if (roomFor(team, p.Pos) <= 0)
    return refuse(fmt::format("{} have taken all the {} an expansion team may take.", s_.team(team).Name.str(),
                              GroupName(GroupOf(p.Pos))));
  const int to = FirstFreeSlot(s_, 1);
  if (to < 0) return refuse("No room on roster", "Transfer Player");
  // Both teams' lines must be made again before they play.
  if (p.Status >= 100) s_.team(fromTeam).LinesOK = 0;
  s_.team(team).LinesOK = 0;
  PlaceOnRoster(s_, 1, to, p, NewcomerStatus(s_, 1));
  const std::string line = HtmlText(Condense(s_.team(team).Name.str())) + " acquire " +
                           HtmlText(Condense(p.Name.str())) + " in expansion draft<BR><BR>";
  Team& taker = s_.team(team);
  ++(GroupOf(p.Pos) == kForwards ? taker.ExpFwd : GroupOf(p.Pos) == kDefenceGroup ? taker.ExpDef : taker.ExpGoal);
  p = Player{};
  SaveTeam(s_, fromTeam, 0);
  SaveTeam(s_, team, 1);
  AppendTransactionAndHistory(s_, line);
  s_.Dirty = true;
  if (over()) Finish();
  return true;
}

bool ExpansionDraftForm::over() {
  const std::vector<UnprotectedEntry> open = unprotected();
  for (int team : expansionTeams()) {
    if (NamedPlayers(s_, team) >= kRosterSlots) continue;
    for (const UnprotectedEntry& e : open)
      if (roomFor(team, e.pos) > 0) return false;
  }
  return true;
}

// A dressed club needs centres and both wings: the forwards come a few of
// each position first.
bool ExpansionDraftForm::AutoWants(int team, int pos) {
  constexpr int kEachForward = 4;
  if (roomFor(team, pos) <= 0) return false;
  if (pos >= kDefence) return true;
  loadteam(s_, team, 1);
  std::array<int, 3> forwards{};
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s_.player(1, slot);
    if (!p.empty() && p.Pos < kDefence) ++forwards[p.Pos];
  }
  return forwards[static_cast<std::size_t>(pos)] < kEachForward ||
         std::all_of(forwards.begin(), forwards.end(), [](int n) { return n >= kEachForward; });
}

int ExpansionDraftForm::cmdAuto() {
  int taken = 0;
  for (bool progress = true; progress && s_.league.ExpansionDraftOn;) {
    progress = false;
    for (int team : expansionTeams()) {
      if (!s_.league.ExpansionDraftOn || NamedPlayers(s_, team) >= kRosterSlots) continue;
      std::vector<UnprotectedEntry> open = unprotected();
      std::erase_if(open, [&](const UnprotectedEntry& e) { return !AutoWants(team, e.pos); });
      const auto best =
          std::max_element(open.begin(), open.end(),
                           [](const UnprotectedEntry& a, const UnprotectedEntry& b) { return a.overall < b.overall; });
      if (best == open.end() || !cmdAdd(team, best->team, best->slot)) continue;
      ++taken;
      progress = true;
    }
  }
  return taken;
}

void ExpansionDraftForm::Finish() {
  League& l = s_.league;
  l.ExpansionDraftOn = kFalse;
  // A later expansion begins its own draft.
  l.ExpansionRounds = 0;
  // A stocked team is dressed and given lines at once, so its roster is legal.
  for (int team : expansionTeams())
    if (NamedPlayers(s_, team) >= kStockedRoster) {
      s_.team(team).Expansion = 0;
      if (AutoAllShortages(s_, 0).empty()) AutoRoster(s_, team, 0);
    }
  s_.Dirty = true;
  s_.ui.tell("Expansion Draft Complete", kTitle);
}

}  // namespace kvl
