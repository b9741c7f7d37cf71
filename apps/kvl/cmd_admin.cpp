// League creation, the bundled data, unused players, draft picks and the demo.
#include <fmt/format.h>

#include "admin/league_creation.h"
#include "console/demo.h"
#include "console/league_view.h"
#include "console/main_console.h"
#include "console/startup.h"
#include "league/league_files.h"
#include "league/tables.h"
#include "session.h"
#include "transactions/unused_players.h"
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
    // A bare name is the home folder's, as the bundled default.drs.
    if (!o->database.empty())
      choice.database = fs::path(o->database).has_parent_path() ? fs::absolute(o->database) : s.home / o->database;
    if (!o->name.empty()) choice.name = Utf8ToCp1252(o->name);
    if (!CreateLeague(s.state, choice)) throw Refused("no league made");
    if (!o->saveAs.empty() && !MainConsole(s.state).SaveAs(NewLeagueFile(s, o->saveAs))) throw Refused("not saved");
    s.ui.print("League \"" + s.state.league.LeagueName.str() +
               "\" created with no teams. Add teams with the align commands, then fill them with "
               "assign-unused --auto.\n");
  });
  cmd->add_option("--database", o->database,
                  "the player database (.drs) instead of the file question; a name without a folder is the home "
                  "folder's (default.drs)");
  cmd->add_option("--name", o->name, "the league's name instead of the prompt (25 characters at most)");
  cmd->add_option("--save-as", o->saveAs,
                  "save the new league at once under this file (.lge added when missing; a name without a folder "
                  "goes to the home folder)");
}

void RegisterMakeDefaultData(CLI::App& app, Session& s) {
  auto dir = std::make_shared<std::string>();
  AddCommand(app, s, "make-default-data",
             "Write the bundled default files (default.lge, default.coa, default.drs, inj.dtf) into DIR", false,
             [&s, dir] {
               fs::create_directories(*dir);
               WriteDefaultFiles(fs::path(*dir), true);
               s.ui.print("Default files written to " + fs::absolute(*dir).string() + "\n");
             })
      ->add_option("DIR", *dir, "the folder to write into")
      ->required();
}

struct AssignOptions {
  std::string team;
  int record = 0;
  bool autoFill = false;
};

std::string UnusedListing(const std::vector<UnusedEntry>& list) {
  std::string out = fmt::format("{} unused players\n  Rec  Name                   Pos  OV\n", list.size());
  for (const UnusedEntry& e : list)
    out += fmt::format("{:>5}  {:<22} {}  {:>2}\n", e.record, e.name, PosName[static_cast<std::size_t>(e.pos)], e.overall);
  return out;
}

void RegisterAssignUnused(CLI::App& app, Session& s) {
  auto o = std::make_shared<AssignOptions>();
  CLI::App* cmd = AddCommand(
      app, s, "assign-unused",
      "List the database players no team holds; with TEAM RECORD give one to a team; with --auto fill every team", true,
      [&s, o] {
        UnusedPlayers form(s.state);
        if (o->autoFill) {
          form.cmdAuto();
        } else if (!o->team.empty()) {
          if (o->record == 0) {
            s.ui.tell("Name the player by his record number, as the list shows it.", "Assign Unused Players");
            throw Refused("no record");
          }
          if (!form.cmdAdd(ResolveTeam(s.state, o->team), o->record)) throw Refused("not assigned");
        } else {
          s.ui.print(UnusedListing(form.list()));
        }
      });
  cmd->add_option("TEAM", o->team, "the team, by number or name");
  cmd->add_option("RECORD", o->record, "the player's record number in the database");
  cmd->add_flag("--auto", o->autoFill, "every team takes players in turns until it holds a full club");
}

struct DemoArgs {
  int teams = 24;
  std::optional<std::uint64_t> seed;
};

// The demo's seed: its own --seed, else the run's, else 1, so that a plain
// `kvl demo` always makes the same league.
std::uint64_t DemoSeed(CLI::App& root, const DemoArgs& a) {
  if (a.seed) return *a.seed;
  const CLI::Option* global = root.get_option_no_throw("--seed");
  return global && global->count() > 0 ? global->as<std::uint64_t>() : 1;
}

// Where a new commissioner looks after the demo.
std::string DemoNextSteps(const Session& s) {
  return fmt::format(
      "What next:\n"
      "  open {} in a browser: standings, leaders, box scores\n"
      "  kvl info     the league open now, its teams and the commands it allows\n"
      "  kvl shell    keep the league open and type commands (help lists them)\n"
      "  README.md    \"Your first league\": from an empty home folder to a played season\n",
      (s.home / "Transfer" / "index.html").string());
}

void RegisterDemo(CLI::App& app, Session& s) {
  auto a = std::make_shared<DemoArgs>();
  CLI::App* cmd = AddCommand(app, s, "demo",
                             "Make the league Demo in the home folder from the bundled data: aligned, filled, "
                             "coached, rosters and lines set, scheduled, its season played and saved",
                             false, [&s, &app, a] {
                               DemoSummary d = RunDemo(s.state, {a->teams, DemoSeed(app, *a)});
                               s.ui.print(DemoSummaryText(s.state, d) + DemoNextSteps(s));
                             });
  cmd->add_option("--teams", a->teams, "teams in the league, 8 to 50 (default 24)")->check(CLI::Range(kDemoMinTeams, kDemoMaxTeams));
  cmd->add_option("--seed", a->seed, "the seed of the league's draws (default: the run's --seed, else 1)");
}

}  // namespace

void RegisterAdminCommands(CLI::App& app, Session& s) {
  RegisterNew(app, s);
  RegisterMakeDefaultData(app, s);
  RegisterAssignUnused(app, s);
  RegisterDemo(app, s);
}

}  // namespace kvl
