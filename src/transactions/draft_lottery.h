#pragma once
// The draft lottery: the teams that missed the playoffs hold tickets, the
// worst the most, and one draw lets its winner move up at most four places.
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

struct LotteryDraw {
  int missed = 0;              // C: teams out of the playoffs, below 0 when the league is too small
  std::vector<int> tickets;    // per team
  std::vector<int> ticketBox;  // team numbers, each as often as its tickets
  int winner = -1;             // -1 when no ticket was drawn
  std::vector<int> order;      // the team at each place
};

// C for a league of `numTeams` with the playoff size of the options.
int TeamsOutOfPlayoffs(int numTeams, int playoffSize);
// The lottery over the teams' waiver places (`priority`, per team), with `u`
// the uniform number of the one draw.
LotteryDraw DrawDraftLottery(const std::vector<int>& priority, int missed, double u);
// Teams in the order of their places, ties by team number.
std::vector<int> TeamsByPlace(const std::vector<int>& place);

// Sets every team's DraftOrder by lottery, telling which teams take part,
// then prints the draw and the first round's order.
void DraftLottery(LeagueState& s);
// The lottery's winner read back from the order it left: the team placed ahead
// of its waiver place, as "Draft lottery: X, pick 7 before the draw, moved to
// pick 3."; none when the order is the places' own.
std::optional<std::string> LotteryMoveText(const LeagueState& s);

}  // namespace kvl
