#pragma once
// Text into pages: escaping what the managers typed, and the filled columns
// every table of the pages is set in.
#include <string>
#include <string_view>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// Escapes & < > " so that a name chosen by a manager stays text on a public
// page; a name without them comes back unchanged.
std::string HtmlText(std::string_view text);

// Right-aligns in `width` by filling with blanks and keeping the right-hand
// part: a value too wide silently loses its leading characters.
std::string Fill(std::string_view value, std::size_t width);
std::string Fill(double value, std::size_t width);
// Left-aligns in `width`, cutting what is longer.
std::string Pad(std::string_view text, std::size_t width);

// The 1-based column after the end of each blank-separated caption of a
// column line ("<PRE>" not counted): where the values under them end.
std::vector<std::size_t> CaptionEnds(std::string_view columns);
// A row under a column line: the label, then each value right-aligned to end
// at its column. A value that meets a long label keeps one blank before it.
std::string RowUnder(std::string label, const std::vector<std::string>& values, const std::vector<std::size_t>& ends);

// A label of a row, cut to `width` so its values keep their columns, escaped.
std::string CutLabel(std::string_view raw, std::size_t width);

// An attribute's value, escaped and in double quotes, so that no text a
// manager typed can end it or add an attribute behind it.
std::string Quoted(std::string_view value);
// "<A HREF="href">shown</A>"; `shown` is HTML already.
std::string Link(std::string_view href, std::string_view shown);

// A team's name, condensed and escaped.
std::string TeamText(const LeagueState& s, int team);
// The name a team's section is anchored by: its condensed name with every
// byte but letters, digits and "-._~" written as %XX, so a blank cannot
// split it and two names never share one.
std::string TeamAnchorName(const LeagueState& s, int team);
// "<league><file>#<anchor>", the team's section of a per-team page.
std::string TeamHref(const LeagueState& s, int team, std::string_view file);
// The team's name linked to its roster.
std::string TeamLink(const LeagueState& s, int team);
// The link padded to `width` columns of its shown name.
std::string PaddedTeamLink(const LeagueState& s, int team, std::size_t width);
// "<A NAME="anchor">name</A>", the target of the team's links.
std::string NamedTeam(const LeagueState& s, int team);
// The heading a per-team section starts with.
std::string TeamAnchor(const LeagueState& s, int team);
// A player's name, condensed and escaped.
std::string PlayerText(const Player& p);

}  // namespace kvl
