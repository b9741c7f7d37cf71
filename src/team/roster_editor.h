#pragma once
// The roster editor (Roster): the three lists of a team, moves between them,
// automatic dressing, name and rating edits, protection marks, and leaving
// with or without the changes. It works on TempStatus; the Player records
// change only on leaving with yes, save the direct edits of names, ratings,
// protection and release marks.
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "team/auto_roster.h"

namespace kvl {

class PlayerCard;

enum RosterList : int { kMinorsList = 0, kScratchList = 1, kDressedList = 2 };
enum class RosterMove { DressedToScratch, ScratchToDressed, ScratchToMinors, MinorsToScratch };

class RosterEditor : public RosterMaker {
 public:
  struct Entry {
    int index;
    std::string text;
  };

  // Loads `team` into side 0 and opens on it.
  RosterEditor(LeagueState& s, int team);

  std::string title() const;
  // Rebuilds the three lists and decides whether the roster is complete.
  void listPlayers();
  const std::vector<Entry>& list(int which) const { return Lists[static_cast<std::size_t>(which)]; }
  // "Roster Complete" or "N Total Players".
  const std::string& caption() const { return Caption; }
  bool complete() const { return Complete; }

  // Moves the selected players of the move's source list (others are ignored);
  // false when one was refused.
  bool cmdMovePlayer(RosterMove move, const std::vector<int>& selected);
  // The list a player stands in now: kMinorsList, kScratchList or kDressedList.
  int listOf(int index) const { return TempStatus[static_cast<std::size_t>(index)] / 100; }
  // False (after telling the shortages) when the team has too few players.
  bool cmdAuto();
  // "Add player to " + team: a new player of `pos` in the first free slot,
  // shown on his card for `onCard` to edit, then the team is saved. The slot,
  // or -1 (after telling) when all 50 are taken.
  int cmdAdd(const std::string& name, int pos, const std::function<void(PlayerCard&)>& onCard = {});
  std::string AddCaption() const;
  void SetName(int index, const std::string& text);
  // Stores the whole part of a value from 15 to 99; others are dropped. The
  // player's Overall afterwards.
  int SetRating(int index, int which, const std::string& text);
  // The protection view's double click; false when a mark was refused.
  bool ToggleProtect(int index);
  // Marks (or unmarks) a player for release, as his card does.
  void SetRelease(int index, bool release);
  void chkProtect(bool on);
  void Check1(int pos, bool shown);

  // Asks to keep the changes; on yes stores them. True when they were kept.
  bool cmdExit();
  // Closing any other way.
  void cmdClose();

  bool Changed = false;
  std::array<bool, 5> ShowPos{true, true, true, true, true};
  bool ProtectView = false;
  int ProCount = 0;

 private:
  bool MoveOne(RosterMove move, int index, bool& stop);
  void ClearLinesOfUndressed();

  std::array<std::vector<Entry>, 3> Lists;
  bool Complete = false;
  std::string Caption;
};

// The list a roster move takes its players from.
int SourceList(RosterMove move);

}  // namespace kvl
