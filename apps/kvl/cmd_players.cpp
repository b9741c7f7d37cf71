// Prospects and the player database: view-prospects, player-database,
// edit-players and update-player-stats.
#include <fmt/format.h>

#include <memory>

#include "admin/player_database.h"
#include "admin/update_stats.h"
#include "console/league_view.h"
#include "league/tables.h"
#include "refuse.h"
#include "session.h"
#include "team/youth_form.h"
#include "util/cp1252.h"
#include "util/fixed_text.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

// --- view-prospects ---------------------------------------------------------

struct ProspectArgs {
  std::string team;
  std::vector<std::string> add, del;
  std::string pos = "C";
  ProspectTerms terms;
  std::optional<std::string> activate, manual;
  std::optional<int> record;
};

// An entry named by the number the list shows (from 1) or by name.
int ProspectEntry(Session& s, const ViewProspects& v, const std::string& arg) {
  for (int e : v.entries())
    if (arg == NumText(e + 1) || Utf8ToCp1252(arg) == v.list().Name[static_cast<std::size_t>(e)].str()) return e;
  RefuseWith(s, "The prospect list has no entry \"" + arg + "\".", "View Prospects");
}

int PositionArg(Session& s, const std::string& arg) {
  for (int pos = 0; pos < 5; ++pos)
    if (Utf8ToCp1252(arg) == Trim(std::string(PosName[static_cast<std::size_t>(pos)]))) return pos;
  RefuseWith(s, "A position is C, LW, RW, D or G, not \"" + arg + "\".", "Add Prospect");
}

void Activate(Session& s, ViewProspects& v, const ProspectArgs& a) {
  const int entry = ProspectEntry(s, v, *a.activate);
  const std::string own = Cp1252ToUtf8(v.list().Name[static_cast<std::size_t>(entry)].str());
  FindMatch m = v.cmdActivate(entry);
  s.ui.print(m.status());
  bool done = false;
  if (a.manual)
    done = m.cmdManual(a.manual->empty() ? own : *a.manual);
  else if (a.record || m.matched())
    done = m.cmdMatch(a.record ? *a.record : *m.matched());
  else
    RefuseWith(s, "No database player bears that name: give --record N or --manual NAME.", "View Prospects");
  if (!done) throw Refused("not activated");
}

std::string ProspectsText(const Session& s, const ViewProspects& v, int team) {
  std::string out = "Prospects of the " + s.state.team(team).Name.str() + "\n";
  const ProspectList& l = v.list();
  for (int e : v.entries()) {
    const auto i = static_cast<std::size_t>(e);
    out += fmt::format("{:>4}  {:<22}  {:<2}  age {:>2}  {:>12}  {} yr\n", e + 1, Cp1252ToUtf8(l.Name[i].str()),
                       l.Pos[i] < 5 ? PosName[l.Pos[i]] : "?", l.Age[i], FormatNumber(l.Salary[i] * 100.0, "$#,##0"),
                       l.Contract[i]);
  }
  return out;
}

void RunViewProspects(Session& s, const ProspectArgs& a) {
  const int team = ResolveTeam(s.state, a.team);
  ViewProspects v(s.state, team);
  ProspectTerms terms = a.terms;
  terms.pos = PositionArg(s, a.pos);
  for (const auto& name : a.add)
    if (v.cmdAdd(name, terms) < 0) throw Refused("no room");
  for (const auto& entry : a.del) v.cmdDelete(ProspectEntry(s, v, entry));
  if (a.activate) Activate(s, v, a);
  s.ui.print(ProspectsText(s, v, team));
}

void RegisterViewProspects(CLI::App& app, Session& s) {
  auto a = std::make_shared<ProspectArgs>();
  CLI::App* cmd =
      AddCommand(app, s, "view-prospects", "List a team's prospects; add, delete, or activate one onto the roster",
                 true, [&s, a] { RunViewProspects(s, *a); });
  cmd->add_option("TEAM", a->team, "team number or name")->required();
  cmd->add_option("--add", a->add, "add a prospect of this name");
  cmd->add_option("--pos", a->pos, "with --add: his position, C LW RW D or G (default C)");
  cmd->add_option("--age", a->terms.age, "with --add: his age (default 18)")->check(CLI::Range(15, 45));
  cmd->add_option("--contract", a->terms.contract, "with --add: contract years (default 3)")->check(CLI::Range(0, 10));
  cmd->add_option("--salary", a->terms.salary, "with --add: salary in dollars (default 500000)")
      ->check(CLI::Range(0, 3276700));
  cmd->add_option("--delete", a->del, "delete the prospect of this list number or name");
  cmd->add_option("--activate", a->activate, "bring the prospect of this list number or name onto the roster");
  cmd->add_option("--record", a->record, "with --activate: the free database record (from 1) to take him from");
  cmd->add_option("--manual", a->manual,
                  "with --activate: make him by hand, under this name (\"\" for the prospect's)");
  cmd->footer("--activate takes the database player of the prospect's name when there is one.");
}

