#include "team/auto_lines.h"

#include "league/league_files.h"
#include "league/ratings.h"
#include "team/line_table.h"
#include "team/roster_rules.h"

namespace kvl {

namespace {

struct Pick {
  int pos;
  int mode;
};
enum Clear { kClearRow, kClearBoth, kNoClear };
struct Step {
  std::array<Pick, kLineSlots> picks;
  Clear then;
};

constexpr Pick C_O{kCentre, kByOffense}, L_O{kLeftWing, kByOffense}, R_O{kRightWing, kByOffense},
    D_O{kDefence, kByOffense};
constexpr Pick C_D{kCentre, kByDefense}, L_D{kLeftWing, kByDefense}, R_D{kRightWing, kByDefense},
    D_D{kDefence, kByDefense};
constexpr Pick C_A{kCentre, kByOverall}, L_A{kLeftWing, kByOverall}, R_A{kRightWing, kByOverall},
    D_A{kDefence, kByOverall};

// Rows 0..11 in order; a row uses as many picks as it has slots. The winger
// of the short rows asks for a left wing.
constexpr std::array<Step, kSkaterRows> kSteps{{
    {{C_O, L_O, R_O, D_O, D_D}, kClearRow},   // E1
    {{C_O, L_O, R_O, D_O, D_D}, kClearRow},   // E2
    {{C_D, L_D, R_D, D_O, D_D}, kClearRow},   // E3
    {{C_A, L_A, R_A, D_A, D_A}, kClearBoth},  // E4
    {{C_O, L_O, R_O, D_O, D_O}, kClearRow},   // P1
    {{C_O, L_O, R_O, D_O, D_O}, kClearBoth},  // P2
    {{C_O, L_O, D_O, D_O}, kClearRow},        // P3
    {{C_O, L_O, D_O, D_O}, kClearBoth},       // P4
    {{C_D, L_D, D_D, D_D}, kClearRow},        // K1
    {{C_D, L_D, D_D, D_D}, kClearBoth},       // K2
    {{C_D, D_D, D_D}, kClearRow},             // K3
    {{C_D, D_D, D_D}, kNoClear},              // K4
}};

}  // namespace

LineMaker::LineMaker(LeagueState& s, int team, int side)
    : LineBuf(s.team(team).Lines), s_(s), team_(team), side_(side) {}

// Dressed healthy players of the kind asked, outside RowUsed (and GroupUsed).
int LineMaker::Scan(int pos, int mode, bool checkGroup) {
  int best = kNoPlayer, bestRating = 0;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s_.player(side_, i);
    auto at = static_cast<std::size_t>(i);
    if (p.Status != kDressedHealthy || RowUsed[at] || (checkGroup && GroupUsed[at])) continue;
    if (!PosMatches(p.Pos, pos)) continue;
    int rating = RateBy(p, mode);
    if (rating > bestRating) best = i, bestRating = rating;
  }
  return best;
}

// Any forward for a forward, any defenceman for a defenceman, whatever his list.
int LineMaker::ScanAnyStatus(int pos) {
  int best = kNoPlayer, bestRating = 0;
  if (pos > kDefence) return best;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s_.player(side_, i);
    bool kind = pos < kDefence ? p.Pos < kDefence : p.Pos == kDefence;
    if (p.empty() || !kind || RowUsed[static_cast<std::size_t>(i)]) continue;
    int rating = Overall(p);
    if (rating > bestRating) best = i, bestRating = rating;
  }
  return best;
}

// The last resort compares Pos with a value never set, so it seeks a centre
// whatever was asked.
int LineMaker::ScanCentreByCondition() {
  int best = kNoPlayer, bestRating = 0;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s_.player(side_, i);
    if (p.Pos != kCentre || RowUsed[static_cast<std::size_t>(i)]) continue;
    if (p.Condition > bestRating) best = i, bestRating = p.Condition;
  }
  return best;
}

int LineMaker::BestPlayer(int pos, int mode) {
  int best = Scan(pos, mode, true);
  if (best == kNoPlayer) best = Scan(pos, mode, false);
  if (best == kNoPlayer) best = ScanAnyStatus(pos);
  if (best == kNoPlayer) best = ScanCentreByCondition();
  if (best == kNoPlayer)
    throw KvlError("Subscript out of range: no player left for the lines of " + s_.team(team_).Name.str());
  RowUsed[static_cast<std::size_t>(best)] = true;
  GroupUsed[static_cast<std::size_t>(best)] = true;
  return best;
}

void LineMaker::FillRow(int row, int step) {
  const Step& st = kSteps[static_cast<std::size_t>(step)];
  for (int slot = 0; slot < SlotsInRow(row); ++slot) {
    const Pick& pick = st.picks[static_cast<std::size_t>(slot)];
    LineBuf.at(row, slot) = static_cast<u8>(BestPlayer(pick.pos, pick.mode));
  }
  if (st.then != kNoClear) RowUsed.fill(false);
  if (st.then == kClearBoth) GroupUsed.fill(false);
}

void LineMaker::AutoLines(bool write) {
  RowUsed.fill(false);
  GroupUsed.fill(false);
  for (int row = 0; row < kSkaterRows; ++row) FillRow(row, row);
  LineBuf.at(kGoalieRow, 0) = static_cast<u8>(BestPlayer(kGoalie, kByOverall));
  RowUsed.fill(false);
  GroupUsed.fill(false);
  LineBuf.at(kGoalieRow, 1) = static_cast<u8>(BestPlayer(kAnySkater, kByOverall));
  // The second spare never comes from the first line.
  for (int slot = 0; slot < kLineSlots; ++slot) {
    u8 e = LineBuf.at(0, slot);
    if (e < kRosterSlots) RowUsed[e] = true;
  }
  LineBuf.at(kGoalieRow, 2) = static_cast<u8>(BestPlayer(kAnySkater, kByOffense));
  if (write) TransferBuffer();
}

void LineMaker::TransferBuffer() {
  Team& t = s_.team(team_);
  t.Lines = LineBuf;
  ForceUnusedSlots(t.Lines);
  t.LinesOK = kTrue;
  s_.Dirty = true;
  SaveTeam(s_, team_, side_);
}

void AutoLines(LeagueState& s, int team, int side) { LineMaker(s, team, side).AutoLines(true); }

}  // namespace kvl
