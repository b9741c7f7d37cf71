#include "sim/exhibition.h"

#include "sim/box_score.h"
#include "sim/game.h"

namespace kvl {

ExhibitionResult PlayExhibition(LeagueState& s, int away, int home) {
  GameOptions opt;
  opt.isExhibition = true;
  Game game(s, opt);
  // The game loads both teams and may make lines for a team without them, as
  // before any game; the console's choice of team and its save mark stay.
  const u8 curTeam = s.CurTeam;
  const bool dirty = s.Dirty;
  game.PlayGame(away, home);
  s.CurTeam = curTeam;
  s.Dirty = dirty;
  ExhibitionResult r;
  r.page = WriteBoxScore(game, BoxScoreInfo{});
  r.awayGoals = game.side[0].Goals;
  r.homeGoals = game.side[1].Goals;
  r.overtimes = game.OvertimeCount;
  return r;
}

}  // namespace kvl
