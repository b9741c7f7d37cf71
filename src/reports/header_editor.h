#pragma once
// The editor of a page's header or footer file: the commissioner's own HTML,
// put at the head or foot of the page as it stands.
#include <string>

#include "league/league_state.h"

namespace kvl {

// Header and footer numbers in use: one per page group, 0 for the daily page
// and box scores, and 20, the box scores' and the Waivers page's footer.
bool IsPageFileNumber(int n);

// The UserInput form as the Output tab's cmdHeader(i) and cmdFooter(i) open it.
class HeaderEditor {
 public:
  // The number must pass IsPageFileNumber.
  HeaderEditor(const LeagueState& s, bool footer, int n);

  // The form's caption: the file's full path.
  fs::path caption;
  static constexpr const char* kPrompt = "Modify HTML below:";
  // The file's lines joined by CR LF; empty when there is no file yet.
  std::string Text1;

  // Writes the text over the file, each line ended by CR LF.
  void cmdSave();
};

}  // namespace kvl
