#include "team/roster_editor.h"

#include "transactions/check_waivers.h"

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/roster_check.h"
#include "team/cards.h"
#include "team/line_table.h"
#include "team/youth_promotion.h"
#include "transactions/database_players.h"
#include "team/protection.h"
#include "team/roster_rules.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

namespace {
constexpr const char* kEditTitle = "Edit Roster";
constexpr const char* kSetTitle = "Set Roster";
}  // namespace

int SourceList(RosterMove move) {
  switch (move) {
    case RosterMove::DressedToScratch: return kDressedList;
    case RosterMove::MinorsToScratch: return kMinorsList;
    default: return kScratchList;
  }
}

RosterEditor::RosterEditor(LeagueState& s, int team) : RosterMaker(s, team, 0) {
  actor_ = kEditorActor;
  loadteam(s, team, 0);
  ResetFlags();
  listPlayers();
}

std::string RosterEditor::title() const { return "Roster of the " + s_.team(team()).Name.str(); }

void RosterEditor::listPlayers() {
  for (auto& l : Lists) l.clear();
  ProCount = 0;
  int total = 0;
  std::array<int, 5> byPos{};
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = at(i);
    if (p.empty() || p.Release == 1) continue;
    int which = temp(i) / 100;
    if (which > 0 && p.Suspended != kHoldOut) ++ProCount;
    if (p.Pos < 5 && ShowPos[p.Pos] && which < 3) {
      bool star = ProtectView && (p.Protected != 0 || p.Rookie != 0);
      Lists[static_cast<std::size_t>(which)].push_back({i, p.Name.str() + (star ? "*" : "")});
    }
    if (which == kDressedList) {
      ++total;
      if (p.Pos < 5) ++byPos[p.Pos];
    }
  }
  Complete = total == kDressedPlayers && byPos[kCentre] >= 3 && byPos[kLeftWing] >= 3 && byPos[kRightWing] >= 3 &&
             byPos[kDefence] >= 6 && byPos[kGoalie] == 2;
  Caption = Complete ? "Roster Complete" : std::to_string(total) + " Total Players";
}

bool RosterEditor::MoveOne(RosterMove move, int index, bool& stop) {
  Player& p = at(index);
  std::string name = p.Name.str();
  bool fit = p.injury() == 0 && p.Suspended == 0;
  auto refuse = [&](const std::string& text) {
    s_.ui.tell(text, kSetTitle);
    return false;
  };
  switch (move) {
    case RosterMove::DressedToScratch: break;
    case RosterMove::ScratchToDressed:
      // A healthy dressed player sent down in this sitting stays down until leaving.
      if (!fit || p.Status >= 200) return refuse(name + " is unavailable");
      break;
    case RosterMove::ScratchToMinors:
      if (!fit) return refuse(name + " cannot be sent to farm");
      break;
    case RosterMove::MinorsToScratch:
      if (ProCount >= kProRosterLimit) {
        stop = true;
        return refuse("Roster is full");
      }
      break;
  }
  bool up = move == RosterMove::ScratchToDressed || move == RosterMove::MinorsToScratch;
  temp(index) = static_cast<u8>(up ? temp(index) + 100 : temp(index) - 100);
  return true;
}

bool RosterEditor::cmdMovePlayer(RosterMove move, const std::vector<int>& selected) {
  Changed = true;
  const auto& source = list(SourceList(move));
  bool stop = false, all = true;
  for (int index : selected) {
    bool listed = false;
    for (const auto& e : source) listed = listed || e.index == index;
    if (listed) all = MoveOne(move, index, stop) && all;
    if (stop) break;
  }
  listPlayers();
  return all;
}

bool RosterEditor::cmdAuto() {
  Changed = true;
  NamedCounts c = CountNamed(s_, side());
  std::string text;
  for (const auto& line : RosterShortages(c.total, c.byPos)) text += line + "\r\n";
  if (!text.empty()) {
    s_.ui.tell("Not enough players:\r\n" + text, "Auto Roster");
    return false;
  }
  AutoRoster(false);
  listPlayers();
  return true;
}

std::string RosterEditor::AddCaption() const { return "Add player to " + s_.team(team()).Name.str(); }

int RosterEditor::cmdAdd(const std::string& name, int pos, const std::function<void(PlayerCard&)>& onCard) {
  constexpr int kRookieAge = 20, kRookieContract = 1;
  const int slot = FirstFreeSlot(s_, side());
  if (slot < 0) {
    s_.ui.tell("No room on roster", AddCaption());
    return -1;
  }
  Changed = true;
  PlaceOnRoster(s_, side(), slot, PromoteProspect(NewPlayerFields(name, pos, kRookieAge, 0, kRookieContract)),
                NewcomerStatus(s_, side()));
  s_.CurPlayer = static_cast<u8>(slot);
  PlayerCard card(s_, side());
  if (onCard) onCard(card);
  card.SaveChanges();
  temp(slot) = PrevStatus[static_cast<std::size_t>(slot)] = at(slot).Status;
  SaveTeam(s_, team(), side());
  listPlayers();
  return slot;
}

void RosterEditor::SetName(int index, const std::string& text) {
  Changed = true;
  at(index).Name.set(text);
  listPlayers();
}

int RosterEditor::SetRating(int index, int which, const std::string& text) {
  Changed = true;
  double v = Val(text);
  if (v >= 15 && v < 100) at(index).rating(which) = static_cast<u8>(Int(v));
  return Overall(at(index));
}

bool RosterEditor::ToggleProtect(int index) {
  Changed = true;
  Player& p = at(index);
  if (p.Protected != 0) {
    p.Protected = kFalse;
  } else {
    if (!MayProtect(s_, side(), index)) return false;
    p.Protected = kTrue;
  }
  listPlayers();
  return true;
}

void RosterEditor::SetRelease(int index, bool release) {
  Changed = true;
  at(index).Release = release ? 1 : 0;
  listPlayers();
}

void RosterEditor::chkProtect(bool on) {
  ProtectView = on;
  listPlayers();
}

void RosterEditor::Check1(int pos, bool shown) {
  ShowPos[static_cast<std::size_t>(pos)] = shown;
  listPlayers();
}

void RosterEditor::ClearLinesOfUndressed() {
  Team& t = s_.team(team());
  bool cleared = false;
  for (int i = 0; i < kRosterSlots; ++i)
    if (at(i).Status < 200 && RemoveFromLines(t.Lines, i)) cleared = true;
  if (!cleared) return;
  t.LinesOK = kFalse;
  SaveTeam(s_, team(), side());
}

bool RosterEditor::cmdExit() {
  if (!Changed) return false;
  Changed = false;
  if (s_.ui.ask("Keep Roster Changes?", "Keep Changes", Buttons::YesNo) != Answer::Yes) return false;
  if (!Complete) s_.ui.tell("Roster not complete", kEditTitle);
  TransferBuffer();
  s_.Dirty = true;
  ClearLinesOfUndressed();
  return true;
}

void RosterEditor::cmdClose() {
  if (Changed) s_.ui.tell("Changes were not saved", kEditTitle);
  Changed = false;
}

}  // namespace kvl
