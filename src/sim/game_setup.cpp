// Setting up the two sides of a game, and the line changes.
#include <algorithm>
#include <cmath>

#include "league/league_files.h"
#include "league/value_check.h"
#include "league/ratings.h"
#include "sim/byte_round.h"
#include "sim/game.h"
#include "sim/roster_cache.h"
#include "team/auto_roster.h"

namespace kvl {

namespace {

constexpr std::array<u8, 9> kShiftPattern{0, 1, 2, 0, 1, 3, 0, 1, 2};
constexpr int kAnyWing = 5;

// The position a seat of a line asks for; 5 takes either winger.
int SeatTemplate(int line, int seat) {
  static constexpr std::array<int, 5> full{kCentre, kLeftWing, kRightWing, kDefence, kDefence};
  static constexpr std::array<int, 5> four{kCentre, kAnyWing, kDefence, kDefence, -1};
  static constexpr std::array<int, 5> three{kCentre, kDefence, kDefence, -1, -1};
  std::size_t i = static_cast<std::size_t>(seat);
  return line < 6 ? full[i] : line < 10 ? four[i] : three[i];
}

bool IsWinger(int pos) { return pos == kLeftWing || pos == kRightWing; }

double Pow(float x, double e) { return std::pow(static_cast<double>(x), e); }

}  // namespace

Game::Game(LeagueState& state, GameOptions options) : s(state), opt(std::move(options)) {}

void Game::Stop(const std::string& why) const { throw KvlError("Game stopped: " + why); }

void Game::SetupGame(int away, int home) {
  s.rnd.Randomize();
  PlayByPlay.clear();
  Notes.clear();
  side = {};
  Attacker = 0;
  Defender = 1;
  InOvertime = false;
  OvertimeCount = 0;
  Period = 0;
  Periods = 3;
  PeriodLength = 1200;
  GoalCount = 0;
  team = {away, home};
  for (int sd = 0; sd < 2; ++sd) LoadSide(sd, team[static_cast<std::size_t>(sd)]);
  for (int sd = 0; sd < 2; ++sd) PrepareSide(sd);
  PlayByPlay.push_back("<FONT SIZE -1><H3>" + TeamName(0) + " at " + TeamName(1) + "</H3>");
}

void Game::LoadSide(int sd, int teamIndex) {
  sideOf(sd).team = teamIndex;
  if (opt.rosters) {
    const auto& r = opt.rosters->roster(teamIndex);
    std::copy(r.begin(), r.end(), s.Player[static_cast<std::size_t>(sd)].begin());
  } else {
    loadteam(s, teamIndex, sd);
  }
  kvl::CheckRatingsPlayable(s, teamIndex, sd);  // names the rating, where the engine would only overflow
  s.CurTeam = static_cast<u8>(teamIndex);
  if (!s.team(teamIndex).LinesOK) AutoRoster(s, teamIndex, sd);
}

void Game::PrepareSide(int sd) {
  GameSide& g = sideOf(sd);
  const Team& t = s.team(g.team);
  std::optional<Coach> coach;
  if (t.CoachRec != 0 && s.league.OptCoach) coach = ReadCoach(s, opt.rosters, t.CoachRec);
  for (int slot = 0; slot < kGameSlots; ++slot) {
    const Player& p = player(sd, slot);
    g.Status[slot] = kNotDressed;
    if (p.empty()) continue;  // an empty slot's ratings are all 0 and stay so
    for (int i = 0; i < kRatingCount; ++i)
      g.Scaled[i][slot] = static_cast<float>(p.rating(i) * (p.Condition / 100.0) / 10);
    if (!coach) continue;
    auto add = [&](int rating, double amount) {
      float& v = g.Scaled[rating][slot];
      v = static_cast<float>(v + amount);
      if (v <= 2.5f) v = 2.5f;
    };
    add(kInt, (coach->LD - 70) / 30.0);
    add(kDef, (coach->DF - 70) / 50.0);
    add(kExp, (coach->EX - 70) / 25.0);
    if (p.Pos != kGoalie) {
      add(kPcc, (coach->OF - 70) / 30.0);
      add(kSco, (coach->OF - 70) / 50.0);
    }
  }
  g.Goalie = t.Lines.at(kGoalieRow, 0);
  if (g.Goalie >= kGameSlots) Stop("no starting goalie in the lines of " + t.Name.str());
  FloorGoalie(sd, g.Goalie);
  // No tired-goalie draw before the game: its test contradicts itself, and
  // either reading of it collapses a season's scoring (played in one run, or
  // day by day). A goalie's workload is the after-game tire draw, rest and
  // the backup's starts in runs of game days.
  g.dressedCount = 0;
  for (int slot = 0; slot < kGameSlots; ++slot) {
    Player& p = player(sd, slot);
    if (p.Status != 200 || p.empty()) continue;
    g.Status[slot] = kOnBench;
    if (p.Condition == 0) p.Condition = 100;
    g.Energy[slot] = p.Condition;
    g.dressed[static_cast<std::size_t>(g.dressedCount++)] = static_cast<u8>(slot);
  }
  for (int slot = 0; slot < kGameSlots; ++slot) {
    u8 c = 0;
    if (g.Scaled[kDis][slot] > 5.0f) {
      c = 1;
      if (g.Scaled[kInt][slot] > 8.9f) c = 2;
      if (g.Scaled[kStr][slot] > 7.9f) ++c;
    }
    g.Checking[slot] = c;
  }
  // Only dressed players ever take a seat; the starter is in goal whatever his mark.
  for (int i = 0; i < g.dressedCount; ++i) {
    u8 slot = g.dressed[i];
    g.offenseRating[slot] = OffenseRating(player(sd, slot));
    g.defenseRating[slot] = DefenseRating(player(sd, slot));
    ComputeTerms(sd, slot);
  }
  if (g.Status[g.Goalie] == kNotDressed) ComputeTerms(sd, g.Goalie);
  for (int seat = 0; seat < kSeats; ++seat)
    for (int line = 0; line < kLineRows; ++line) g.Lines[seat][line] = t.Lines.at(line, seat);
  SetLine(sd, 0);
  if (opt.isBatchRunning && Rnd(5) == 1) ChangeGoalie(sd);
  g.CreditGoalie = g.Goalie;
}

// A goalie's speed is never below 7.0; a low puck control lifts the speed, not
// the puck control, and that crossing is kept on purpose.
void Game::FloorGoalie(int sd, int slot) {
  GameSide& g = sideOf(sd);
  if (g.Scaled[kSpd][slot] < 7.0f) g.Scaled[kSpd][slot] = 7.0f;
  if (g.Scaled[kPcc][slot] < 7.0f) g.Scaled[kSpd][slot] = 7.0f;
}

void Game::ComputeTerms(int sd, int slot) {
  GameSide& g = sideOf(sd);
  auto r = [&](int rating) { return g.Scaled[rating][slot]; };
  SlotTerms& t = g.terms[slot];
  float in = r(kInt), spd = r(kSpd), str = r(kStr), ska = r(kSka), pas = r(kPas), pcc = r(kPcc), def = r(kDef);
  t.defenceMain = Pow(in, 1.8) + spd + Pow(str, 1.7) + ska + Pow(def, 2.1);
  t.defenceDefensive = static_cast<double>(in) + str + ska + Pow(def, 1.7);
  t.defenceD = Pow(def, 1.8);
  t.attackMain = Pow(in, 1.5) + Pow(spd, 1.5) + Pow(str, 1.6) + Pow(pas, 1.7) + Pow(pcc, 1.7);
  t.attackFree = Pow(in, 1.7) + Pow(spd, 1.6) + Pow(str, 1.7);
  t.moveMain = in + Pow(spd, 1.6) + Pow(str, 1.7) + Pow(ska, 1.8) + Pow(pas, 1.7) + Pow(pcc, 1.5);
  t.moveForward = 2.0 * pas + def;
  t.stopMain = Pow(in, 1.5) + spd + Pow(str, 1.6) + Pow(ska, 1.5) + Pow(def, 1.8);
  t.stopDefensive = std::floor(Pow(def, 2) + str + in);
  t.stopD = Pow(def, 1.8);
  t.keepMain = Pow(str, 1.7) + 1.5 * spd + 1.7 * pas + 1.8 * pcc;
  t.scrambleMain = 3.0 * in + 2.0 * str + 4.0 * ska + 4.0 * def;
  t.faceoff = Pow(in, 1.7) + Pow(spd, 1.4) + Pow(pcc, 1.9) + Pow(def, 1.9);
  t.cover = 35 + Pow(in, 1.7) + Pow(str, 1.5) + Pow(def, 1.7);
  float sco = r(kSco), dis = r(kDis);
  t.passer = std::floor(Pow(pas, 3.9) + Pow(pcc, 2.1));
  t.secondAssist = std::pow(static_cast<double>(pcc), 2) + std::pow(static_cast<double>(pas), 3);
  t.passBonus = Pow(pas, 1.9);
  t.shot = Pow(sco, 2.4);
  t.offender = std::floor(std::pow(12.5 - dis, 3) + in);
  t.goalie = Pow(in, 2.44) + 700 + Pow(spd, 2.92) + Pow(str, 2.19) + 2.56 * ska + Pow(pcc, 2.66);
  t.holdsGround = Pow(in, 1.77);
  t.rebound = Pow(pcc, 2.05);
  g.endurance[slot] = r(kEnd);
  g.recovery[slot] = g.endurance[slot] / 8;
  g.energyCap[slot] = player(sd, slot).Condition;
}

void Game::SetLine(int sd, int line) {
  GameSide& g = sideOf(sd);
  int opponent = other(sd);
  double toughness = 0, discipline = 0, durability = 0;
  g.LineToughness = g.LineDiscipline = g.LineDurability = g.LineChecking = 0;
  // Only a seated player is on the ice.
  for (u8 p : g.OnIce)
    if (p != kNoPlayer && g.Status[p] == kOnIce) g.Bench(p);
  const int d = ManDifference(opponent, sd);
  int count = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.Lines[seat][line];
    if (p == kNoPlayer) {
      g.OnIce[seat] = kNoPlayer;
      continue;
    }
    if (p >= kGameSlots) Stop("line " + std::to_string(line) + " of " + TeamName(sd) + " names no player");
    ++count;
    if (g.Energy[p] < 90 || g.Status[p] != kOnBench) p = ChooseSubstitute(sd, p, seat);
    g.OnIce[seat] = p;
    int want = SeatTemplate(line, seat);
    int pos = player(sd, p).Pos;
    g.OutOfPosition[p] = (want == kAnyWing ? !IsWinger(pos) : pos != want) ? -1 : 0;
    g.Status[p] = kOnIce;
    auto r = [&](int rating) { return static_cast<double>(g.Scaled[rating][p]); };
    g.LineToughness = toughness = CByte(toughness + r(kInt) + (12.4 - r(kDis)) + r(kStr));
    g.LineDiscipline = discipline = CByte(discipline + r(kDis));
    g.LineDurability = durability = CByte(durability + r(kStr) + 2 * r(kDur));
    g.LineChecking = CByte(g.LineChecking + g.Checking[p]);
    if (d < 0) {
      g.Defensive[p] = -1;
    } else if (d == 0) {
      bool leadsBig = g.Goals - sideOf(opponent).Goals > 2;
      bool defensive = pos == kDefence || (leadsBig && g.offenseRating[p] < g.defenseRating[p]);
      g.Defensive[p] = defensive ? -1 : 0;
    } else {
      g.Defensive[p] = 0;
    }
    if (line == 2) g.Defensive[p] = -1;  // the third line is the checking line
  }
  RefreshSeatTerms(sd);
  if (count == 0) return;
  g.LineToughness = CByte(g.LineToughness / static_cast<double>(count));
  g.LineDiscipline = CByte(g.LineDiscipline / static_cast<double>(count));
  g.LineDurability = CByte(g.LineDurability / static_cast<double>(count));
}

