#include "reports/html.h"

#include <cctype>

#include "util/numbers.h"

namespace kvl {

std::string HtmlText(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      default: out += c;
    }
  }
  return out;
}

std::string Fill(std::string_view value, std::size_t width) {
  if (value.size() >= width) return std::string(value.substr(value.size() - width));
  return std::string(width - value.size(), ' ') + std::string(value);
}

std::string Fill(double value, std::size_t width) { return Fill(NumText(value), width); }

std::string Pad(std::string_view text, std::size_t width) {
  std::string out(text.substr(0, std::min(width, text.size())));
  out.resize(width, ' ');
  return out;
}

std::vector<std::size_t> CaptionEnds(std::string_view columns) {
  if (columns.starts_with("<PRE>")) columns.remove_prefix(5);
  std::vector<std::size_t> ends;
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (columns[i] != ' ' && (i + 1 == columns.size() || columns[i + 1] == ' ')) ends.push_back(i + 1);
  return ends;
}

std::string RowUnder(std::string label, const std::vector<std::string>& values, const std::vector<std::size_t>& ends) {
  std::string& line = label;
  for (std::size_t i = 0; i < values.size() && i < ends.size(); ++i) {
    std::size_t room = ends[i] > line.size() ? ends[i] - line.size() : 0;
    line += Fill(values[i], std::max(room, values[i].size() + 1));
  }
  return line;
}

std::string CutLabel(std::string_view raw, std::size_t width) { return HtmlText(Pad(raw, width)); }

std::string Quoted(std::string_view value) { return "\"" + HtmlText(value) + "\""; }

std::string Link(std::string_view href, std::string_view shown) {
  return "<A HREF=" + Quoted(href) + ">" + std::string(shown) + "</A>";
}

std::string TeamText(const LeagueState& s, int team) { return HtmlText(s.team(team).Name.str()); }

std::string TeamAnchorName(const LeagueState& s, int team) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (char c : s.team(team).Name.str()) {
    const auto b = static_cast<unsigned char>(c);
    if (std::isalnum(b) && b < 0x80) out += c;
    else if (c == '-' || c == '.' || c == '_' || c == '~') out += c;
    else out += {'%', kHex[b >> 4], kHex[b & 15]};
  }
  return out;
}

std::string TeamHref(const LeagueState& s, int team, std::string_view file) {
  return s.LeagueShort + std::string(file) + "#" + TeamAnchorName(s, team);
}

std::string TeamLink(const LeagueState& s, int team) {
  return Link(TeamHref(s, team, "Rosters.html"), TeamText(s, team));
}

std::string PaddedTeamLink(const LeagueState& s, int team, std::size_t width) {
  std::size_t shown = s.team(team).Name.str().size();
  return TeamLink(s, team) + std::string(shown < width ? width - shown : 0, ' ');
}

std::string NamedTeam(const LeagueState& s, int team) {
  return "<A NAME=" + Quoted(TeamAnchorName(s, team)) + ">" + TeamText(s, team) + "</A>";
}

std::string TeamAnchor(const LeagueState& s, int team) { return "<H2>" + NamedTeam(s, team) + "</H2>"; }

std::string PlayerText(const Player& p) { return HtmlText(p.Name.str()); }

}  // namespace kvl
