#include "team/coach_list.h"

#include <fmt/format.h>

#include <cmath>

#include "team/coach_file.h"
#include "team/coach_hire.h"
#include "team/coach_rules.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/fixed_text.h"
#include "util/numbers.h"

namespace kvl {

CoachList::CoachList(LeagueState& s, std::optional<int> hireFor) : s_(s), hireFor_(hireFor) { UpdateCoaches(); }

void CoachList::UpdateCoaches() { coaches_ = ReadCoaches(s_); }

Coach& CoachList::at(std::size_t rec) {
  if (rec == 0 || rec >= coaches_.size() || coaches_[rec].Name.empty())
    throw KvlError(fmt::format("there is no coach at record {}", rec));
  return coaches_[rec];
}

std::vector<std::size_t> CoachList::rows() const {
  std::vector<std::size_t> out;
  for (std::size_t i = 1; i < coaches_.size(); ++i)
    if (!coaches_[i].Name.empty()) out.push_back(i);
  return out;
}

std::string CoachList::SalaryCaption(std::size_t rec) const {
  const Coach& c = coaches_.at(rec);
  int team = CoachTeamIndex(c);
  if (team >= 0 && team < s_.numTeams()) return "Salary with " + s_.team(team).Name.str() + ":";
  return c.Name.str() + " asking:";
}

std::string CoachList::RowText(std::size_t rec) const {
  const Coach& c = coaches_.at(rec);
  return fmt::format("{:>3} {:<22} OF {:>2} DF {:>2} EX {:>2} LD {:>2}  {} {}", rec, c.Name.str(), c.OF, c.DF, c.EX,
                     c.LD, SalaryCaption(rec), FormatNumber(ShownSalary(c.Salary), "$#,##0"));
}

void CoachList::SetRating(std::size_t rec, int which, double value) {
  CoachRatingRef(at(rec), which) = static_cast<u8>(ClampCoachRating(value));
  modified_ = true;
}

void CoachList::SetSalary(std::size_t rec, double value) {
  Coach& c = at(rec);
  c.Salary = StoredSalary(ClampCoachSalary(value));
  int team = CoachTeamIndex(c);
  if (team >= 0 && team < s_.numTeams()) s_.team(team).Coach.Salary = c.Salary;
  modified_ = true;
}

void CoachList::cmdExit() {
  if (!modified_) return;
  if (s_.ui.ask("Save changes?", "Modified Coach", Buttons::YesNo) == Answer::Yes) {
    for (std::size_t i = 1; i < coaches_.size(); ++i) WriteCoach(s_, i, coaches_[i]);
    s_.Dirty = true;
  }
  modified_ = false;
}

std::optional<int> CoachList::AskNumber(const std::string& text, const std::string& title, int low, int high) {
  for (;;) {
    auto answer = s_.ui.prompt(text, title, "");
    if (!answer) return std::nullopt;
    double v = Val(*answer);
    if (v >= low && v <= high) return static_cast<int>(std::nearbyint(v));
  }
}

bool CoachList::cmdCreate() {
  auto name = s_.ui.prompt("Name of New Coach", "New Coach", "");
  if (!name) return false;
  Coach c;
  c.Name.set(PadCut(*name, 22));
  static constexpr std::array<std::pair<const char*, const char*>, 4> kPrompts{{
      {"Offensive Rating (50-100)", "Offensive Rating"},
      {"Defensive Rating (50-100)", "Defensive Rating"},
      {"Experience Rating (50-100)", "Experience Rating"},
      {"Leadership Rating (50-100)", "Leadership Rating"},
  }};
  for (int which = 0; which < 4; ++which) {
    auto [text, title] = kPrompts[static_cast<std::size_t>(which)];
    auto v = AskNumber(text, title, kCoachRatingMin, kCoachRatingPromptMax);
    if (!v) return false;
    CoachRatingRef(c, which) = static_cast<u8>(*v);
  }
  auto salary = AskNumber("Salary (50000-10000000)", "Salary", kCoachSalaryMin, kCoachSalaryMax);
  if (!salary) return false;
  c.Salary = StoredSalary(*salary);
  c.Team = Coach::kNoTeam;
  std::size_t rec = AppendCoach(s_, c);
  s_.ui.tell(c.Name.str() + " added to coach file", "Coach Added");
  s_.Dirty = true;
  if (coaches_.size() <= rec) coaches_.resize(rec + 1);
  coaches_[rec] = c;
  return true;
}

bool CoachList::cmdDelete(std::size_t rec) {
  Coach& c = at(rec);
  if (s_.ui.ask("Delete " + c.Name.str() + " from coach file?", "Delete Coach", Buttons::YesNo) != Answer::Yes)
    return false;
  c = Coach{};
  WriteCoach(s_, rec, c);
  s_.Dirty = true;
  return true;
}

bool CoachList::cmdSelect(std::size_t rec) {
  if (!hireFor_) {
    s_.ui.tell("You may only hire and fire coaches from Coach | Rosters | Coach Info", "List Coaches");
    throw Refused("hire from the plain list");
  }
  Coach& c = at(rec);
  std::string team = s_.team(*hireFor_).Name.str();
  int employer = CoachTeamIndex(c);
  if (employer >= 0) {
    std::string where = employer < s_.numTeams() ? s_.team(employer).Name.str() : std::to_string(c.Team);
    s_.ui.tell(c.Name.str() + " is already coaching for " + where + "!\nThey have to fire him first!",
               "Coach Already Employed");
    throw Refused("coach employed");
  }
  if (s_.ui.ask("Hire " + c.Name.str() + " to " + team + "?", "Hire Coach", Buttons::YesNo) != Answer::Yes)
    return false;
  std::size_t previous = s_.team(*hireFor_).CoachRec;
  HireCoach(s_, *hireFor_, rec);
  // Only the two links changed on file; unsaved edits of the list stay.
  if (previous > 0 && previous < coaches_.size()) coaches_[previous].Team = Coach::kNoTeam;
  c.Team = CoachTeamField(*hireFor_);
  return true;
}

std::optional<std::size_t> FindCoach(const LeagueState& s, const std::string& what) {
  std::vector<Coach> coaches = ReadCoaches(s);
  bool numeric = !what.empty() && what.size() < 4 && what.find_first_not_of("0123456789") == std::string::npos;
  if (numeric) {
    auto n = static_cast<std::size_t>(std::stoi(what));
    if (n >= 1 && n < coaches.size() && !coaches[n].Name.empty()) return n;
  }
  for (std::size_t i = 1; i < coaches.size(); ++i)
    if (!coaches[i].Name.empty() && coaches[i].Name.str() == what) return i;
  return std::nullopt;
}

}  // namespace kvl
