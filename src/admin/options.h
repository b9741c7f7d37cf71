#pragma once
// The Options form: the league's settings on six tabs. The controls are filled
// when the form opens and written back to the header only by cmdApply.
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// What the controls of the form hold between opening and applying.
struct OptionControls {
  std::string txtYear, txtDeadline, txtUnresAge, txt2Way, txtAgeExempt, txtMinGP, txtDraftRounds;
  // Root, league files, HTML output, box scores, command files, lines directory.
  std::array<std::string, 6> Text1;
  std::array<bool, 17> Check{};  // Check(1..16), one per page group; element 0 unused
  bool checkAuto = false, Check3 = false, chkLottery = false;
  // Waivers, money, injuries, farm, suspensions, streaks, experience, coach, farm streaks.
  std::array<bool, 9> chkSim{};
  // Shots, goals, penalties, finances, injuries; 1 to 9.
  std::array<int, 5> Slider{};
  int Option4 = 0;  // playoff size: top 16, 8, 4
  int optPointSystem = 0;
  int Option3 = -1;  // playoff tree by division (0) or conference (1), -1 none chosen; not kept
};

enum class OptionKind { Text, Tick, Choice };

// One option as the command line names it: the global it is stored in.
struct OptionDef {
  std::string name;  // "ShotsLevel"
  std::string tab;
  std::string caption;
  OptionKind kind = OptionKind::Text;
  int low = 0, high = 0;  // a choice's or a number's range; 0 to 0 for a text
  std::function<std::string&(OptionControls&)> text;
  std::function<bool&(OptionControls&)> tick;
  std::function<int&(OptionControls&)> choice;
};

// Every option of the form, tab by tab.
const std::vector<OptionDef>& OptionDefs();
// The folders stored in the header hold this many characters.
constexpr std::size_t kStoredPathLength = 20;

// The highest number of draft rounds `rounds` can stand at with `teams` teams.
int DraftRoundsFor(double rounds, int teams);

class Options {
 public:
  // Loads the controls from the header and LinesDirectory.txt (made when missing).
  explicit Options(LeagueState& s);

  const OptionControls& controls() const { return c_; }
  bool dirty() const { return dirty_; }

  // Changes a control as the user would: a value typed into a text box, "on"
  // or "off" for a tick, a number for a slider or button group. Unknown names
  // and values a control cannot take are told and refused.
  void set(const std::string& name, const std::string& value);
  // Option3: choosing the tree by division (0) or by conference (1).
  void chooseTree(int which);
  // Leaving the draft rounds box: more than 255 picks a draft is told and cut.
  void txtDraftRounds_LostFocus();
  void cmdApply();
  // Closing: pending changes are offered for keeping, and applied on yes.
  void cmdClose();
  // Every option, tab by tab, with the value its control shows.
  std::string Listing() const;

 private:
  void Load();
  void ApplyNumbers();
  void ApplySimulator();
  [[noreturn]] void Refuse(const std::string& text) const;
  void checkText(const OptionDef& d, const std::string& value) const;

  LeagueState& s_;
  OptionControls c_;
  bool dirty_ = false;
};

}  // namespace kvl
