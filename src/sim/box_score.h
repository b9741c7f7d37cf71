#pragma once
// The box score: one HTML page per game in the home folder's Transfer folder,
// with the period tables, the scoring summary, goalies, power plays, the three
// stars, the player table and the game notes.
#include <filesystem>
#include <string>
#include <vector>

#include "sim/game.h"

namespace kvl {

enum class GameKind { Exhibition, RegularSeason, Playoffs };

struct BoxScoreInfo {
  GameKind kind = GameKind::Exhibition;
  int gameNumber = 0;  // record number of the schedule
  int round = 0;       // playoff round
  int attendance = 0;
  double net = 0;
  bool farmPlayed = false;
  std::vector<std::string> farmLines;
};

struct Star {
  int side = 0;
  int slot = 0;
  double points = 0;
};

// Star points of a dressed player of this game.
double StarPoints(const Game& g, int sd, int slot);
// The three best of both sides, the first of equals kept; fewer when fewer dressed.
std::vector<Star> PickStars(const Game& g);
// The page's file: exhibitions take the first free "ex" number and never overwrite.
std::filesystem::path BoxScorePath(const LeagueState& s, const BoxScoreInfo& info);
// The page, line by line.
std::vector<std::string> BoxScoreLines(Game& g, const BoxScoreInfo& info);
// A player's row of the player table, under
// "                      G  A  P   +/- PIM  S  HT IT".
std::string PlayerStatsRow(const Game& g, int sd, int slot);
// Writes the page and, outside an exhibition, adds the stars' points to their
// season totals. Returns the page's path.
std::filesystem::path WriteBoxScore(Game& g, const BoxScoreInfo& info);

}  // namespace kvl
