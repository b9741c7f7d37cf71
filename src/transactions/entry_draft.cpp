#include "transactions/entry_draft.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <map>

#include "league/league_files.h"
#include "league/ratings.h"
#include "transactions/database_players.h"
#include "transactions/draft_list.h"
#include "transactions/draft_lottery.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Entry Draft";

// The first database record of each name, as the draft looks players up.
std::map<std::string, int> DatabaseByName(const std::vector<DbRecord>& db) {
  std::map<std::string, int> out;
  for (std::size_t i = 0; i < db.size(); ++i) out.emplace(db[i].P.Name.str(), static_cast<int>(i) + 1);
  return out;
}

std::optional<DraftListRead> ReadListTold(LeagueState& s, const std::filesystem::path& file) {
  DraftListRead read;
  try {
    read = ReadDraftListFile(s, file);
  } catch (const KvlError& e) {
    s.ui.tell(e.what(), kTitle);
    return std::nullopt;
  }
  if (!read.problems.empty()) {
    std::string text = fmt::format("{}: {} item(s) left out of the draft list:", file.string(), read.problems.size());
    for (const DraftListProblem& p : read.problems) text += fmt::format("\nLine {}: {}", p.line, p.text);
    s.ui.tell(text, kTitle);
  }
  if (read.names.empty()) {
    s.ui.tell(file.string() + " holds no name that can be drafted; the draft was not begun.", kTitle);
    return std::nullopt;
  }
  return read;
}

void OrderByPriority(LeagueState& s) {
  std::vector<int> priority;
  for (int t = 0; t < s.numTeams(); ++t) priority.push_back(s.team(t).Priority);
  const std::vector<int> order = TeamsByPlace(priority);
  for (std::size_t place = 0; place < order.size(); ++place) s.team(order[place]).DraftOrder = static_cast<u8>(place);
}

}  // namespace

bool EntryDraft(LeagueState& s, const std::optional<std::filesystem::path>& list) {
  if (s.ui.ask("Start Entry Draft?", kTitle, Buttons::YesNo) != Answer::Yes) return false;
  if (s.league.DraftRounds == 0) {
    s.ui.tell("The league's options set no draft rounds (DraftRounds is 0).", kTitle);
    return false;
  }
  std::optional<std::filesystem::path> file =
      list ? list : s.ui.chooseFile("Select Draft File", "All Files|*.*|Txt Files|*.txt", "", false);
  if (!file) return false;
  std::optional<DraftListRead> read = ReadListTold(s, *file);
  if (!read) return false;
  League& l = s.league;
  l.EntryDraftOn = kTrue;
  l.DraftRound = l.DraftPick = 0;
  MakeDraftList(s, read->names);
  if (l.OptLottery)
    DraftLottery(s);
  else
    OrderByPriority(s);
  s.Dirty = true;
  DraftNew(s).PassUnheldPicks();
  return true;
}

bool ConEntryDraft(LeagueState& s) {
  if (!s.league.EntryDraftOn) {
    s.ui.tell("No entry draft is under way: begin one with Begin Entry Draft.", kTitle);
    return false;
  }
  return s.ui.ask("Continue Entry Draft?", kTitle, Buttons::YesNo) == Answer::Yes;
}

std::string DraftNew::caption() const { return "Entry Draft - Round " + NumText(s_.league.DraftRound + 1); }

std::vector<UndraftedEntry> DraftNew::undrafted() const {
  const std::vector<DraftListRecord> list = ReadDraftList(s_);
  const std::vector<DbRecord> db = ReadDatabase(s_);
  const std::map<std::string, int> byName = DatabaseByName(db);
  std::vector<UndraftedEntry> out;
  for (int record : UndraftedNames(list)) {
    UndraftedEntry e{record, list[static_cast<std::size_t>(record - 1)].Name.str()};
    if (auto it = byName.find(e.name); it != byName.end()) {
      const Player& p = db[static_cast<std::size_t>(it->second - 1)].P;
      e.pos = p.Pos, e.age = p.Age, e.overall = Overall(p);
    }
    out.push_back(e);
  }
  return out;
}

bool DraftNew::cmdAdd(int record) { return Take(record, false); }
bool DraftNew::cmdProspect(int record) { return Take(record, true); }

