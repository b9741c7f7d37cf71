#pragma once
// After a game that counts: team records and streaks, player and goalie
// statistics, condition, suspensions, the gate and the money, the box score,
// and both teams saved.
#include <filesystem>

#include "sim/box_score.h"
#include "sim/game.h"

namespace kvl {

enum StreakCode : int { kStreakLoss = 0, kStreakTie = 1, kStreakWin = 2 };

// Turns the game into lasting facts and writes its box score; `info` names
// the game. Returns the box score's path.
std::filesystem::path FinishGame(Game& g, BoxScoreInfo info);

// Streak = code x 100 + length; the byte wraps as it always has.
void UpdateStreak(Team& team, int code);
// The gate of the home team's arena for this game.
int Attendance(Game& g);
// The game's takings at the gate: attendance x ticket x the finances level.
double GameNet(const LeagueState& s, int home, int attendance);
// Books the home gate and both teams' daily costs.
void GameFinances(Game& g, double net, int attendance);
// Games of suspension for a player ejected for the injury he caused (0..5).
int SuspensionDays(Game& g, int sd, int slot);

}  // namespace kvl
