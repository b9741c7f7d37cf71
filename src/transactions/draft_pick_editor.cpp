#include "transactions/draft_pick_editor.h"

#include <fmt/format.h>

#include "transactions/draft_picks.h"
#include "ui/ui.h"

namespace kvl {

namespace {
constexpr const char* kTitle = "Edit Draft Picks";
std::size_t At(int i) { return static_cast<std::size_t>(i); }
}  // namespace

DraftPickEditor::DraftPickEditor(LeagueState& s, int team) : s_(s), team_(team), picks_(ReadDraftPicks(s, team)) {}

std::vector<DraftPickEditor::Entry> DraftPickEditor::list() const {
  std::vector<Entry> out;
  for (int i = 1; i < DraftPickRecord::kEntries; ++i)
    if (picks_.Pick[At(i)].Active) out.push_back({i, PickText(s_, picks_.Pick[At(i)])});
  return out;
}

bool DraftPickEditor::cmdAdd(int year, int round, int origTeam) {
  const std::string team = s_.team(team_).Name.str();
  auto refuse = [&](const std::string& field, int value, const std::string& range) {
    s_.ui.tell(fmt::format("Draft picks of {}: {} {} is outside {}.", team, field, value, range), kTitle);
    return false;
  };
  if (year < 0 || year >= kPickYears) return refuse("draft", s_.league.CurrentYear + year + 1, "the next six drafts");
  if (round < 0 || round >= kPickRounds) return refuse("round", round + 1, "rounds 1 to 9");
  if (origTeam < 0 || origTeam >= s_.numTeams()) return refuse("team", origTeam, "the league's teams");
  int i = 1;
  while (i < DraftPickRecord::kEntries && picks_.Pick[At(i)].Active) ++i;
  if (i == DraftPickRecord::kEntries) return refuse("pick count", DraftPickRecord::kEntries - 1, "the record");
  picks_.Pick[At(i)] = {static_cast<u8>(year), static_cast<u8>(round), static_cast<u8>(origTeam),
                        static_cast<u8>(team_), kTrue};
  Changed = true;
  return true;
}

bool DraftPickEditor::cmdRemove(int index) {
  if (index < 1 || index >= DraftPickRecord::kEntries || !picks_.Pick[At(index)].Active) return false;
  picks_.Pick[At(index)] = DraftPick{};
  Changed = true;
  return true;
}

bool DraftPickEditor::cmdExit() {
  if (!Changed) return false;
  Changed = false;
  if (s_.ui.ask("Keep Draft Pick Changes?", "Keep Changes", Buttons::YesNo) != Answer::Yes) return false;
  WriteDraftPicks(s_, team_, picks_);
  SortDraftPicks(s_, team_);
  s_.Dirty = true;
  return true;
}

}  // namespace kvl
