// Managers' lines files: save-lines, load-lines and auto-load-lines.
#include <fmt/format.h>

#include <memory>

#include "console/league_view.h"
#include "session.h"
#include "team/auto_load_lines.h"
#include "team/line_editor.h"
#include "team/lines_file.h"
#include "team/lines_import.h"
#include "team/lines_text_import.h"
#include "util/error.h"

namespace kvl {

namespace {

struct LinesFileArgs {
  std::string team, file;
  std::optional<std::string> password;
};

void RunSaveLines(Session& s, const LinesFileArgs& a) {
  const int team = ResolveTeam(s.state, a.team);
  s.state.CurTeam = static_cast<u8>(team);
  LineEditor e(s.state, team);
  if (a.password) s.ui.addAnswer(*a.password);
  auto written = cmdSaveLines(s.state, e, fs::path(a.file));
  if (!written) throw Refused("no password");
  s.ui.print(fmt::format("Lines of the {} written to {}.", s.state.team(team).Name.str(), written->string()));
}

void RunLoadLines(Session& s, const LinesFileArgs& a) {
  const int team = ResolveTeam(s.state, a.team);
  LinesImport r = LoadLinesFile(s.state, team, a.file);
  if (!r.ok) {
    s.ui.print("Not loaded: " + r.why);
    throw Refused(r.why);
  }
  s.ui.print(fmt::format("Lines of the {} loaded from {}.", s.state.team(team).Name.str(), a.file));
}

void RegisterSaveLoad(CLI::App& app, Session& s) {
  auto save = std::make_shared<LinesFileArgs>();
  CLI::App* cmd = AddCommand(app, s, "save-lines",
                             "Write a team's line table, statuses and protection marks to a binary lines file "
                             "(.lns) under a team password",
                             true, [&s, save] { RunSaveLines(s, *save); });
  cmd->add_option("TEAM", save->team, "team number or name")->required();
  cmd->add_option("FILE", save->file, "the lines file; .lns is added when the name lacks it")->required();
  cmd->add_option("--password", save->password, "the team password (asked when not given)");

  auto load = std::make_shared<LinesFileArgs>();
  cmd = AddCommand(app, s, "load-lines",
                   "Load a manager's lines file into a team: a binary .lns (checked against the team's password) or "
                   "a text file of jersey numbers, told apart by content",
                   true, [&s, load] { RunLoadLines(s, *load); });
  cmd->add_option("TEAM", load->team, "team number or name")->required();
  cmd->add_option("FILE", load->file, "the lines file")->required();
  cmd->footer(
      "A text file lists 20 dressed numbers, one ignored entry, the rows E1-P2 (5 each), P3-K2 (4), K3-K4 (3), the "
      "two spares and the starting goalie, separated by commas or line ends; *** marks a missing entry. A file is "
      "checked whole before anything changes: 20 dressed, none of them injured or suspended, and every seat a "
      "dressed player placed as the line editor places him. A refused file changes nothing and exits 1.");
}

void RegisterAutoLoad(CLI::App& app, Session& s) {
  CLI::App* cmd = AddCommand(app, s, "auto-load-lines",
                             "Load every team's lines file (team name + .lns) from the folder of LinesDirectory.txt, "
                             "without password checks, and report what failed",
                             true, [&s] {
                               LoadAutoLines(s.state);
                               s.ui.print("Report kept in " + LinesLoadingReportFile(s.state).string());
                             });
  cmd->footer("The folder is the league option LinesDirectory (see options); the report is kept beside the league.");
}

}  // namespace

void RegisterLinesCommands(CLI::App& app, Session& s) {
  RegisterSaveLoad(app, s);
  RegisterAutoLoad(app, s);
}

}  // namespace kvl
