#include "season/new_season.h"

#include "league/league_files.h"
#include "season/rerate.h"
#include "season/reset_league.h"
#include "transactions/priority.h"
#include "ui/ui.h"

namespace kvl {

void AgeLeague(LeagueState& s) {
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      Player& p = s.player(0, slot);
      ++p.Age;
      if (p.Contract > 0) --p.Contract;
    }
    ProspectList& pros = s.Prospects[0];
    for (int i = 0; i < kMaxProspects; ++i) {
      const std::size_t k = static_cast<std::size_t>(i);
      if (pros.Contract[k] > 0) --pros.Contract[k];
      ++pros.Age[k];
    }
    SaveTeam(s, t, 0);
  }
}

void RollOverSeason(LeagueState& s) {
  MakeNewPriority(s);
  League& l = s.league;
  l.OffSeason = l.SeasonOver = l.InPlayoffs = l.ScheduleMade = l.ExpansionDraftOn = kFalse;
  l.NextGameMark = l.GamesPlayed = 0;
  l.FirstDayPending = kTrue;
  if (l.LgByteB == kReratedMark) l.LgByteB = 0;
  ResetLeague(s);
  AgeLeague(s);
  // Never saved over the old season by accident: the league has no name now.
  s.LeaguePath.clear();
  s.Dirty = true;
}

bool NewSeason(LeagueState& s, const std::optional<fs::path>& saveAs) {
  if (s.ui.ask("Start New Season", "New Season", Buttons::YesNo) != Answer::Yes) return false;
  if (s.Dirty) {
    Answer a = s.ui.ask("Save Current League?", "Save League", Buttons::YesNoCancel);
    if (a == Answer::Cancel) return false;
    if (a == Answer::Yes) SaveLg(s);
  }
  RollOverSeason(s);
  SaveLeagueAs(s, "", saveAs);
  if (s.LeaguePath.empty() &&
      s.ui.ask(
          "If you run a full season without saving your file\nand try to start playoff with a unnamed league, the\n"
          "simulator will crash! Save Current League?",
          "Save League", Buttons::YesNo) == Answer::Yes)
    SaveLeagueAs(s, "", std::nullopt);
  return true;
}

}  // namespace kvl
