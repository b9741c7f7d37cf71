// The game's running record: clock texts, names, and the end of a period.
#include "reports/html.h"
#include "sim/game.h"
#include "util/numbers.h"

namespace kvl {

std::string ClockText(int clock) {
  int minutes = clock / 60;
  int seconds = clock - 60 * minutes;
  return NumText(minutes) + ":" + (seconds < 10 ? "0" : "") + NumText(seconds);
}

std::string Ordinal(int n) {
  static constexpr const char* suffix[] = {"st", "nd", "rd"};
  return NumText(n) + (n >= 1 && n <= 3 ? suffix[n - 1] : "");
}

std::string OrdinalPeriod(int period) { return Ordinal(period) + " Period"; }

std::string Game::PlayerName(int sd, int slot) const { return HtmlText(s.player(sd, slot).Name.str()); }
std::string Game::ShortPlayerName(int sd, int slot) const { return ShortName(PlayerName(sd, slot)); }
std::string Game::TeamName(int sd) const { return HtmlText(s.team(sideOf(sd).team).Name.str()); }
std::string Game::TeamAbbrev(int sd) const { return HtmlText(s.team(sideOf(sd).team).Abbrev.str()); }

void Game::EndPeriod() {
  const std::size_t period = static_cast<std::size_t>(Period);
  bool scored = false;
  for (std::size_t sd = 0; sd < 2; ++sd) {
    if (side[sd].Goals != PeriodGoals[sd][period - 1]) scored = true;
    PeriodShots[sd][period] = side[sd].Shots;
    PeriodGoals[sd][period] = side[sd].Goals;
  }
  if (!scored) {
    PlayByPlay.push_back("<BR>");
    PlayByPlay.push_back("NO SCORING<P>");
  }
  PlayByPlay.push_back("<BR>");
  if (!PeriodPenalties.empty()) PlayByPlay.push_back("<I>PENALTIES: " + PeriodPenalties + "</I><BR>");
}

}  // namespace kvl
