#pragma once
// A team's prospects (ViewProspects): names on a list of 100, added, deleted
// and turned into roster players through FindMatch, which finds the prospect
// among the database's free players or makes him by hand.
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

class FindMatch;

// What a prospect added by hand is signed for: a junior's age and an entry
// contract unless the commissioner says otherwise.
struct ProspectTerms {
  int pos = 0;            // C
  int age = 18;
  int contract = 3;       // years
  int salary = 500000;    // dollars; the list keeps hundreds
};

class ViewProspects {
 public:
  // Loads `team` into side 0 as CurTeam.
  ViewProspects(LeagueState& s, int team);

  const ProspectList& list() const { return s_.Prospects[0]; }
  // The entries with a name, in list order.
  std::vector<int> entries() const;
  // Prompts for the name unless given; the entry used, or -1.
  int cmdAdd(std::optional<std::string> name = std::nullopt, const ProspectTerms& terms = {});
  void cmdDelete(int entry);
  // Opens FindMatch on the entry.
  FindMatch cmdActivate(int entry);

 private:
  LeagueState& s_;
  int team_;
};

class FindMatch {
 public:
  FindMatch(LeagueState& s, int team, int entry);

  // Database records (from 1) whose used mark is clear, and the prospect's
  // own record when the draft marked it used for this list.
  const std::vector<int>& records() const { return Records; }
  // The first of them with the prospect's name.
  std::optional<int> matched() const { return Matched; }
  // "Name has been matched" or "No match has been found".
  std::string status() const;

  // Brings the player of database record `record` onto the roster; false when
  // refused (not an offered record, or no room).
  bool cmdMatch(int record);
  // A new player for the prospect; prompts for his name unless given.
  bool cmdManual(std::optional<std::string> name = std::nullopt);
  void cmdCancel() {}

 private:
  void Signed(int slot);

  LeagueState& s_;
  int team_, entry_;
  std::vector<int> Records;
  std::vector<DbRecord> db_;
  std::optional<int> Matched;
};

}  // namespace kvl
