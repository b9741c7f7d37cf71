#include "admin/options.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

#include "admin/options_lines_directory.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Options";

constexpr std::array<const char*, 3> kPlayoffSizes{"Top 16 Teams", "Top 8 Teams", "Top 4 Teams"};
constexpr std::array<const char*, 4> kPointSystems{"Classic:  2-0-1-2-0", "Modern: 2-0-1-2-1", "American:  2-0-0-2-0",
                                                   "Swedish:   3-0-1-2-1"};
constexpr std::array<const char*, 2> kTrees{"Playoff Tree Determined by Division",
                                            "Playoff Tree Determined by Conference"};

std::string Lower(std::string s) {
  for (auto& ch : s) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
  return s;
}

// The Val of a box as the whole number stored, or `old` when it falls outside the field.
template <class T>
T Bounded(const std::string& text, T old) {
  return static_cast<T>(WholeIn(text, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()).value_or(old));
}

// Digits with an optional sign, and nothing else.
std::optional<long> StrictWhole(const std::string& value) {
  std::size_t i = !value.empty() && value[0] == '-' ? 1 : 0;
  if (i == value.size() || value.size() > 9) return std::nullopt;
  for (std::size_t k = i; k < value.size(); ++k)
    if (!std::isdigit(static_cast<unsigned char>(value[k]))) return std::nullopt;
  return std::stol(value);
}

std::optional<bool> ParseTick(const std::string& value) {
  std::string v = Lower(value);
  if (v == "on" || v == "yes" || v == "true" || v == "1" || v == "-1") return true;
  if (v == "off" || v == "no" || v == "false" || v == "0") return false;
  return std::nullopt;
}

std::array<FixedText<20>*, 5> Paths(League& lg) {
  return {&lg.RootDir, &lg.LeagueDir, &lg.OutputDir, &lg.BoxscoreDir, &lg.CommandDir};
}

// chkSim(0..7); the ninth box, farm streaks, is a byte of its own.
std::array<Bool16*, 8> SimFlags(League& lg) {
  return {&lg.OptWaivers, &lg.OptMoney,   &lg.OptInjuries, &lg.OptFarm,
          &lg.OptSuspensions, &lg.OptStreaks, &lg.OptExpLdr, &lg.OptCoach};
}

std::array<u8*, 5> Sliders(League& lg) {
  return {&lg.ShotsLevel(), &lg.GoalsLevel(), &lg.PenaltiesLevel(), &lg.FinancesLevel(), &lg.InjuriesLevel()};
}

const OptionDef* FindDef(const std::string& name) {
  for (const auto& d : OptionDefs())
    if (Lower(d.name) == Lower(name)) return &d;
  return nullptr;
}

std::string ChoiceText(const OptionDef& d, int v) {
  auto label = [v](const auto& labels) { return v >= 0 && v < int(labels.size()) ? fmt::format("{} ({})", v, labels[std::size_t(v)]) : NumText(v); };
  if (d.name == "PlayoffSize") return label(kPlayoffSizes);
  if (d.name == "PointSystem") return label(kPointSystems);
  if (d.name == "PlayoffTree") return v < 0 ? "not chosen" : label(kTrees);
  return NumText(v);
}

}  // namespace

int DraftRoundsFor(double rounds, int teams) {
  rounds = std::nearbyint(rounds);
  if (rounds < 1) rounds = 1;
  if (rounds * teams > 255) rounds = Int(255 / (teams + 0.001));
  if (rounds > 9) rounds = 9;
  return static_cast<int>(rounds);
}

Options::Options(LeagueState& s) : s_(s) { Load(); }

