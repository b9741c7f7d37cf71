// The trade office's judgement: what players, picks and cash are worth, and
// whether trading is still open.
#include <fmt/format.h>

#include <cmath>

#include "league/ratings.h"
#include "transactions/trade_office.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

bool TradeDeadlinePassed(const League& lg) {
  if (!lg.ScheduleMade) return false;
  const double allowed = lg.TradeDeadline / 100.0;
  const double played = static_cast<double>(lg.GamesPlayed) / static_cast<double>(lg.LeagueGames);
  return allowed < played || lg.SeasonOver != 0;
}

bool TradeDeadlineAllows(LeagueState& s) {
  if (!TradeDeadlinePassed(s.league)) return true;
  s.ui.tell("Trade Deadline Has Expired", "Deadline Expired");
  return false;
}

double PlayerTradeValue(const Player& p) {
  const double ov = Overall(p);
  // The old judgement raised a negative number to a fractional power here and stopped.
  if (ov < 25)
    throw KvlError(fmt::format("Trade value of {}: Overall {} is below 25, which the judgement cannot value",
                               p.Name.str(), ov));
  const double age = 40.0 - p.Age;
  return std::pow(ov / 10.0, 4.7) + age * age +
         2.0 * (100.0 + std::pow(ov - 25.0, 2.72) / 100.0 + 180.0 - p.Salary / 1000.0);
}

double PickTradeValue(const DraftPick& p) {
  return std::pow(5000.0, 100.0 / (5.0 * p.Round + 100.0)) * (100.0 - 10.0 * p.CurrentYear) / 100.0;
}

i32 CashShown(const std::string& txtCash) {
  std::string digits;
  for (std::size_t i = 1; i < txtCash.size(); ++i)
    if (txtCash[i] != ',') digits += txtCash[i];
  return static_cast<i32>(std::llround(Val(digits)));
}

}  // namespace kvl
