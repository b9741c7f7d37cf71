// The console's own commands: info, load, save, save-as, rename-league.
#include "console/league_view.h"
#include "console/main_console.h"
#include "league/league_files.h"
#include "session.h"
#include "util/cp1252.h"

namespace kvl {

namespace {
// A name without a folder is looked for here, then in the home folder, where
// saves under such a name go.
fs::path AsLeagueFile(const Session& s, std::string p) {
  if (StripLeagueExtension(p) == p) p += ".lge";
  const fs::path given(p);
  if (!given.has_parent_path() && !fs::exists(given) && fs::exists(s.home / given)) return s.home / given;
  return fs::absolute(given);
}
}  // namespace

void RegisterLeagueCommands(CLI::App& app, Session& s) {
  AddCommand(app, s, "info", "Show the open league: conferences, divisions, teams, state and enabled commands", false,
             [&s] { s.ui.print(InfoText(s.state, s.commands)); });

  auto path = std::make_shared<std::string>();
  AddCommand(app, s, "load", "Load a league (asks to save unsaved work first)", false,
             [&s, path] { MainConsole(s.state).LoadLeague(AsLeagueFile(s, *path)); })
      ->add_option("PATH", *path, "the league's .lge file, or its path without extension")
      ->required();

  AddCommand(app, s, "save", "Save the open league over its files", true, [&s] { MainConsole(s.state).SaveLeague(); });

  auto newPath = std::make_shared<std::string>();
  AddCommand(app, s, "save-as", "Save the open league under a new name", true,
             [&s, newPath] {
               if (!MainConsole(s.state).SaveAs(NewLeagueFile(s, *newPath))) throw Refused("not saved");
               s.ui.print("Saved as " + s.state.LeaguePath + ".lge; the next command opens it.\n");
             })
      ->add_option("PATH", *newPath,
                   "the new league file (.lge added when missing; a name without a folder goes to the home "
                   "folder; an existing league is written over only with --overwrite)")
      ->required();

  auto name = std::make_shared<std::string>();
  AddCommand(app, s, "rename-league", "Change the league's name (25 characters at most)", true,
             [&s, name] { MainConsole(s.state).RenameLeague(Utf8ToCp1252(*name)); })
      ->add_option("NAME", *name, "the new name")
      ->required();
}

}  // namespace kvl
