#include "team/line_editor.h"

#include <cmath>

#include "league/league_files.h"
#include "league/ratings.h"
#include "team/line_table.h"
#include "team/roster_rules.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

LineEditor::LineEditor(LeagueState& s, int team) : LineMaker(s, team, 0) {
  loadteam(s, team, 0);
  AddPlayers();
  ReadLineAssgts();
  if (Offered.empty()) s_.ui.tell("There are not enough players. Set roster first", "Roster warning");
}

std::string LineEditor::caption() const { return "Lines for " + s_.team(team()).Name.str(); }

void LineEditor::AddPlayers() {
  Offered.clear();
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s_.player(side(), i);
    if (p.list() == 2 && p.Pos < 5 && ShowPos[p.Pos]) Offered.push_back(i);
  }
}

void LineEditor::ShowPage(int page) { Page = page; }

void LineEditor::Check1(int pos, bool shown) {
  ShowPos[static_cast<std::size_t>(pos)] = shown;
  AddPlayers();
}

SeatFault PlacementFault(const LineTable& t, int row, int slot, const Player& p, int index) {
  const bool goalie = p.Pos == kGoalie;
  if (row == kGoalieRow && slot == 0) return goalie ? SeatFault::None : SeatFault::SkaterInGoal;
  if (goalie) return SeatFault::GoalieOnLine;
  if (row == kGoalieRow) return SeatFault::None;  // the spares: the editor lets one stand in both
  for (int k = 0; k < SlotsInRow(row); ++k)
    if (k != slot && t.at(row, k) == index) return SeatFault::TwiceOnRow;
  return SeatFault::None;
}

bool LineEditor::Offers(int player) const {
  if (player < 0 || player >= kRosterSlots) return false;
  const Player& p = s_.player(side(), player);
  return !p.empty() && p.list() == 2;
}

bool LineEditor::Place(int index, int player) {
  if (!Offers(player) || index < 0 || index > 22) return false;
  int row = kGoalieRow, slot = index - 20;
  if (index < 20) {
    const int line = index / 5;
    slot = index - 5 * line;
    row = line + PageFirstRow(Page);
    if (slot >= SlotsInRow(row)) return false;
  }
  const Player& p = s_.player(side(), player);
  if (LineBuf.at(row, slot) == player || PlacementFault(LineBuf, row, slot, p, player) != SeatFault::None)
    return false;
  LineBuf.at(row, slot) = static_cast<u8>(player);
  Changes(row);
  return true;
}

void LineEditor::Changes(int row) {
  Changed = true;
  Focus = row;
  ReadLineAssgts();
}

void LineEditor::ReadLineAssgts() {
  Assignment.fill("No Assignments");
  std::array<bool, kRosterSlots> any{};
  for (int row = 0; row < kSkaterRows; ++row)
    for (int slot = 0; slot < SlotsInRow(row); ++slot) {
      u8 e = LineBuf.at(row, slot);
      if (e >= kRosterSlots) continue;
      std::string label = RowLabel(row) + std::string(SlotLabel(row, slot));
      Assignment[e] = any[e] ? Assignment[e] + " " + label : label;
      any[e] = true;
    }
}

RatingAverages LineEditor::LineAverages(int row) const {
  RatingAverages sum{};
  for (int slot = 0; slot < SlotsInRow(row); ++slot) {
    u8 e = LineBuf.at(row, slot);
    if (e >= kRosterSlots) continue;
    const Player& p = s_.player(side(), e);
    for (int r = 0; r < kRatingCount; ++r) sum[static_cast<std::size_t>(r)] += p.rating(r);
    sum[kRatingCount] += Overall(p);
  }
  RatingAverages avg{};
  for (std::size_t r = 0; r < avg.size(); ++r)
    avg[r] = static_cast<int>(Int(static_cast<double>(sum[r]) / SlotsInRow(row) + 0.5));
  return avg;
}

RatingAverages LineEditor::TeamAverages() const {
  std::array<double, kRatingCount + 1> sum{};
  int count = 0;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s_.player(side(), i);
    if (p.empty() || p.Pos == kGoalie || p.Status < 100 || p.Status > 200) continue;
    ++count;
    for (int r = 0; r < kRatingCount; ++r) sum[static_cast<std::size_t>(r)] += p.rating(r);
    sum[kRatingCount] += Overall(p);
  }
  RatingAverages avg{};
  for (std::size_t r = 0; r < avg.size(); ++r) avg[r] = static_cast<int>(Int(sum[r] / (count + 0.001) + 0.5));
  return avg;
}

bool LineEditor::cmdAuto() {
  int dressed = 0;
  for (int i = 0; i < kRosterSlots; ++i) dressed += s_.player(side(), i).Status == kDressedHealthy;
  if (dressed != kDressedPlayers) {
    s_.ui.tell("There are only " + std::to_string(dressed) + " players on the roster.\nSet roster first",
               "Auto Lines");
    return false;
  }
  AutoLines(false);
  ShowPos.fill(true);
  AddPlayers();
  ReadLineAssgts();
  Changed = true;
  return true;
}

bool LineEditor::cmdExit() {
  if (Changed) {
    if (s_.ui.ask("Keep Line Changes?", "Keep Changes", Buttons::YesNo) == Answer::Yes) {
      if (!LinesComplete(LineBuf)) {
        s_.ui.tell("Lines are not complete", "Edit Lines");
        return false;
      }
      TransferBuffer();
      s_.Dirty = true;
    } else {
      LineBuf = s_.team(team()).Lines;
    }
  }
  Changed = false;
  return true;
}

void LineEditor::cmdClose() {
  if (Changed) s_.ui.tell("Changes were not saved", "Edit Lines");
  Changed = false;
}

}  // namespace kvl
