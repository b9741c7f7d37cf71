// The league at a glance: standings, find-player, and the table and CSV
// printing they share with free-agents.
#include <fmt/format.h>

#include <map>
#include <memory>

#include "cmd_glance.h"
#include "league/tables.h"
#include "reports/glance.h"
#include "session.h"
#include "util/cp1252.h"

namespace kvl {

std::string PosText(int pos) {
  const std::string_view name = PosName[static_cast<std::size_t>(pos)];
  return std::string(name.substr(name[0] == ' ' ? 1 : 0));
}

std::optional<int> PosNumber(const std::string& text) {
  for (std::size_t p = 0; p < PosName.size(); ++p)
    if (CLI::detail::to_lower(text) == CLI::detail::to_lower(PosText(static_cast<int>(p)))) return static_cast<int>(p);
  return std::nullopt;
}

std::string TableText(const TextTable& t, bool csv) {
  auto csvField = [](const std::string& f) {
    if (f.find_first_of(",\"") == std::string::npos) return f;
    std::string quoted = "\"";
    for (char c : f) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
  };
  auto line = [&](const std::vector<std::string>& cells) {
    std::string out;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const Column& c = t.columns[i];
      if (csv)
        out += (i ? "," : "") + csvField(cells[i]);
      else
        out += (i ? " " : "") +
               (c.left ? fmt::format("{:<{}}", cells[i], c.width) : fmt::format("{:>{}}", cells[i], c.width));
    }
    while (!csv && !out.empty() && out.back() == ' ') out.pop_back();
    return out + "\n";
  };
  std::vector<std::string> heads;
  for (const Column& c : t.columns) heads.push_back(c.title);
  std::string out = line(heads);
  for (const auto& row : t.rows) out += line(row);
  return out;
}

