#pragma once
// The three derived ratings of a player, computed on demand and never stored.
#include "league/records.h"

namespace kvl {

struct LeagueState;

int OffenseRating(const Player& p);
int DefenseRating(const Player& p);
int Overall(const Player& p);

// The buffered forms: Player(side, slot).
int OffenseRating(const LeagueState& s, int slot, int side);
int DefenseRating(const LeagueState& s, int slot, int side);
int Overall(const LeagueState& s, int slot, int side);

}  // namespace kvl
