#include "team/cards_email.h"

#include <algorithm>
#include <fstream>

#include "league/league_files.h"
#include "util/fixed_text.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

// `3,"gm@example.org"`; the quotes are optional on reading.
std::optional<EmailLine> ParseLine(const std::string& raw) {
  std::string line = Trim(raw);
  auto comma = line.find(',');
  if (line.empty() || comma == std::string::npos) return std::nullopt;
  EmailLine e;
  e.team = static_cast<int>(Val(line.substr(0, comma)));
  std::string rest = Trim(line.substr(comma + 1));
  if (rest.size() >= 2 && rest.front() == '"' && rest.back() == '"') rest = rest.substr(1, rest.size() - 2);
  e.address = rest;
  return e;
}

}  // namespace

std::vector<EmailLine> ReadEmailLines(const fs::path& file) {
  std::vector<EmailLine> out;
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line))
    if (auto e = ParseLine(line)) out.push_back(*e);
  return out;
}

void WriteEmailLines(const fs::path& file, const std::vector<EmailLine>& lines) {
  std::string text;
  for (const auto& e : lines) text += std::to_string(e.team) + ",\"" + e.address + "\"\r\n";
  WriteFileAtomic(file, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

std::string TeamEmail(const LeagueState& s, int team) {
  std::string found;
  for (const auto& e : ReadEmailLines(s.swap(swp::Email)))
    if (e.team == team && e.team < s.numTeams()) found = e.address;
  return found;
}

void SetTeamEmail(LeagueState& s, int team, const std::string& address) {
  auto lines = ReadEmailLines(s.swap(swp::Email));
  std::erase_if(lines, [&](const EmailLine& e) { return e.team == team; });
  lines.push_back({team, address});
  std::sort(lines.begin(), lines.end(), [](const EmailLine& a, const EmailLine& b) { return a.team < b.team; });
  WriteEmailLines(s.swap(swp::Email), lines);
}

}  // namespace kvl