namespace {

std::string Team(const LeagueState& s, int team) { return team < 0 ? "-" : Cp1252ToUtf8(s.team(team).Abbrev.str()); }

std::vector<Column> StandingsColumns(bool otl) {
  std::vector<Column> c{{"Team", 22, true}, {"Abbr", 4, true}, {"GP", 3}, {"W", 3}, {"L", 3}, {"T", 3}};
  if (otl) c.push_back({"OTL", 3});
  for (const char* title : {"P", "GF", "GA", "Diff"}) c.push_back({title, 4});
  return c;
}

std::vector<std::string> StandingsCells(const LeagueState& s, const StandingRow& r, bool otl) {
  const kvl::Team& t = s.team(r.team);
  std::vector<std::string> row{Cp1252ToUtf8(t.Name.str()), Team(s, r.team), std::to_string(r.GP),
                               std::to_string(t.W[0]), std::to_string(otl ? t.L[0] - t.L[1] : t.L[0]),
                               std::to_string(t.T[0])};
  if (otl) row.push_back(std::to_string(t.L[1]));
  for (int v : {r.Points, static_cast<int>(t.GF), static_cast<int>(t.GA), r.Diff}) row.push_back(std::to_string(v));
  return row;
}

void RunStandings(Session& s, const std::string& by, bool csv) {
  const StandingsScope scope = by == "league"       ? StandingsScope::League
                               : by == "conference" ? StandingsScope::Conference
                                                    : StandingsScope::Division;
  const bool otl = s.state.league.PointSystem == 1;  // losses in overtime apart, as the page shows them
  TextTable all{StandingsColumns(otl), {}};
  all.columns.insert(all.columns.begin(), {"Group", 0, true});
  std::string text;
  for (const StandingsGroup& g : GroupStandings(s.state, scope)) {
    TextTable t{StandingsColumns(otl), {}};
    for (const StandingRow& r : g.rows) {
      t.rows.push_back(StandingsCells(s.state, r, otl));
      all.rows.push_back(t.rows.back());
      all.rows.back().insert(all.rows.back().begin(), Cp1252ToUtf8(g.title));
    }
    text += Cp1252ToUtf8(g.title) + "\n" + TableText(t, false);
  }
  s.ui.print(csv ? TableText(all, true) : text);
}

void RegisterStandings(CLI::App& app, Session& s) {
  auto by = std::make_shared<std::string>("division");
  auto csv = std::make_shared<bool>(false);
  CLI::App* cmd = AddCommand(app, s, "standings",
                             "The standings by division, conference or league, ranked as the standings page ranks "
                             "them",
                             true, [&s, by, csv] { RunStandings(s, *by, *csv); });
  cmd->add_option("--by", *by, "division (default), conference or league")
      ->check(CLI::IsMember({"division", "conference", "league"}));
  cmd->add_flag("--csv", *csv, "comma-separated values for a spreadsheet");
}

void RegisterFindPlayer(CLI::App& app, Session& s) {
  auto text = std::make_shared<std::string>();
  auto csv = std::make_shared<bool>(false);
  CLI::App* cmd = AddCommand(
      app, s, "find-player",
      "Every player of the rosters, the prospects and the database whose name holds TEXT (any case, any accents)",
      true, [&s, text, csv] {
        TextTable t{{{"Player", 22, true}, {"Team", 4, true}, {"Slot", 4}, {"Pos", 3}, {"Age", 3}, {"OV", 3},
                     {"Status", 20, true}},
                    {}};
        for (const FoundPlayer& p : FindPlayers(s.state, Utf8ToCp1252(*text)))
          t.rows.push_back({Cp1252ToUtf8(p.name), Team(s.state, p.team), std::to_string(p.slot),
                            PosText(p.pos),
                            std::to_string(p.age), p.overall < 0 ? "-" : std::to_string(p.overall), p.status});
        if (t.rows.empty()) return s.ui.print("No player's name holds \"" + *text + "\".\n");
        s.ui.print(TableText(t, *csv));
      });
  cmd->add_option("TEXT", *text, "a part of the name")->required();
  cmd->add_flag("--csv", *csv, "comma-separated values for a spreadsheet");
  cmd->footer("Slot: the roster slot, the prospect's number, or the database record of a free agent.");
}

struct LeadersArgs {
  std::string category = "points";
  std::size_t top = 10;
  bool csv = false;
};

const std::map<std::string, LeaderCategory> kCategories{
    {"points", LeaderCategory::Points},    {"goals", LeaderCategory::Goals},
    {"assists", LeaderCategory::Assists},  {"plus-minus", LeaderCategory::PlusMinus},
    {"pim", LeaderCategory::Penalties},    {"gaa", LeaderCategory::Gaa},
    {"save", LeaderCategory::Save}};

std::string LeaderFigure(const Player& p, LeaderCategory c) {
  switch (c) {
    case LeaderCategory::Goals: return std::to_string(p.G);
    case LeaderCategory::Assists: return std::to_string(p.A);
    case LeaderCategory::PlusMinus: return std::to_string(p.Plus);
    case LeaderCategory::Penalties: return std::to_string(p.PIM);
    case LeaderCategory::Gaa: return fmt::format("{:.2f}", GoalsAgainstAverage(p));
    case LeaderCategory::Save: return fmt::format("{:.3f}", SavePercentage(p));
    default: return std::to_string(p.G + p.A);
  }
}

void RunLeaders(Session& s, const LeadersArgs& a) {
  const LeaderCategory c = kCategories.at(a.category);
  TextTable t{{{"#", 3}, {"Player", 22, true}, {"Team", 4, true}, {"Pos", 3}, {"GP", 3}, {"G", 3}, {"A", 3},
               {a.category, 10}},
              {}};
  int place = 0;
  for (const RosterEntry& e : Leaders(s.state, c, a.top))
    t.rows.push_back({std::to_string(++place), Cp1252ToUtf8(e.p.Name.str()), Team(s.state, e.team), PosText(e.p.Pos),
                      std::to_string(e.p.GP), std::to_string(e.p.G), std::to_string(e.p.A),
                      LeaderFigure(e.p, c)});
  if (t.rows.empty()) return s.ui.print("No player is ranked in " + a.category + " yet.\n");
  s.ui.print(TableText(t, a.csv));
}

void RegisterLeaders(CLI::App& app, Session& s) {
  auto a = std::make_shared<LeadersArgs>();
  CLI::App* cmd = AddCommand(app, s, "leaders", "The league's leaders in a category, as the leaders page ranks them",
                             true, [&s, a] { RunLeaders(s, *a); });
  std::vector<std::string> names;
  for (const auto& [name, category] : kCategories) names.push_back(name);
  cmd->add_option("--category", a->category, "points (default), goals, assists, plus-minus, pim, gaa or save")
      ->check(CLI::IsMember(names));
  cmd->add_option("--top", a->top, "how many (default 10)")->check(kPositiveWhole);
  cmd->add_flag("--csv", a->csv, "comma-separated values for a spreadsheet");
  cmd->footer("Goalies are ranked in gaa and save with the games the leaders page asks of them.");
}

}  // namespace

void RegisterGlanceCommands(CLI::App& app, Session& s) {
  RegisterStandings(app, s);
  RegisterLeaders(app, s);
  RegisterFindPlayer(app, s);
}

}  // namespace kvl
