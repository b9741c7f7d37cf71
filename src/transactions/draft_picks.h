#pragma once
// Draft picks (.dpk): each team's record holds its picks for the next six
// drafts, entries 1 to 255, each knowing the team it was made for and the owner.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr int kPickYears = 6;
constexpr int kPickRounds = 9;

// The 54 picks a team starts with: years 0..5, rounds 0..8, all its own.
DraftPickRecord NewDraftPicks(int team);
// A fresh picks file for every team of the league, written to the swap file.
void MakeDraftPicks(LeagueState& s);
// Orders the team's record by year, then round, then old place; drops inactive entries.
void SortDraftPicks(LeagueState& s, int team);

DraftPickRecord ReadDraftPicks(LeagueState& s, int team);
void WriteDraftPicks(LeagueState& s, int team, const DraftPickRecord& picks);

// A pick as the lists show it: the draft's year, " Rnd ", the round from 1 and
// the abbreviation of the team it was made for ("2027 Rnd 1 BOS").
std::string PickText(const LeagueState& s, const DraftPick& p);
// The places (from 1) of the listed picks: up to the first entry not in use,
// leaving out rounds beyond DraftRounds, which stay in the record.
std::vector<int> ListedPicks(const LeagueState& s, const DraftPickRecord& r);

}  // namespace kvl
