#include "team/coach_card.h"

#include <fmt/format.h>

#include "team/coach_file.h"
#include "team/coach_rules.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {
constexpr std::size_t kLastCardRecord = 100;
constexpr const char* kStyleNames[] = {"Offensive", "Defensive", "Balanced"};
}  // namespace

CoachCard DisplayCoach(LeagueState& s, int team) {
  Team& t = s.team(team);
  CoachCard card;
  card.team = t.Name.str();
  if (t.CoachRec < 1 || t.CoachRec > kLastCardRecord) return card;
  std::vector<Coach> coaches = ReadCoaches(s);
  card.coach = t.CoachRec < coaches.size() ? coaches[t.CoachRec] : Coach{};
  card.style = CoachStyle(card.coach->OF, card.coach->DF);
  StoredCoachStyle(t) = card.style;
  return card;
}

std::string CoachCardText(const CoachCard& card) {
  if (!card.coach) return "Head Coach of the " + card.team + ": none";
  const Coach& c = *card.coach;
  return fmt::format(
      "Head Coach of the {}: {}\nOffense     {}\nDefense     {}\nExperience  {}\nLeadership  {}\nSalary      {}\n"
      "Style       {}",
      card.team, c.Name.str(), c.OF, c.DF, c.EX, c.LD, FormatNumber(ShownSalary(c.Salary), "$#,##0"),
      kStyleNames[card.style]);
}

void RefuseCoachEdit(LeagueState& s) {
  s.ui.tell("You cannot change coach attributes here.\nHire a new coach or change ratings from Manager | View All "
            "Coaches.",
            "Edit Coach Info");
  throw Refused("coach card is read only");
}

}  // namespace kvl
