#include "reports/html.h"

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

std::string TeamText(const LeagueState& s, int team) { return HtmlText(s.team(team).Name.str()); }

std::string TeamLink(const LeagueState& s, int team) {
  const std::string name = TeamText(s, team);
  return "<A HREF=" + s.LeagueShort + "Rosters.html#" + name + ">" + name + "</A>";
}

std::string PaddedTeamLink(const LeagueState& s, int team, std::size_t width) {
  std::size_t shown = s.team(team).Name.str().size();
  return TeamLink(s, team) + std::string(shown < width ? width - shown : 0, ' ');
}

std::string TeamAnchor(const LeagueState& s, int team) {
  const std::string name = TeamText(s, team);
  return "<H2><A NAME=" + name + ">" + name + "</A></H2>";
}

std::string PlayerText(const Player& p) { return HtmlText(p.Name.str()); }

}  // namespace kvl
