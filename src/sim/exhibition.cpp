#include "sim/exhibition.h"

#include "sim/box_score.h"
#include "sim/game.h"

namespace kvl {

ExhibitionResult PlayExhibition(LeagueState& s, int away, int home) {
  GameOptions opt;
  opt.isExhibition = true;
  Game game(s, opt);
  const u8 curTeam = s.CurTeam;  // the game loads both teams; the console's choice stays
  game.PlayGame(away, home);
  s.CurTeam = curTeam;
  ExhibitionResult r;
  r.page = WriteBoxScore(game, BoxScoreInfo{});
  r.awayGoals = game.side[0].Goals;
  r.homeGoals = game.side[1].Goals;
  r.overtimes = game.OvertimeCount;
  return r;
}

}  // namespace kvl
