#include "sim/exhibition.h"

#include "sim/box_score.h"
#include "sim/game.h"

namespace kvl {

ExhibitionResult PlayExhibition(LeagueState& s, int away, int home) {
  GameOptions opt;
  opt.isExhibition = true;
  Game game(s, opt);
  game.PlayGame(away, home);
  ExhibitionResult r;
  r.page = WriteBoxScore(game, BoxScoreInfo{});
  r.awayGoals = game.side[0].Goals;
  r.homeGoals = game.side[1].Goals;
  r.overtimes = game.OvertimeCount;
  return r;
}

}  // namespace kvl
