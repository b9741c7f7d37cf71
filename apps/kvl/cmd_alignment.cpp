// League administration on the command line: align, options, and the team and
// player cards.
#include <memory>

#include "admin/alignment.h"
#include "admin/options.h"
#include "console/league_view.h"
#include "console/menu.h"
#include "session.h"
#include "ui/ui.h"
#include "util/error.h"

namespace kvl {

namespace {

// The console offers Align League only outside the playoffs and before a
// season's end; the command line keeps to the same rule.
AlignLeague OpenAlign(Session& s) {
  auto menu = ComputeMenu(s.state.league, {s.state.hasLeague(), s.state.Dirty});
  if (!FindEntry(menu, "align")->enabled) {
    s.ui.tell("Align League is not available once the season is over or while the playoffs run.", "Align League");
    throw Refused("align disabled");
  }
  return AlignLeague(s.state);
}

// Conferences and divisions are numbered from 1 on the command line, as info shows them.
CLI::Option* AddNumber(CLI::App* cmd, const std::string& name, std::shared_ptr<int> to, const std::string& what) {
  return cmd->add_option(name, *to, what)->required()->check(CLI::PositiveNumber);
}

struct AlignArgs {
  std::shared_ptr<std::string> team = std::make_shared<std::string>();
  std::shared_ptr<int> conf = std::make_shared<int>(0), div = std::make_shared<int>(0), count = std::make_shared<int>(0);
  std::shared_ptr<std::string> name = std::make_shared<std::string>();
  std::shared_ptr<bool> clear = std::make_shared<bool>(false);
  std::optional<std::string> givenName() const { return name->empty() ? std::nullopt : std::optional(*name); }
};

void AddTeamArg(CLI::App* cmd, const AlignArgs& a) {
  cmd->add_option("TEAM", *a.team, "the team, by number, name or abbreviation")->required();
}

void RegisterAlignEdits(CLI::App* align, Session& s) {
  AlignArgs a;
  auto* add = AddCommand(*align, s, "add", "Add a team at the end of a division (prompts for the name when not given)", true,
                         [&s, a] { OpenAlign(s).cmdAdd(*a.conf - 1, *a.div - 1, a.givenName()); });
  AddNumber(add, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(add, "DIV", a.div, "division within the conference, from 1");
  add->add_option("NAME", *a.name, "the team's name (10 characters are kept)");

  auto* del = AddCommand(*align, s, "delete", "Delete a team; later teams move down one number in every league file",
                         true, [&s, a] { OpenAlign(s).cmdDelete(ResolveTeam(s.state, *a.team)); });
  AddTeamArg(del, a);

  auto* rc = AddCommand(*align, s, "rename-conference", "Rename a conference (prompts when no name is given)", true,
                        [&s, a] { OpenAlign(s).cmdRenameConf(*a.conf - 1, a.givenName()); });
  AddNumber(rc, "CONF", a.conf, "conference, 1 or 2");
  rc->add_option("NAME", *a.name, "the new name (12 characters are kept)");

  auto* rd = AddCommand(*align, s, "rename-division", "Rename a division (prompts when no name is given)", true,
                        [&s, a] { OpenAlign(s).cmdRenameDiv(*a.conf - 1, *a.div - 1, a.givenName()); });
  AddNumber(rd, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(rd, "DIV", a.div, "division within the conference, from 1");
  rd->add_option("NAME", *a.name, "the new name (10 characters are kept)");
}

void RegisterAlignStructure(CLI::App* align, Session& s) {
  AlignArgs a;
  auto* move = AddCommand(*align, s, "move", "Move a team to another division", true, [&s, a] {
    OpenAlign(s).MoveTeam(ResolveTeam(s.state, *a.team), *a.conf - 1, *a.div - 1);
  });
  AddTeamArg(move, a);
  AddNumber(move, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(move, "DIV", a.div, "division within the conference, from 1");

  auto* divs = AddCommand(*align, s, "divisions", "Set the number of divisions of a conference (1 to 4)", true,
                          [&s, a] { OpenAlign(s).ChangeDivisions(*a.conf - 1, *a.count); });
  AddNumber(divs, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(divs, "COUNT", a.count, "divisions, 1 to 4");

  auto* exp = AddCommand(*align, s, "expansion", "Mark a team as an expansion team for the expansion draft", true,
                         [&s, a] { OpenAlign(s).Expansion(ResolveTeam(s.state, *a.team), !*a.clear); });
  AddTeamArg(exp, a);
  exp->add_flag("--clear", *a.clear, "take the mark off instead");

  AddCommand(*align, s, "show", "Show the conferences, divisions and their teams", true,
             [&s] { s.ui.print(OpenAlign(s).Listing()); });
}

// `options` lists every option; `options --set NAME=VALUE ...` changes the
// controls as typed and applies, then lists what the league now holds.
void RegisterOptions(CLI::App& app, Session& s) {
  auto sets = std::make_shared<std::vector<std::string>>();
  auto* cmd = AddCommand(app, s, "options", "Show the league options, or set some by name and apply them", true, [&s, sets] {
    Options form(s.state);
    for (const auto& setting : *sets) {
      auto eq = setting.find('=');
      if (eq == std::string::npos) {
        s.ui.tell("Give each option as NAME=VALUE, such as ShotsLevel=6.", "Options");
        throw Refused("no value");
      }
      form.set(setting.substr(0, eq), setting.substr(eq + 1));
    }
    if (!sets->empty()) form.cmdApply();
    s.ui.print(Options(s.state).Listing());
  });
  cmd->add_option("--set", *sets, "NAME=VALUE, e.g. ShotsLevel=6 or OptMoney=on; the names are those the listing shows");
}

}  // namespace

void RegisterAlignmentCommands(CLI::App& app, Session& s) {
  RegisterOptions(app, s);
  CLI::App* align = app.add_subcommand("align", "Align the league: add, delete, rename, move teams, divisions, expansion");
  align->require_subcommand(1);
  RegisterAlignEdits(align, s);
  RegisterAlignStructure(align, s);
}

}  // namespace kvl
