#include "transactions/draft_turn.h"

#include <fmt/format.h>

#include "transactions/draft_lottery.h"
#include "transactions/draft_picks.h"

namespace kvl {

DraftTurn TurnAt(LeagueState& s, int round, int pick) {
  DraftTurn turn{round, pick, s.numTeams() * round + pick + 1};
  std::vector<int> place;
  for (int t = 0; t < s.numTeams(); ++t) place.push_back(s.team(t).DraftOrder);
  turn.origTeam = TeamsByPlace(place)[static_cast<std::size_t>(pick)];
  for (int t = 0; t < s.numTeams() && turn.holder < 0; ++t) {
    const DraftPickRecord r = ReadDraftPicks(s, t);
    for (const DraftPick& p : r.Pick)
      if (p.Active && p.CurrentYear == 0 && p.Round == round && p.OrigTeam == turn.origTeam) {
        turn.holder = t;
        break;
      }
  }
  return turn;
}

std::vector<DraftTurn> RoundOrder(LeagueState& s, int round) {
  std::vector<DraftTurn> turns;
  for (int pick = 0; pick < s.numTeams(); ++pick) turns.push_back(TurnAt(s, round, pick));
  return turns;
}

std::vector<std::string> RoundOrderLines(LeagueState& s, int round) {
  std::vector<std::string> lines;
  for (const DraftTurn& t : RoundOrder(s, round)) {
    std::string line = fmt::format("{:>4}. {}", t.pick + 1, s.team(t.origTeam).Name.str());
    if (t.holder < 0) line += " (passed: nobody holds the pick)";
    else if (t.holder != t.origTeam) line += " (held by " + s.team(t.holder).Name.str() + ")";
    lines.push_back(line);
  }
  return lines;
}

void UpdatePicks(LeagueState& s, int turnYear) {
  for (int t = 0; t < s.numTeams(); ++t) {
    DraftPickRecord r = ReadDraftPicks(s, t);
    for (std::size_t i = 1; i < DraftPickRecord::kEntries; ++i) {
      DraftPick& p = r.Pick[i];
      if (p.CurrentYear != 0)
        --p.CurrentYear;
      else
        p = DraftPick{};
    }
    for (int round = 0; round < kPickRounds; ++round) {
      std::size_t i = 1;
      while (i < DraftPickRecord::kEntries && r.Pick[i].Active) ++i;
      if (i == DraftPickRecord::kEntries) break;
      r.Pick[i] = {static_cast<u8>(kPickYears - 1), static_cast<u8>(round), static_cast<u8>(t), static_cast<u8>(t),
                   kTrue};
    }
    WriteDraftPicks(s, t, r);
    SortDraftPicks(s, t);
  }
  if (turnYear != 0) ++s.league.CurrentYear;
}

}  // namespace kvl
