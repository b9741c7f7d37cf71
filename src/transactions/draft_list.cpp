#include "transactions/draft_list.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>

#include "league/league_files.h"
#include "transactions/database_players.h"
#include "util/error.h"
#include "util/fixed_text.h"
#include "util/record_file.h"

namespace kvl {

namespace {

struct Item {
  int line = 0;
  std::string text;
};

// The items of one line, split at commas outside quotes, quotes dropped.
void SplitLine(const std::string& line, int number, std::vector<Item>& out) {
  std::string item;
  bool quoted = false;
  for (char c : line) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      out.push_back({number, Trim(item)});
      item.clear();
    } else {
      item += c;
    }
  }
  out.push_back({number, Trim(item)});
}

std::vector<Item> Items(const Bytes& bytes, const std::filesystem::path& file) {
  if (std::find(bytes.begin(), bytes.end(), u8{0}) != bytes.end())
    throw KvlError(file.string() + " is not a text file of names (it holds NUL bytes); no draft list was read.");
  std::vector<Item> out;
  std::string line;
  int number = 1;
  for (std::size_t i = 0; i <= bytes.size(); ++i) {
    if (i == bytes.size() || bytes[i] == '\n') {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (i < bytes.size() || !line.empty()) SplitLine(line, number, out);
      line.clear();
      ++number;
    } else {
      line += static_cast<char>(bytes[i]);
    }
  }
  return out;
}

bool HasControl(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 32; });
}

}  // namespace

DraftListRead ReadDraftListFile(const LeagueState& s, const std::filesystem::path& file) {
  if (!std::filesystem::is_regular_file(file)) throw KvlError("There is no draft list file " + file.string() + ".");
  std::map<std::string, i16> inDatabase;  // the first record of each name
  for (const DbRecord& r : ReadDatabase(s)) inDatabase.emplace(r.P.Name.str(), r.DbFlag);
  DraftListRead out;
  std::set<std::string> seen;
  for (const Item& item : Items(ReadFileBytes(file), file)) {
    const std::string name = Condense(item.text.substr(0, kDraftNameLength));
    auto bad = [&](const std::string& why) { out.problems.push_back({item.line, why}); };
    if (name.empty()) {
      bad("a blank name");
    } else if (HasControl(name)) {
      bad("\"" + name + "\" holds control characters");
    } else if (!seen.insert(name).second) {
      bad("\"" + name + "\" is on the list already");
    } else if (auto it = inDatabase.find(name); it == inDatabase.end()) {
      bad("\"" + name + "\" is not in the league's player database");
    } else if (it->second != 0) {
      bad("\"" + name + "\" already plays for a team");
    } else {
      out.names.push_back(name);
    }
  }
  return out;
}

std::vector<DraftListRecord> ReadDraftList(const LeagueState& s) {
  std::vector<DraftListRecord> out;
  if (!std::filesystem::exists(s.swap(swp::DraftList))) return out;
  RecordFile f(s.swap(swp::DraftList), DraftListRecord::kSize);
  const std::size_t n = f.count();
  for (std::size_t i = 1; i <= n; ++i) out.push_back(f.getRecord<DraftListRecord>(i));
  return out;
}

void WriteDraftList(LeagueState& s, const std::vector<DraftListRecord>& list) {
  RemoveIfExists(s.swap(swp::DraftList));
  RecordFile f(s.swap(swp::DraftList), DraftListRecord::kSize);
  for (std::size_t i = 0; i < list.size(); ++i) f.putRecord(i + 1, list[i]);
}

void MakeDraftList(LeagueState& s, const std::vector<std::string>& names) {
  std::vector<DraftListRecord> list(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) list[i].Name.set(names[i]);
  WriteDraftList(s, list);
}

std::vector<int> UndraftedNames(const std::vector<DraftListRecord>& list) {
  std::vector<int> out;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (!list[i].Name.empty() && !list[i].Name.str().empty() && list[i].FieldD == 0)
      out.push_back(static_cast<int>(i) + 1);
  return out;
}

}  // namespace kvl
