#pragma once
// The console's own commands: load, save, save as, the league name, exit.
#include <optional>
#include <string>

#include "league/league_state.h"

namespace kvl {

class MainConsole {
 public:
  explicit MainConsole(LeagueState& s) : s_(s) {}

  // Load: offers to save unsaved work, then asks for the league file unless
  // `chosen` already names it.
  void LoadLeague(std::optional<fs::path> chosen = std::nullopt);
  // Save: SaveLeagueAs for an unnamed league, else SaveLg; tells the path.
  void SaveLeague();
  bool SaveAs(std::optional<fs::path> chosen = std::nullopt);
  // Clicking the league name: prompts for a new one unless `name` is given.
  void RenameLeague(std::optional<std::string> name = std::nullopt);
  // Closing the console: offers to keep unsaved changes.
  void Exit();

 private:
  // SaveLg, or SaveLeagueAs for a league that has no name yet; tells nothing.
  void SaveOrSaveAs();
  LeagueState& s_;
};

}  // namespace kvl
