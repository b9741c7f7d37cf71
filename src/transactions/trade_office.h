#pragma once
// The trade office: two teams loaded into the two sides of the player buffer,
// what each side gives (players, prospects, picks, cash), a judgement of the
// deal, and its execution. A trade cannot be undone.
#include <array>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// Past the deadline: with a schedule, when the share of games played is above
// TradeDeadline percent, or the season is over.
bool TradeDeadlinePassed(const League& lg);
// Tells "Trade Deadline Has Expired" and returns false when trading is closed.
bool TradeDeadlineAllows(LeagueState& s);

// Values of what a side gives away, in the judgement's points. A player whose
// Overall is below 25 is a KvlError: the judgement has no value for him.
double PlayerTradeValue(const Player& p);
double PickTradeValue(const DraftPick& p);
// "$1,500" -> 1500; "0" and "" -> 0 (the first character is the currency sign).
i32 CashShown(const std::string& txtCash);

// One entry of a side's list: the text shown and the slot, prospect or pick
// place it stands for.
struct TradeListEntry {
  int index = 0;
  std::string text;
};

// What one side gives: roster slots, prospect slots, pick places (from 1).
struct TradeSelection {
  std::vector<int> players, prospects, picks;
};

class TradeOffice {
 public:
  // Loads teamA into side 0 and teamB into side 1.
  TradeOffice(LeagueState& s, int teamA, int teamB);

  // Reloads a side with `team`; its selection is the caller's and is dropped.
  void cboTeam(int side, int team);
  int team(int side) const { return teams_[static_cast<std::size_t>(side)]; }

  std::vector<TradeListEntry> lstPlayers(int side) const;
  std::vector<TradeListEntry> lstProspects(int side) const;
  // Picks beyond DraftRounds are kept in the record but not listed.
  std::vector<TradeListEntry> lstPicks(int side) const;
  const std::string& txtCash(int side) const { return cash_[static_cast<std::size_t>(side)]; }

  // Asks for the cash a side pays.
  void txtCash_DblClick(int side);
  // The cash entry's rules on an answer; false (after telling) when refused.
  bool EnterCash(int side, const std::string& answer);

  // Adds up what a side gives away.
  double SideValue(int side, const TradeSelection& sel) const;
  // Tells the judgement and returns its text; "" (after telling) when a side
  // does not hold what is selected.
  std::string cmdAssess(const std::array<TradeSelection, 2>& sel);
  // Checks the roster limit and carries out the trade; false when refused.
  bool cmdExecute(const std::array<TradeSelection, 2>& sel);

 private:
  struct Held;
  void load(int side);
  bool Holds(const std::array<TradeSelection, 2>& sel);
  bool RosterFits(const std::array<TradeSelection, 2>& sel);
  bool RecordsFit(const std::array<TradeSelection, 2>& sel);
  Held TakeAway(int side, const TradeSelection& sel);
  void Receive(int side, const Held& held);
  void ReceiveOthers(int side, const Held& held);
  std::string RecordLine(int side, const TradeSelection& sel) const;

  LeagueState& s_;
  std::array<int, 2> teams_{};
  std::array<std::string, 2> cash_{"0", "0"};
  std::array<DraftPickRecord, 2> picks_{};
};

// Adds the season counters a career line carries; `sign` -1 takes them off.
void AddFigures(Player& to, const Player& from, int sign);

// Settles a player's season line for `team` in the career file before he
// leaves it: what his career lines do not yet hold goes to his line there.
void TradeSplit(LeagueState& s, const Player& p, int team);

}  // namespace kvl