u8 Game::ChooseSubstitute(int sd, int slot, int) {
  GameSide& g = sideOf(sd);
  int pos = player(sd, slot).Pos;
  auto fresh = [&](u8 spare) {
    return spare < kGameSlots && g.Status[spare] == kOnBench && g.Energy[spare] >= 95 && player(sd, spare).Pos == pos;
  };
  u8 pick = kNoPlayer;
  if (fresh(g.Lines[1][kGoalieRow])) {
    pick = g.Lines[1][kGoalieRow];
  } else if (fresh(g.Lines[2][kGoalieRow])) {
    pick = g.Lines[2][kGoalieRow];
  } else {
    float best = 0;
    for (int i = 0; i < g.dressedCount; ++i) {
      u8 c = g.dressed[i];
      if (g.Status[c] == kOnBench && player(sd, c).Pos == pos && g.Energy[c] > best) best = g.Energy[pick = c];
    }
    best = 0;
    if (pick == kNoPlayer)
      for (int i = 0; i < g.dressedCount; ++i) {
        u8 c = g.dressed[i];
        if (g.Status[c] == kOnBench && player(sd, c).Pos != kGoalie && g.Energy[c] > best) best = g.Energy[pick = c];
      }
  }
  if (pick == kNoPlayer) Stop("no substitute left for " + PlayerName(sd, slot) + " of " + TeamName(sd));
  const Player& p = player(sd, pick);
  if (p.Pos == kGoalie || p.empty() || p.Status == 0 || g.Status[pick] == kEjected)
    Stop("substitute in slot " + std::to_string(pick) + " of " + TeamName(sd) + " cannot play");
  return pick;
}

void Game::NextLine(int sd, int opponent) {
  GameSide& g = sideOf(sd);
  if (MeanEnergy(sd) > 89 && !forceChange) return;
  forceChange = false;
  int line = g.CurrentLine + 1;
  int d = ManDifference(sd, opponent);
  if (d == 0) {
    g.ShiftCycle = static_cast<u8>((g.ShiftCycle + 1) % 9);
    line = kShiftPattern[g.ShiftCycle];
  } else if (d < 0) {
    line = g.MenInBox != 0 ? std::clamp(line, 6, 7) : std::clamp(line, 4, 5);
  } else if (d == 1) {
    line = std::clamp(line, 8, 9);
  } else {
    line = std::clamp(line, 10, 11);
  }
  if (line == kGoalieRow) Stop("the goalie row came up as a line");
  SetLine(sd, line);
  g.CurrentLine = static_cast<u8>(line);
}



}  // namespace kvl
