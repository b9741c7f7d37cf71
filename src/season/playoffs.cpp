#include "season/playoffs.h"

#include "league/league_files.h"
#include "season/playoff_bracket.h"
#include "season/playoff_series.h"
#include "season/rerate.h"
#include "season/reset_league.h"
#include "ui/ui.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Playoffs";

bool Refuse(LeagueState& s, const std::string& why) {
  s.ui.tell(why, kTitle);
  return false;
}

}  // namespace

void BeginPlayoffs(LeagueState& s) {
  s.Playoff = PlayoffState{};
  for (int t = 0; t < s.numTeams(); ++t) s.team(t).PlayoffOut = 0;
  s.Playoff.PlayoffRound = 1;
  MakePlayoffSeeds(s);
  ResetLeague(s);
  CreatePlayoffSchedule(s);
  s.LeaguePath += "PLF";
  s.LeagueShort += "PLF";
  WriteKvlDef(s);
  s.league.InPlayoffs = kTrue;
  s.league.Exhibition = kFalse;
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) s.player(0, slot).Traded = kFalse;
    SaveTeam(s, t, 0);
  }
  s.Dirty = true;
}

bool Playoffs(LeagueState& s) {
  const League& l = s.league;
  if (!l.SeasonOver || l.InPlayoffs)
    return Refuse(s, "The playoffs begin once the regular season has been played out.");
  if (s.LeaguePath.empty())
    return Refuse(s,
                  "The league has no file name yet: save it (save-as) before the playoffs, which are kept "
                  "beside it under the same name with PLF behind it.");
  if (std::string why = QuotaShortfall(s); !why.empty()) return Refuse(s, why);
  if (s.ui.ask("Begin Playoffs", kTitle, Buttons::YesNoCancel) != Answer::Yes) return false;
  if (s.Dirty && s.ui.ask("Save Current League?", "Save League", Buttons::YesNo) == Answer::Yes) SaveLg(s);
  BeginPlayoffs(s);
  s.ui.tell("The playoffs are kept as " + s.LeaguePath, kTitle);
  return true;
}

void FinishPlayoffs(LeagueState& s, const PlayoffEnd& end) {
  s.ui.tell(s.team(PlayoffChampion(s)).Name.str() + " win the playoffs", "Playoffs Complete");
  League& l = s.league;
  l.OffSeason = kTrue;
  l.SeasonOver = kFalse;
  l.InPlayoffs = kFalse;
  s.Dirty = true;
  if (end.askToRerate && !ReRate(s)) return;
  if (!end.askToRerate) RerateLeague(s);
  SaveLeagueAs(s, "Save Rerated League as a New Name", end.saveAs);
}

}  // namespace kvl
