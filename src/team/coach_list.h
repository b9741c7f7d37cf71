#pragma once
// The list of all coaches (ListCoaches): edits of ratings and salaries kept in
// a working copy until leaving, creating and deleting coaches, and hiring one
// for the current team when opened from the coach card.
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

class CoachList {
 public:
  // `hireFor` is the team of the card's "Hire Coach" (the select button on);
  // without it the list only views and edits.
  CoachList(LeagueState& s, std::optional<int> hireFor = std::nullopt);

  std::string caption() const { return hireFor_ ? "Hire Coach" : "List Coaches"; }
  // Record numbers of the coaches with a name.
  std::vector<std::size_t> rows() const;
  const Coach& coach(std::size_t rec) const { return coaches_.at(rec); }
  // "Salary with <team>:" for an employed coach, "<name> asking:" for a free one.
  std::string SalaryCaption(std::size_t rec) const;
  std::string RowText(std::size_t rec) const;

  // Edit fields: a rating clamps to 50..99, a salary to 50000..10000000 and is
  // stored doubled; an employed coach's team follows his salary.
  void SetRating(std::size_t rec, int which, double value);
  void SetSalary(std::size_t rec, double value);
  bool modified() const { return modified_; }

  // Prompts for a new coach; false when a prompt was cancelled.
  bool cmdCreate();
  // Asks, then blanks the record; false on no.
  bool cmdDelete(std::size_t rec);
  // Hires `rec` for the team after asking; refuses (Refused) in the plain list,
  // and for a coach who already has a team. False on no.
  bool cmdSelect(std::size_t rec);
  // Leaving: with edits, asks "Save changes?" and writes every record on yes.
  void cmdExit();
  // Reloads the working copy from the coach file.
  void UpdateCoaches();

 private:
  Coach& at(std::size_t rec);
  std::optional<std::string> AskName();
  std::optional<int> AskNumber(const std::string& text, const std::string& title, int low, int high);

  LeagueState& s_;
  std::optional<int> hireFor_;
  std::vector<Coach> coaches_;
  bool modified_ = false;
};

// Resolves a coach by record number or by name (without trailing blanks);
// nullopt when no record with a name matches.
std::optional<std::size_t> FindCoach(const LeagueState& s, const std::string& what);

}  // namespace kvl
