#include "console/main_console.h"

#include "league/league_files.h"
#include "ui/ui.h"
#include "util/error.h"

namespace kvl {

void MainConsole::LoadLeague(std::optional<fs::path> chosen) {
  if (s_.Dirty) {
    Answer a = s_.ui.ask("Save Current League?", "Save League", Buttons::YesNoCancel);
    if (a == Answer::Cancel) return;
    if (a == Answer::Yes) SaveOrSaveAs();
  }
  if (!chosen) chosen = s_.ui.chooseFile("Load League", "All Files|*.*|KVL League Files|*.lge", s_.AppPath, false);
  if (!chosen) return;
  std::string path = fs::absolute(*chosen).lexically_normal().string();
  LoadLg(s_, StripLeagueExtension(path));
}

void MainConsole::SaveLeague() {
  if (!s_.hasLeague()) throw Refused("no league is open");
  if (s_.LeaguePath.empty()) {
    if (!SaveLeagueAs(s_, "")) return;
  } else {
    SaveLg(s_);
  }
  s_.ui.tell(s_.LeaguePath + " saved", "Save League");
}

bool MainConsole::SaveAs(std::optional<fs::path> chosen) {
  if (!s_.hasLeague()) throw Refused("no league is open");
  return SaveLeagueAs(s_, "", chosen);
}

void MainConsole::RenameLeague(std::optional<std::string> name) {
  if (!name) name = s_.ui.prompt("New League Name", "Change League Name", s_.league.LeagueName.str());
  if (!name || name->empty()) return;
  s_.league.LeagueName.set(name->substr(0, 25));
  s_.Dirty = true;
}

void MainConsole::Exit() {
  if (!s_.Dirty) return;
  if (s_.ui.ask("Save League Changes?", "Keep Changes", Buttons::YesNo) == Answer::Yes) SaveOrSaveAs();
}

void MainConsole::SaveOrSaveAs() {
  if (s_.LeaguePath.empty()) SaveLeagueAs(s_, "");
  else SaveLg(s_);
}

}  // namespace kvl
