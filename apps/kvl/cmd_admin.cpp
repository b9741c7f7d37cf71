// League creation, the bundled data, unused players, draft picks and the demo.
#include "admin/league_creation.h"
#include "console/main_console.h"
#include "console/startup.h"
#include "league/league_files.h"
#include "session.h"
#include "util/cp1252.h"
#include "util/error.h"

namespace kvl {

namespace {

struct NewOptions {
  std::string database, name, saveAs;
};

void RegisterNew(CLI::App& app, Session& s) {
  auto o = std::make_shared<NewOptions>();
  CLI::App* cmd = AddCommand(app, s, "new", "Create a new league, with no teams, from a player database", false, [&s, o] {
    NewLeagueChoice choice;
    if (!o->database.empty()) choice.database = fs::absolute(o->database);
    if (!o->name.empty()) choice.name = Utf8ToCp1252(o->name);
    if (!CreateLeague(s.state, choice)) throw Refused("no league made");
    if (!o->saveAs.empty()) MainConsole(s.state).SaveAs(fs::absolute(StripLeagueExtension(o->saveAs) + ".lge"));
    s.ui.print("League \"" + Cp1252ToUtf8(s.state.league.LeagueName.str()) +
               "\" created with no teams. Add teams with the alignment commands, then fill them with "
               "assign-unused --auto.\n");
  });
  cmd->add_option("--database", o->database, "the player database (.drs) instead of the file question");
  cmd->add_option("--name", o->name, "the league's name instead of the prompt (25 characters at most)");
  cmd->add_option("--save-as", o->saveAs, "save the new league at once under this file (.lge added when missing)");
}

void RegisterMakeDefaultData(CLI::App& app, Session& s) {
  auto dir = std::make_shared<std::string>();
  AddCommand(app, s, "make-default-data", "Write the bundled default files (default.lge, default.coa, default.drs, inj.dtf) into DIR",
             false, [&s, dir] {
               fs::create_directories(*dir);
               WriteDefaultFiles(fs::path(*dir), true);
               s.ui.print("Default files written to " + fs::absolute(*dir).string() + "\n");
             })
      ->add_option("DIR", *dir, "the folder to write into")
      ->required();
}

}  // namespace

void RegisterAdminCommands(CLI::App& app, Session& s) {
  RegisterNew(app, s);
  RegisterMakeDefaultData(app, s);
}

}  // namespace kvl
