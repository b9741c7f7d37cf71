#pragma once
// The entry-draft list (.dft, swap swp.df): one 47-byte record per name of the
// commissioner's list, in the order given, and record n also carries the line
// of the draft's overall pick n once it is made:
//   Name    the list's n-th name (blank past the end of the list)
//   FieldA  the team that made pick n, plus 1; 0 while the pick is not made
//   FieldB  that team's name
//   FieldC  the name of the team the pick was made for, when it changed hands
//   FieldD  1 once the player named in this record has been drafted
//   FieldE  the record of the name chosen at pick n
// So the list of names and the record of picks share the file without either
// moving the other.
#include <filesystem>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr int kDraftNameLength = 22;

struct DraftListProblem {
  int line = 0;
  std::string text;  // what is wrong, naming the item
};

struct DraftListRead {
  std::vector<std::string> names;  // accepted, each cut to 22 characters
  std::vector<DraftListProblem> problems;
};

// Reads a text file of names, item by item: items are separated by line ends
// and by commas outside double quotes, and quotes around an item are dropped.
// A blank item, a name met before, a name not in the league's database and a
// player a team already holds are each reported by line and left out. A file
// that is not text (NUL bytes) throws KvlError naming it.
DraftListRead ReadDraftListFile(const LeagueState& s, const std::filesystem::path& file);

std::vector<DraftListRecord> ReadDraftList(const LeagueState& s);
void WriteDraftList(LeagueState& s, const std::vector<DraftListRecord>& list);
// A new list of the names, no pick made.
void MakeDraftList(LeagueState& s, const std::vector<std::string>& names);

// The list records (from 1) of the names not yet drafted.
std::vector<int> UndraftedNames(const std::vector<DraftListRecord>& list);

}  // namespace kvl
