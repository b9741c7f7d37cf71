#include "season/rerate.h"

#include <fmt/format.h>

#include <cmath>

#include "league/league_files.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr int kLastSkaterRating = kSco, kLastGoalieRating = kPcc;

int Floor(double x) { return static_cast<int>(std::floor(x)); }

double Change(Rnd& rnd, int g, int r) {
  if (g == 5) return Floor(rnd() * 10) - 5;
  if (g == 0) return Floor(rnd() * 7) - 3;
  return Floor(g * rnd() * 7) * (99 - r) / 100.0;
}

// Exp and Ldr are bytes: a value outside one stops the pass, as it always
// has, before the team is saved.
u8 Byte(const Player& p, const char* field, int value) {
  if (value < 0 || value > 255)
    throw KvlError(fmt::format("Re-rating {}: {} would be {}, outside 0 to 255; no rating of his team was changed",
                               p.Name.str(), field, value));
  return static_cast<u8>(value);
}

}  // namespace

int GrowthClass(Rnd& rnd, int age) {
  if (age < 17) return Floor(rnd() * 3) + 2;
  if (age <= 24) return Floor(rnd() * 3);
  if (age <= 29) return Floor(rnd() * 2) + 1;
  if (age <= 35) return Floor(rnd() * 3) - 1;
  if (age <= 39) {
    const int first = Floor(rnd() * -2);
    return first + Floor(rnd() * -3);
  }
  return Floor(rnd() * -6);
}

void RerateOne(Rnd& rnd, Player& p) {
  const int g = GrowthClass(rnd, p.Age);
  const int last = p.Pos == kGoalie ? kLastGoalieRating : kLastSkaterRating;
  for (int i = 0; i <= last; ++i) {
    const int r = p.rating(i);
    const double d = Change(rnd, g, r);
    if (r + d > 0) p.rating(i) = static_cast<u8>(CInt(r + d));
  }
  if (p.rating(kExp) != 0) {
    const int exp = p.rating(kExp) + Floor(rnd() * 6) - 1;
    const int ldr = p.rating(kLdr) + Floor(rnd() * 10) - 3;
    p.rating(kExp) = Byte(p, "Exp", exp);
    p.rating(kLdr) = Byte(p, "Ldr", ldr);
  }
  for (int i = 0; i <= kLastSkaterRating; ++i) p.rating(i) = static_cast<u8>(std::clamp<int>(p.rating(i), 25, 99));
}

void RerateLeague(LeagueState& s) {
  for (int t = 0; t < s.numTeams(); ++t) {
    s.ui.progress("Rerating Players", s.team(t).Name.str(), t, s.numTeams());
    loadteam(s, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (!s.player(0, slot).empty()) RerateOne(s.rnd, s.player(0, slot));
    SaveTeam(s, t, 0);
  }
  s.ui.progressDone();
  s.league.LgByteB = kReratedMark;
  s.Dirty = true;
}

bool ReRate(LeagueState& s) {
  const std::string title = "Rerate Players";
  if (s.league.LgByteB == kReratedMark &&
      s.ui.ask("The league was re-rated already this off-season: every player would grow or fade a second "
               "year.\n\nRe-rate the players again?",
               title, Buttons::YesNo) != Answer::Yes)
    return false;
  if (s.ui.ask("Rerating players simulates growth and development that occurs between seasons.\n\nWould you like to "
               "perform a player re-rate?",
               title, Buttons::YesNo) != Answer::Yes) {
    s.ui.tell("The option to rerate your players will be available from the menu until you start a new season.", title);
    return false;
  }
  RerateLeague(s);
  return true;
}

}  // namespace kvl
