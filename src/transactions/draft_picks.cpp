#include "transactions/draft_picks.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

DraftPickRecord NewDraftPicks(int team) {
  DraftPickRecord r;
  std::size_t k = 1;
  for (int year = 0; year < kPickYears; ++year)
    for (int round = 0; round < kPickRounds; ++round) {
      DraftPick& p = r.Pick[k++];
      p.CurrentYear = static_cast<u8>(year);
      p.Round = static_cast<u8>(round);
      p.OrigTeam = p.Owner = static_cast<u8>(team);
      p.Active = kTrue;
    }
  return r;
}

// Written to the swap file only: the league's own files change only when it is saved.
void MakeDraftPicks(LeagueState& s) {
  RemoveIfExists(s.swap(swp::Picks));
  RecordFile f(s.swap(swp::Picks), DraftPickRecord::kSize);
  for (int t = 0; t < s.numTeams(); ++t) f.putRecord(static_cast<std::size_t>(t) + 1, NewDraftPicks(t));
}

DraftPickRecord ReadDraftPicks(LeagueState& s, int team) {
  return RecordFile(s.swap(swp::Picks), DraftPickRecord::kSize).getRecord<DraftPickRecord>(static_cast<std::size_t>(team) + 1);
}

void WriteDraftPicks(LeagueState& s, int team, const DraftPickRecord& picks) {
  RecordFile(s.swap(swp::Picks), DraftPickRecord::kSize).putRecord(static_cast<std::size_t>(team) + 1, picks);
}

std::string PickText(const LeagueState& s, const DraftPick& p) {
  const std::string orig = p.OrigTeam < s.numTeams() ? s.team(p.OrigTeam).Abbrev.str() : std::to_string(p.OrigTeam);
  return fmt::format("{} Rnd {} {}", s.league.CurrentYear + p.CurrentYear + 1, p.Round + 1, orig);
}

std::vector<int> ListedPicks(const LeagueState& s, const DraftPickRecord& r) {
  std::vector<int> out;
  for (int i = 1; i < DraftPickRecord::kEntries && r.Pick[static_cast<std::size_t>(i)].Active; ++i)
    if (r.Pick[static_cast<std::size_t>(i)].Round + 1 <= s.league.DraftRounds) out.push_back(i);
  return out;
}

void SortDraftPicks(LeagueState& s, int team) {
  DraftPickRecord a = ReadDraftPicks(s, team);
  DraftPickRecord b;
  std::size_t next = 1;
  for (int year = 0; year < kPickYears; ++year)
    for (int round = 0; round < kPickRounds; ++round)
      for (std::size_t i = 1; i < DraftPickRecord::kEntries; ++i) {
        const DraftPick& p = a.Pick[i];
        if (p.Active && p.CurrentYear == year && p.Round == round && next < DraftPickRecord::kEntries) b.Pick[next++] = p;
      }
  WriteDraftPicks(s, team, b);
}

}  // namespace kvl
