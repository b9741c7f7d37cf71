#include "season/reset_league.h"

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

namespace {

void ResetTeamFigures(Team& t) {
  t.W = t.L = t.T = {};
  t.GA = t.GF = 0;
  t.PPO = t.PKO = 0;
  t.PPG = t.PKG = 0;
  t.SF = t.SA = t.TeamPIM = 0;
  t.HomeGames = 0;
  t.Attendance = 0;
  t.Revenue = 0;
  t.Waived = kFalse;
  t.Streak = 0;
}

void ResetPlayerFigures(Player& p) {
  p.GP = p.G = p.A = 0;
  p.PIM = p.Shots = p.Plus = 0;
  p.PP = p.SH = p.GW = p.GT = p.GSStreak = p.PSStreak = p.HatTricks = 0;
  p.StarPoints = 0;
  p.FarmStatA = p.FarmStatB = p.FarmStatC = 0;
  p.FarmStatD = 0;
  p.Traded = kFalse;
  p.Hits = 0;
}

}  // namespace

void ResetLeague(LeagueState& s) {
  bool heal = !s.league.SeasonOver && !s.league.Exhibition;
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    Team& team = s.team(t);
    ResetTeamFigures(team);
    FarmTeam& farm = s.Farm[static_cast<std::size_t>(t)];
    farm.GA = farm.GF = 0;
    farm.W = farm.T = farm.L = 0;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      Player& p = s.player(0, slot);
      ResetPlayerFigures(p);
      if (heal) {
        p.Condition = 100;
        p.Status = static_cast<u8>(p.Status / 100 * 100);
      }
    }
    if (!s.league.SeasonOver) team.PlayoffOut = 0;
    SaveTeam(s, t, 0);
  }
  RemoveIfExists(s.swap(swp::Career));
}

}  // namespace kvl
