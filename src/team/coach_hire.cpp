#include "team/coach_hire.h"

#include "league/transaction_log.h"
#include "reports/html.h"
#include "team/coach_file.h"

namespace kvl {

namespace {

// Unlinks the present coach and logs it; his name, for the caller.
void ReleaseCoach(LeagueState& s, int team) {
  Team& t = s.team(team);
  std::vector<Coach> coaches = ReadCoaches(s);
  std::string name = t.Coach.Name.str();
  if (t.CoachRec < coaches.size()) {
    Coach& old = coaches[t.CoachRec];
    if (!old.Name.empty()) name = old.Name.str();
    old.Team = Coach::kNoTeam;
    WriteCoach(s, t.CoachRec, old);
  }
  AppendTransaction(s, HtmlText(t.Name.str()) + " fire Head Coach " + HtmlText(name) + "<BR><BR>");
}

}  // namespace

void HireCoach(LeagueState& s, int team, std::size_t rec) {
  Team& t = s.team(team);
  if (t.CoachRec != 0) ReleaseCoach(s, team);
  Coach c = ReadCoaches(s).at(rec);
  t.Coach.Name = c.Name;
  t.Coach.Salary = c.Salary;
  t.CoachRec = static_cast<u8>(rec);
  c.Team = CoachTeamField(team);
  WriteCoach(s, rec, c);
  AppendTransaction(s, HtmlText(t.Name.str()) + " hire Head Coach " + HtmlText(c.Name.str()) + "<BR><BR>");
  s.Dirty = true;
}

bool FireCoach(LeagueState& s, int team) {
  Team& t = s.team(team);
  if (t.CoachRec == 0) return false;
  ReleaseCoach(s, team);
  t.Coach = TeamCoach{};
  t.Coach.Name.set("");
  t.CoachRec = 0;
  s.Dirty = true;
  return true;
}

}  // namespace kvl