void Options::Load() {
  League& lg = s_.league;
  c_.txtYear = NumText(lg.CurrentYear);
  c_.txtDeadline = NumText(lg.TradeDeadline);
  c_.txtUnresAge = NumText(lg.UnresAge);
  c_.txt2Way = NumText(lg.TwoWayAfter);
  c_.txtAgeExempt = NumText(lg.AgeExempt);
  c_.txtMinGP = NumText(lg.MinGP);
  c_.txtDraftRounds = NumText(lg.DraftRounds);
  for (std::size_t i = 0; i < 5; ++i) c_.Text1[i] = Paths(lg)[i]->str();
  c_.Text1[5] = ReadLinesDirectory(s_.AppPath);
  for (std::size_t i = 1; i < c_.Check.size(); ++i) c_.Check[i] = lg.CheckFlags[i] != 0;
  c_.checkAuto = lg.OptAutoOutput != 0;
  c_.Check3 = lg.SeedDivLeaders != 0;
  c_.chkLottery = lg.OptLottery != 0;
  for (std::size_t i = 0; i < 8; ++i) c_.chkSim[i] = *SimFlags(lg)[i] != 0;
  c_.chkSim[8] = lg.OptFarmStreaks != 0;
  for (std::size_t i = 0; i < 5; ++i) c_.Slider[i] = std::clamp<int>(*Sliders(lg)[i], 1, 9);
  c_.Option4 = std::min<int>(lg.PlayoffSize, 2);
  c_.optPointSystem = std::min<int>(lg.PointSystem, 3);
  dirty_ = false;
}

void Options::Refuse(const std::string& text) const {
  s_.ui.tell(text, kTitle);
  throw Refused(text);
}

void Options::set(const std::string& name, const std::string& value) {
  const OptionDef* d = FindDef(name);
  if (!d) Refuse(fmt::format("There is no option \"{}\"; the command options lists them all.", name));
  if (d->kind == OptionKind::Text) {
    checkText(*d, value);
    d->text(c_) = value;
    dirty_ = true;
    if (d->name == "DraftRounds") txtDraftRounds_LostFocus();
    return;
  }
  if (d->kind == OptionKind::Tick) {
    auto on = ParseTick(value);
    if (!on) Refuse(fmt::format("{} is on or off, not \"{}\".", d->name, value));
    d->tick(c_) = *on;
    dirty_ = true;
    return;
  }
  std::optional<long> v = StrictWhole(value);
  if (!v || *v < d->low || *v > d->high) {
    std::string choices;
    for (int i = d->low; i <= d->high; ++i) choices += (i > d->low ? ", " : "") + ChoiceText(*d, i);
    const bool named = ChoiceText(*d, d->low) != NumText(d->low);
    Refuse(named ? fmt::format("{} takes one of {}, not \"{}\".", d->name, choices, value)
                 : fmt::format("{} takes a whole number from {} to {}, not \"{}\".", d->name, d->low, d->high, value));
  }
  if (d->name == "PlayoffTree") {
    chooseTree(static_cast<int>(*v));
    s_.ui.tell(fmt::format("{} selects {}.", kTrees[std::size_t(*v)], kPlayoffSizes[std::size_t(c_.Option4)]), kTitle);
    return;
  }
  d->choice(c_) = static_cast<int>(*v);
  dirty_ = true;
}

// A number box takes a whole number in its field's range, and a stored folder
// its 20 characters: anything else is refused rather than stored as 0 or cut.
void Options::checkText(const OptionDef& d, const std::string& value) const {
  if (d.high > 0) {
    std::optional<long> v = StrictWhole(value);
    if (!v || *v < d.low || *v > d.high)
      Refuse(fmt::format("{} takes a whole number from {} to {}, not \"{}\".", d.name, d.low, d.high, value));
  } else if (d.tab == "Files" && d.name != "LinesDirectory" && value.size() > kStoredPathLength) {
    Refuse(fmt::format("{} holds {} characters, and \"{}\" has {}.", d.name, kStoredPathLength, value, value.size()));
  }
}

void Options::chooseTree(int which) {
  c_.Option3 = which;
  c_.Option4 = which == 0 ? 1 : 2;
  dirty_ = true;
}

void Options::txtDraftRounds_LostFocus() {
  int teams = s_.numTeams();
  if (Val(c_.txtDraftRounds) * teams < 255) return;
  s_.ui.tell("You can only draft a maximum of 255 players\nper draft or maximum 9 draft rounds.", kTitle);
  c_.txtDraftRounds = NumText(std::min(Int(255 / (teams + 0.001)), 9.0));
}

