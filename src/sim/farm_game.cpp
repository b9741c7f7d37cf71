#include "sim/farm_game.h"

#include <algorithm>
#include <cmath>

#include "reports/html.h"
#include "sim/condition.h"
#include "util/numbers.h"

namespace kvl {

namespace {

// A farm goalie earns a star point for each goal under three he lets in.
constexpr int kGoalieStarBelow = 3;

// A player of the minors who can play: named and healthy, in slots 1..49.
bool IsFarmPlayer(const Player& p) { return !p.empty() && p.Status == 0; }

template <class Visit>
void EachFarmSkater(const LeagueState& s, int side, Visit visit) {
  for (int slot = 1; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (IsFarmPlayer(p) && p.Pos != kGoalie) visit(slot, p);
  }
}

// The attack of one club against the defence of the other: an even game
// draws up to 3,000, so about three goals a side. One club's strength alone
// (its attack pair, as a single call would take it) draws up to 6,500 and
// some thirteen goals, so the draw weighs attack against defence instead.
int GoalDraw(const LeagueState& s, int side) {
  const int attack = FarmStrength(s, side, kSco, kPas);
  const int defence = FarmStrength(s, 1 - side, kDef, kPcc);
  return std::max(1, 1500 + (attack - defence) / 2);
}

std::string NameOr(const LeagueState& s, int side, u8 slot) {
  return slot == kNoPlayer ? "unknown" : HtmlText(s.player(side, slot).Name.str());
}

struct FarmGoal {
  u8 scorer = kNoPlayer;
  std::vector<u8> assists;
};

// A goal is worth two to its scorer's total, and one in ten counts for him
// twice; up to two others assist.
FarmGoal ScoreFarmGoal(LeagueState& s, int side) {
  FarmGoal goal;
  goal.scorer = FarmPick(s, side, kSka);
  if (goal.scorer == kNoPlayer) return goal;
  Player& scorer = s.player(side, goal.scorer);
  scorer.FarmStatD = static_cast<i16>(scorer.FarmStatD + 2);
  if (s.rnd(10) == 1) scorer.FarmStatD = static_cast<i16>(scorer.FarmStatD + 2);
  for (int n = 0; n < 2; ++n) {
    u8 a = FarmPick(s, side, kSka);
    if (a == kNoPlayer || a == goal.scorer ||
        std::find(goal.assists.begin(), goal.assists.end(), a) != goal.assists.end())
      continue;
    ++s.player(side, a).FarmStatC;
    goal.assists.push_back(a);
  }
  return goal;
}

std::string GoalLine(const LeagueState& s, int side, int team, const FarmGoal& goal) {
  std::string line = HtmlText(s.Farm[static_cast<std::size_t>(team)].Name.str()) + ": " + NameOr(s, side, goal.scorer) + " (";
  for (std::size_t i = 0; i < goal.assists.size(); ++i)
    line += (i ? ", " : "") + HtmlText(s.player(side, goal.assists[i]).Name.str());
  return line + ")";
}

// Hot and cold streaks: a farm skater with a point, or a goalie who let in
// fewer than three, may gain a point of condition as after rest; the others
// may lose one as after a heavy game.
void StreakDraws(LeagueState& s, int side, const std::vector<FarmGoal>& goals, u8 goalie, int against) {
  auto pointed = [&](int slot) {
    for (const FarmGoal& g : goals)
      if (g.scorer == slot || std::find(g.assists.begin(), g.assists.end(), slot) != g.assists.end()) return true;
    return false;
  };
  auto draw = [&](Player& p, bool hot) {
    const double end = p.rating(kEnd) / 10.0;
    hot ? RestDraw(s, p, end) : TireDraw(s, p, end);
  };
  EachFarmSkater(s, side, [&](int slot, const Player&) { draw(s.player(side, slot), pointed(slot)); });
  if (goalie != kNoPlayer) draw(s.player(side, goalie), against < kGoalieStarBelow);
}

void KeepRecord(FarmTeam& f, int own, int opp) {
  f.GF = static_cast<i16>(f.GF + own);
  f.GA = static_cast<i16>(f.GA + opp);
  if (own > opp)
    ++f.W;
  else if (own < opp)
    ++f.L;
  else
    ++f.T;
}

}  // namespace

int FarmStrength(const LeagueState& s, int side, int ratingA, int ratingB) {
  int sum = 0, count = 0;
  EachFarmSkater(s, side, [&](int, const Player& p) {
    sum += 3 * p.rating(ratingA) + 3 * p.rating(ratingB);
    ++count;
  });
  return sum + 150 * std::max(0, kFarmLineup - count);
}

u8 FarmPick(LeagueState& s, int side, int rating) {
  std::vector<std::pair<int, double>> weights;
  double total = 0;
  EachFarmSkater(s, side, [&](int slot, const Player& p) {
    double w = static_cast<double>(p.rating(rating)) * p.rating(rating);
    if (p.Pos != kDefence && rating != kDef) w *= 2;
    weights.emplace_back(slot, w);
    total += w;
  });
  total += 700.0 * std::max(0, kFarmLineup - static_cast<int>(weights.size()));
  double r = s.rnd() * total;
  for (auto [slot, w] : weights) {
    if (r < w) return static_cast<u8>(slot);
    r -= w;
  }
  return kNoPlayer;
}

u8 FarmGoalie(LeagueState& s, int side) {
  std::vector<u8> goalies;
  for (int slot = 1; slot < kRosterSlots; ++slot)
    if (IsFarmPlayer(s.player(side, slot)) && s.player(side, slot).Pos == kGoalie)
      goalies.push_back(static_cast<u8>(slot));
  if (goalies.empty()) return kNoPlayer;
  return goalies[static_cast<std::size_t>(s.rnd(static_cast<int>(goalies.size())) - 1)];
}

std::vector<std::string> PlayFarmGame(LeagueState& s, int away, int home) {
  const std::array<int, 2> teams{away, home};
  std::array<int, 2> goals{};
  for (int sd = 0; sd < 2; ++sd)
    goals[static_cast<std::size_t>(sd)] = static_cast<int>(std::floor(s.rnd(GoalDraw(s, sd)) / 250.0));
  std::vector<std::string> lines;
  lines.push_back(HtmlText(s.Farm[static_cast<std::size_t>(away)].Name.str()) + " " + NumText(goals[0]) + "  " +
                  HtmlText(s.Farm[static_cast<std::size_t>(home)].Name.str()) + " " + NumText(goals[1]));
  lines.push_back(std::string(37, '-'));
  std::array<std::vector<FarmGoal>, 2> scored;
  for (int sd = 0; sd < 2; ++sd) {
    for (int n = 0; n < goals[static_cast<std::size_t>(sd)]; ++n) {
      scored[static_cast<std::size_t>(sd)].push_back(ScoreFarmGoal(s, sd));
      lines.push_back(GoalLine(s, sd, teams[static_cast<std::size_t>(sd)], scored[static_cast<std::size_t>(sd)].back()));
    }
    EachFarmSkater(s, sd, [&](int slot, const Player&) { ++s.player(sd, slot).FarmStatA; });
  }
  std::array<u8, 2> goalie{};
  for (int sd = 0; sd < 2; ++sd) {
    const std::size_t i = static_cast<std::size_t>(sd);
    const int against = goals[1 - i];
    goalie[i] = FarmGoalie(s, sd);
    if (goalie[i] != kNoPlayer) {
      Player& g = s.player(sd, goalie[i]);
      ++g.FarmStatA;
      g.FarmStatB = static_cast<u8>(g.FarmStatB + against);
      g.StarPoints = static_cast<i16>(g.StarPoints + std::max(0, kGoalieStarBelow - against));
    }
    if (s.league.OptFarmStreaks) StreakDraws(s, sd, scored[i], goalie[i], against);
  }
  lines.push_back("Goalies: " + NameOr(s, 0, goalie[0]) + ", " + NameOr(s, 1, goalie[1]));
  KeepRecord(s.Farm[static_cast<std::size_t>(away)], goals[0], goals[1]);
  KeepRecord(s.Farm[static_cast<std::size_t>(home)], goals[1], goals[0]);
  return lines;
}

}  // namespace kvl