// --- player-database --------------------------------------------------------

struct DatabaseArgs {
  std::optional<std::string> drs;
  bool list = false, add = false, clear = false, merge = false, output = false;
  std::vector<int> show, del;
  std::vector<std::string> set;
};

int RecordArg(Session& s, const frmPlayerDB& f, double n) {
  if (n < 1 || n > static_cast<double>(f.records().size()) || n != Int(n))
    RefuseWith(s, fmt::format("{} has no record {}: it holds {}.", f.file().string(), n, f.records().size()),
               "Player Database");
  return static_cast<int>(n) - 1;
}

// "12:Spd=70": record from 1, field, value.
void SetField(Session& s, frmPlayerDB& f, const std::string& text) {
  const auto colon = text.find(':'), eq = text.find('=');
  if (colon == std::string::npos || eq == std::string::npos || eq < colon)
    RefuseWith(s, "A field edit reads RECORD:FIELD=VALUE, as 12:Spd=70, not \"" + text + "\".", "Player Database");
  f.Select(RecordArg(s, f, Val(text.substr(0, colon))));
  const std::string field = text.substr(colon + 1, eq - colon - 1), value = Utf8ToCp1252(text.substr(eq + 1));
  if (!f.SetField(field, value))
    RefuseWith(s, "The field " + field + " does not take \"" + text.substr(eq + 1) + "\".", "Player Database");
  f.cmdUpdate();
}

void RunPlayerDatabase(Session& s, const DatabaseArgs& a) {
  frmPlayerDB f(s.state, a.drs ? std::optional<fs::path>(*a.drs) : std::nullopt);
  if (a.add) f.cmdAdd();
  for (const auto& text : a.set) SetField(s, f, text);
  for (int n : a.del)
    if (!f.cmdDelete(RecordArg(s, f, n))) throw Refused("kept");
  if (a.clear && !f.cmdClear()) throw Refused("kept");
  if (a.merge) f.cmdMerge();
  if (a.output) s.ui.print("Written " + f.cmdOutput().string());
  for (int n : a.show) {
    f.Select(RecordArg(s, f, n));
    s.ui.print(f.FieldsText());
  }
  if (!a.list) return;
  std::string out;
  for (int i = 0; i < static_cast<int>(f.records().size()); ++i) out += f.LineText(i) + "\n";
  s.ui.print(out.empty() ? f.file().string() + " holds no players." : out);
}

void AddDatabaseOptions(CLI::App* cmd, DatabaseArgs& a) {
  cmd->add_flag("--list", a.list, "list the records: number, name, position, age, Overall");
  cmd->add_option("--show", a.show, "show the fields of this record (from 1)");
  cmd->add_flag("--add", a.add, "append a blank record");
  cmd->add_option("--set", a.set,
                  "RECORD:FIELD=VALUE; fields Name, Pos (C LW RW D G), Number, Hand (L or R), Age, Height, Weight, "
                  "Birthplace, Contract, Salary, and the ratings Int .. Ldr");
  cmd->add_option("--delete", a.del, "delete this record (asks first); the others are kept as they are");
  cmd->add_flag("--clear", a.clear, "remove every record (asks first)");
  cmd->add_flag("--merge", a.merge, "merge into the league's players by name; leftovers become free agents");
  cmd->add_flag("--output", a.output, "write the Players.html page");
  cmd->footer("Edits run in the order add, set, delete, clear, merge, output; listings show the result.");
}

void RegisterPlayerDatabase(CLI::App& app, Session& s) {
  auto a = std::make_shared<DatabaseArgs>();
  CLI::App* cmd = AddCommand(app, s, "player-database", "Browse and edit a player database (.drs), merge it, print it",
                             true, [&s, a] { RunPlayerDatabase(s, *a); });
  cmd->add_option("DRS", a->drs, "the database file; the league's own when not given");
  AddDatabaseOptions(cmd, *a);

  auto b = std::make_shared<DatabaseArgs>();
  cmd = AddCommand(app, s, "edit-players", "Browse and edit the league's own player database", true,
                   [&s, b] { RunPlayerDatabase(s, *b); });
  AddDatabaseOptions(cmd, *b);

  auto drs = std::make_shared<std::string>();
  cmd = AddCommand(app, s, "update-player-stats",
                   "Replace the ratings and vitals of the league's players, prospects and free agents by name from a "
                   "player database (asks first)",
                   true, [&s, drs] {
                     if (!UpdateStats(s.state, fs::path(*drs))) throw Refused("not updated");
                   });
  cmd->add_option("DRS", *drs, "the player database to take the ratings from")->required();
}

}  // namespace

void RegisterPlayerCommands(CLI::App& app, Session& s) {
  RegisterViewProspects(app, s);
  RegisterPlayerDatabase(app, s);
}

}  // namespace kvl