void Options::ApplyNumbers() {
  League& lg = s_.league;
  lg.TradeDeadline = Bounded(c_.txtDeadline, lg.TradeDeadline);
  lg.UnresAge = Bounded(c_.txtUnresAge, lg.UnresAge);
  lg.TwoWayAfter = Bounded(c_.txt2Way, lg.TwoWayAfter);
  lg.MinGP = Bounded(c_.txtMinGP, lg.MinGP);
  lg.AgeExempt = Bounded(c_.txtAgeExempt, lg.AgeExempt);
  lg.CurrentYear = Bounded(c_.txtYear, lg.CurrentYear);
}

void Options::ApplySimulator() {
  League& lg = s_.league;
  for (std::size_t i = 0; i < 8; ++i) *SimFlags(lg)[i] = ToBool16(c_.chkSim[i]);
  lg.OptFarmStreaks = c_.chkSim[8] ? 1 : 0;
  for (std::size_t i = 0; i < 5; ++i) *Sliders(lg)[i] = static_cast<u8>(c_.Slider[i]);
  lg.PointSystem = static_cast<u8>(c_.optPointSystem);
}

namespace {

// With money on a team earns at the gate only with seats and a ticket price;
// a new team has neither.
void TellTeamsWithoutGate(LeagueState& s) {
  std::string names;
  for (int t = 0; t < s.numTeams(); ++t)
    if (s.team(t).Seats == 0 || s.team(t).Ticket == 0) names += (names.empty() ? "" : ", ") + s.team(t).Name.str();
  if (!names.empty())
    s.ui.tell("Money is on, and these teams have no seats or no ticket price, so they earn nothing at the gate: " +
                  names + ". Set them on the team card (Seats, Ticket).",
              "Options");
}

}  // namespace

void Options::cmdApply() {
  League& lg = s_.league;
  const bool moneyWas = lg.OptMoney != 0;
  WriteLinesDirectory(s_.AppPath, c_.Text1[5]);
  lg.SeedDivLeaders = ToBool16(c_.Check3);
  for (std::size_t i = 1; i < c_.Check.size(); ++i) lg.CheckFlags[i] = c_.Check[i] ? 1 : 0;
  lg.OptAutoOutput = ToBool16(c_.checkAuto);
  lg.OptLottery = ToBool16(c_.chkLottery);
  lg.DraftRounds = static_cast<u8>(DraftRoundsFor(Val(c_.txtDraftRounds), s_.numTeams()));
  for (std::size_t i = 0; i < 5; ++i) Paths(lg)[i]->set(c_.Text1[i]);  // cut at 20
  ApplySimulator();
  ApplyNumbers();
  if (!lg.InPlayoffs) lg.PlayoffSize = static_cast<u8>(c_.Option4 == 0 ? 0 : c_.Option4 == 1 ? 1 : 2);
  dirty_ = false;
  s_.Dirty = true;
  if (!moneyWas && lg.OptMoney != 0) TellTeamsWithoutGate(s_);
}

void Options::cmdClose() {
  if (dirty_ && s_.ui.ask("Keep Changes?", "Keep Changes", Buttons::YesNo) == Answer::Yes) cmdApply();
}

std::string Options::Listing() const {
  std::string out, tab;
  OptionControls c = c_;  // the accessors hand out references to a form's controls
  for (const auto& d : OptionDefs()) {
    if (d.tab != tab) out += (tab = d.tab) + "\n";
    std::string value = d.kind == OptionKind::Text ? "\"" + d.text(c) + "\""
                        : d.kind == OptionKind::Tick ? (d.tick(c) ? "on" : "off")
                                                     : ChoiceText(d, d.choice(c));
    out += fmt::format("  {:<16} {:<52} {}\n", d.name, d.caption, value);
  }
  return out;
}

}  // namespace kvl
