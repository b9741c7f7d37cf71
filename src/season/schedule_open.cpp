#include "league/league_files.h"
#include "season/schedule_form.h"
#include "ui/ui.h"

namespace kvl {

namespace {

constexpr int kFewestTeams = 8;
constexpr int kStockedRoster = 20;

int NamedPlayers(LeagueState& s, int t) {
  loadteam(s, t, 0);
  int named = 0;
  for (int slot = 0; slot < kRosterSlots; ++slot) named += s.player(0, slot).empty() ? 0 : 1;
  return named;
}

}  // namespace

bool ScheduleFormMayOpen(LeagueState& s) {
  if (s.numTeams() < kFewestTeams) {
    s.ui.tell("Not enough teams in league", "Make Schedule");
    return false;
  }
  // While the expansion draft runs its teams are still being stocked.
  if (s.league.ExpansionDraftOn) return true;
  for (int t = 0; t < s.numTeams(); ++t)
    if (s.team(t).Expansion == 1 && NamedPlayers(s, t) < kStockedRoster) {
      s.ui.tell("Must assign players to expansion teams", "Make Schedule");
      return false;
    }
  return true;
}

}  // namespace kvl