namespace {

bool PutOnRoster(LeagueState& s, const Player& p) {
  const int slot = FirstFreeSlot(s, 0);
  if (slot < 0) {
    s.ui.tell("No room on roster", kTitle);
    return false;
  }
  // A draftee starts in the minors, so the team's dressed roster and lines stand.
  PlaceOnRoster(s, 0, slot, p, 0);
  s.ui.tell(p.Name.str() + " added to roster", kTitle);
  return true;
}

bool PutOnProspects(LeagueState& s, const Player& p) {
  ProspectList& l = s.Prospects[0];
  const auto free = std::find_if(l.Name.begin(), l.Name.end(), [](const FixedText<22>& n) { return n.empty(); });
  if (free == l.Name.end()) {
    s.ui.tell("No room on prospect list", kTitle);
    return false;
  }
  const auto i = static_cast<std::size_t>(free - l.Name.begin());
  l.Name[i] = p.Name;
  l.Pos[i] = p.Pos;
  l.Age[i] = p.Age;
  l.Contract[i] = p.Contract;
  l.Salary[i] = static_cast<i16>(std::min<i32>(p.Salary / 100, std::numeric_limits<i16>::max()));
  s.ui.tell(p.Name.str() + " added to prospect list", kTitle);
  return true;
}

}  // namespace

bool DraftNew::Take(int record, bool prospect) {
  if (!s_.league.EntryDraftOn) {
    s_.ui.tell("No entry draft is under way: begin one with Begin Entry Draft.", kTitle);
    return false;
  }
  std::vector<DraftListRecord> list = ReadDraftList(s_);
  const std::vector<int> open = UndraftedNames(list);
  if (std::find(open.begin(), open.end(), record) == open.end()) {
    const bool named = record >= 1 && record <= static_cast<int>(list.size());
    s_.ui.tell(named ? list[static_cast<std::size_t>(record - 1)].Name.str() + " has been drafted already."
                     : fmt::format("There is no name {} on the draft list.", record),
               kTitle);
    return false;
  }
  DraftListRecord& chosen = list[static_cast<std::size_t>(record - 1)];
  const std::vector<DbRecord> db = ReadDatabase(s_);
  const std::map<std::string, int> byName = DatabaseByName(db);
  const auto found = byName.find(chosen.Name.str());
  if (found == byName.end() || db[static_cast<std::size_t>(found->second - 1)].DbFlag != 0) {
    s_.ui.tell(chosen.Name.str() +
                   (found == byName.end() ? " is not in the league's player database." : " already plays for a team."),
               kTitle);
    return false;
  }
  const DraftTurn turn = CurrentTurn(s_);
  loadteam(s_, turn.holder, 0);
  const Player& p = db[static_cast<std::size_t>(found->second - 1)].P;
  if (!(prospect ? PutOnProspects(s_, p) : PutOnRoster(s_, p))) return false;
  SaveTeam(s_, turn.holder, 0);
  MarkUsed(s_, {found->second});
  chosen.FieldD = 1;
  if (list.size() < static_cast<std::size_t>(turn.overall)) list.resize(static_cast<std::size_t>(turn.overall));
  DraftListRecord& line = list[static_cast<std::size_t>(turn.overall - 1)];
  line.FieldA = static_cast<i16>(turn.holder + 1);
  line.FieldB = s_.team(turn.holder).Name;
  if (turn.origTeam != turn.holder) line.FieldC = s_.team(turn.origTeam).Name;
  line.FieldE = static_cast<i16>(record);
  WriteDraftList(s_, list);
  s_.Dirty = true;
  Advance();
  return true;
}

int DraftNew::cmdAuto(int n) {
  int made = 0;
  for (; made < n && s_.league.EntryDraftOn; ++made) {
    const std::vector<UndraftedEntry> open = undrafted();
    const auto best = std::max_element(open.begin(), open.end(), [](const UndraftedEntry& a, const UndraftedEntry& b) {
      return a.overall < b.overall;
    });
    if (best == open.end()) break;
    loadteam(s_, CurrentTurn(s_).holder, 0);
    if (!(FirstFreeSlot(s_, 0) >= 0 ? cmdAdd(best->record) : cmdProspect(best->record))) break;
  }
  return made;
}

void DraftNew::Advance() {
  League& l = s_.league;
  if (++l.DraftPick >= s_.numTeams()) {
    l.DraftPick = 0;
    ++l.DraftRound;
  }
  PassUnheldPicks();
}

void DraftNew::PassUnheldPicks() {
  League& l = s_.league;
  if (!l.EntryDraftOn) return;
  if (l.DraftRound >= l.DraftRounds || UndraftedNames(ReadDraftList(s_)).empty()) return Finish();
  if (CurrentTurn(s_).holder < 0) Advance();
}

void DraftNew::Finish() {
  s_.league.EntryDraftOn = kFalse;
  UpdatePicks(s_, 0);
  s_.Dirty = true;
  s_.ui.tell("Draft Complete", kTitle);
  cmdOutput();
}

}  // namespace kvl
