#pragma once
// The console's menu: which commands are enabled and how they read, as a pure
// function of the league header.
#include <string>
#include <vector>

#include "league/records.h"

namespace kvl {

struct MenuEntry {
  std::string menu;     // "&League"
  std::string caption;  // "&Make Schedule"
  std::string command;  // cmdSchedule
  std::string cli;      // make-schedule
  bool enabled = false;
  bool visible = true;
};

struct MenuInput {
  bool hasLeague = false;
  bool dirty = false;
};

std::vector<MenuEntry> ComputeMenu(const League& lg, MenuInput in);
// The entry of a command (by its name in the code), or nullptr.
const MenuEntry* FindEntry(const std::vector<MenuEntry>& menu, const std::string& command);
// A caption without its access-key marks: "&Make Schedule" -> "Make Schedule".
std::string PlainCaption(const std::string& caption);

}  // namespace kvl
