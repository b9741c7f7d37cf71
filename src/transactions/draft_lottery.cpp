#include "transactions/draft_lottery.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

#include "transactions/draft_turn.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

int TeamsOutOfPlayoffs(int numTeams, int playoffSize) {
  const int qualifiers = playoffSize == 0 ? 16 : playoffSize == 1 ? 8 : 4;
  return numTeams - qualifiers;
}

std::vector<int> TeamsByPlace(const std::vector<int>& place) {
  std::vector<int> teams(place.size());
  std::iota(teams.begin(), teams.end(), 0);
  std::stable_sort(teams.begin(), teams.end(), [&](int a, int b) {
    return place[static_cast<std::size_t>(a)] < place[static_cast<std::size_t>(b)];
  });
  return teams;
}

LotteryDraw DrawDraftLottery(const std::vector<int>& priority, int missed, double u) {
  LotteryDraw d;
  d.missed = missed;
  const int c = std::max(missed, 0);
  d.tickets.assign(priority.size(), 0);
  for (std::size_t t = 0; t < priority.size(); ++t) {
    if (priority[t] < c) d.tickets[t] = c - priority[t];
    d.ticketBox.insert(d.ticketBox.end(), static_cast<std::size_t>(d.tickets[t]), static_cast<int>(t));
  }
  d.order = TeamsByPlace(priority);
  if (d.ticketBox.empty()) return d;
  d.winner = d.ticketBox[static_cast<std::size_t>(u * static_cast<double>(d.ticketBox.size()))];
  const auto from = std::find(d.order.begin(), d.order.end(), d.winner);
  const std::ptrdiff_t p = from - d.order.begin();
  const std::ptrdiff_t to = p <= 3 ? 0 : p - 4;
  // The winner lands at `to`; the teams he passes each go one place down.
  std::rotate(d.order.begin() + to, from, from + 1);
  return d;
}

void DraftLottery(LeagueState& s) {
  s.rnd.Randomize();
  const int missed = TeamsOutOfPlayoffs(s.numTeams(), s.league.PlayoffSize);
  if (missed < 0)
    s.ui.tell(
        "Only non-playoff teams use the lottery draft system. 'Enable Lottery' setting will be ignored for this draft ",
        "Invalid Lottery Setting");
  else
    s.ui.tell("Lottery setting is enabled for the bottom " + NumText(missed) + " ranking teams.",
              "Lottery Notification");
  std::vector<int> priority;
  for (int t = 0; t < s.numTeams(); ++t) priority.push_back(s.team(t).Priority);
  const LotteryDraw d = DrawDraftLottery(priority, missed, s.rnd());
  for (std::size_t place = 0; place < d.order.size(); ++place)
    s.team(d.order[place]).DraftOrder = static_cast<u8>(place);
  std::string shown = LotteryMoveText(s).value_or(
      d.winner < 0 ? "Draft lottery: no ticket was drawn."
                   : "Draft lottery: " + s.team(d.winner).Name.str() + " won and keeps pick 1.");
  shown += "\nFirst round:\n";
  for (const std::string& line : RoundOrderLines(s, 0)) shown += line + "\n";
  s.ui.print(shown);
}

namespace {
std::vector<int> Order(const LeagueState& s, u8 Team::*place) {
  std::vector<int> places;
  for (int t = 0; t < s.numTeams(); ++t) places.push_back(s.team(t).*place);
  return TeamsByPlace(places);
}
}  // namespace

std::optional<std::string> LotteryMoveText(const LeagueState& s) {
  const std::vector<int> before = Order(s, &Team::Priority), after = Order(s, &Team::DraftOrder);
  const auto moved = std::mismatch(before.begin(), before.end(), after.begin());
  if (moved.first == before.end()) return std::nullopt;
  const int winner = *moved.second;
  const auto from = std::find(before.begin(), before.end(), winner) - before.begin();
  const auto to = moved.second - after.begin();
  return fmt::format("Draft lottery: {}, pick {} before the draw, moved to pick {}.", s.team(winner).Name.str(),
                     from + 1, to + 1);
}

}  // namespace kvl
