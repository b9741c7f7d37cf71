#include "season/schedule_form.h"

#include "league/league_files.h"
#include "season/reset_league.h"
#include "season/schedule_alignment.h"
#include "season/schedule_allot.h"
#include "season/schedule_allot_log.h"
#include "season/schedule_earlier.h"
#include "season/schedule_file.h"
#include "season/schedule_place.h"
#include "ui/ui.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Make Schedule";
constexpr const char* kErrorTitle = "Make Schedule Error";

const char* const kAllotFailed[] = {
    "Attempt to allot a set of games failed. ",
    "This usually occurs when you have odd-numbered matchups, or asymmetric league alignments.",
    "Please try a different set of schedule parameters and/or more symmetric league alignment."};

std::string Join(const char* const (&parts)[3], const std::string& sep) {
  return std::string(parts[0]) + sep + parts[1] + sep + parts[2];
}

}  // namespace

ScheduleForm::ScheduleForm(LeagueState& s) : s_(s), p_(DefaultScheduleParams(s.numTeams())) {
  SuggestGamesPerTeam();
}

bool ScheduleForm::SuggestGamesPerTeam() {
  std::optional<int> gp = SuggestedGamesPerTeam(s_, p_.vsDiv, p_.vsConf, p_.vsLg);
  aligned_ = gp.has_value();
  if (!gp) {
    s_.ui.tell("Assign all teams to divisions first", kTitle);
    return false;
  }
  suggested_ = p_.GPTeam = *gp;
  return true;
}

ParamRange ScheduleForm::range(ScheduleParam which) const { return RangeOf(which, s_.numTeams(), suggested_); }

void ScheduleForm::setParam(ScheduleParam which, int value) {
  ValueOf(p_, which) = value;
  if (which == ScheduleParam::vsDiv || which == ScheduleParam::vsConf || which == ScheduleParam::vsLg)
    SuggestGamesPerTeam();
}

void ScheduleForm::chkExhibition(bool ticked) {
  if ((s_.league.Exhibition != 0) != ticked) s_.Dirty = true;
  s_.league.Exhibition = ToBool16(ticked);
}

void ScheduleForm::progress(const std::string& label, long value) {
  s_.ui.progress("Making Schedule", label, value, progressMax_);
}

// A press that fails leaves the league in memory as it was; the swap schedule
// file may already be gone or half written, as it always was.
ScheduleOutcome ScheduleForm::fail(ScheduleOutcome why) {
  s_.ui.progressDone();
  s_.league = before_;
  return why;
}

ScheduleForm::Prepared ScheduleForm::prepare(const std::string& allotFailureText) {
  if (!CheckAlignmentBalance(s_)) {
    s_.ui.tell("Your league is currently unbalanced. The variance of teams per conference or division should not be "
               "larger than one. You can correct this by using the League|Align League option and adding or "
               "removing one team.",
               kTitle);
    return {0, ScheduleOutcome::Refused};
  }
  if (s_.league.ScheduleMade &&
      s_.ui.ask("This will reset the current league. All schedule information and accumulated stats will be lost. "
                "Continue?",
                kTitle, Buttons::YesNo) != Answer::Yes)
    return {0, ScheduleOutcome::Refused};
  before_ = s_.league;
  double totalGames = s_.numTeams() / 2.0 * p_.GPTeam;
  s_.league.LeagueGames = CInt(totalGames);
  progressMax_ = static_cast<long>(2 * totalGames);
  long bar = 0;
  progress("Alloting Games", bar);
  s_.league.GamesPlayed = 0;
  log_.emplace(s_.AppPath, s_.clock.now());
  if (!AllotGames(s_, p_, m_, *log_, [&](long step) { progress("Alloting Games", bar += step); })) {
    fail(ScheduleOutcome::AllotFailed);
    s_.ui.tell(allotFailureText, "Game Allotment Failed");
    return {0, ScheduleOutcome::AllotFailed};
  }
  return {totalGames, std::nullopt};
}

// The end of a press that made a schedule.
void ScheduleForm::finish() {
  ResetLeague(s_);
  s_.league.ScheduleMade = kTrue;
  s_.league.NextGameMark = -1;  // 65535 as the field is read back
  s_.league.GamesPlayed = 0;
  s_.Playoff.PlayoffRound = 0;  // the stage counter
  s_.Dirty = true;
  s_.ui.progressDone();
}

ScheduleOutcome ScheduleForm::cmdNewSchedule() {
  Prepared prep = prepare(Join(kAllotFailed, "\n"));
  if (prep.stop) return *prep.stop;
  double totalGames = prep.totalGames;
  RemoveIfExists(s_.swap(swp::Schedule));
  RetireOldSchedule(s_);
  std::optional<RecordFile> file(std::in_place, s_.swap(swp::Schedule), ScheduleRecord::kSize);
  GameDayMaker maker(m_, p_, s_.numTeams(), s_.rnd, s_.league.GamesPlayed,
                     [&file](int number, const ScheduleRecord& r) { file->putRecord(static_cast<std::size_t>(number), r); });
  s_.rnd.Randomize();
  maker.Start();
  progress("Creating Schedule", static_cast<long>(totalGames));
  while (s_.league.GamesPlayed != totalGames) {
    int games = maker.MakeGameDay();
    std::string at = NumText(s_.league.GamesPlayed);
    if (games == 0 || games == -2) {
      file.reset();
      fail(ScheduleOutcome::PlacementFailed);
      s_.ui.tell(games == 0 ? "Scheduler is unable to place game " + at + " in a game day without conflict.\n" +
                                  "You must change your schedule parameters and try to make a schedule again."
                            : "A critical error -2 placing games has occurred at " + at + "!\n" +
                                  "Your league alignment is not compatible with these schedule paramters.\n" +
                                  "You can try a different set of schedule parameters, but with this alignment\n" +
                                  "it may be impossible to make a schedule.",
                 kErrorTitle);
      return ScheduleOutcome::PlacementFailed;
    }
    progress("Creating Schedule", static_cast<long>(s_.league.GamesPlayed + totalGames));
  }
  if (s_.league.GamesPlayed > totalGames) {
    fail(ScheduleOutcome::PlacementFailed);
    s_.ui.tell("The scheduler has placed more games than the number of total calculated leaguegames.\n"
               "The League will not be reset but your current schedule will be reset if you save the league files.",
               "New Schedule Error");
    return ScheduleOutcome::PlacementFailed;
  }
  file.reset();
  finish();
  s_.ui.tell("Schedule is complete", kTitle);
  return ScheduleOutcome::Made;
}

}  // namespace kvl

namespace kvl {

ScheduleOutcome ScheduleForm::cmdSchedule() {
  Prepared prep = prepare(Join(kAllotFailed, ""));
  if (prep.stop) return *prep.stop;
  RemoveIfExists(s_.swap(swp::Schedule));
  std::optional<RecordFile> file(std::in_place, s_.swap(swp::Schedule), ScheduleRecord::kSize);
  EarlierScheduleMaker maker(s_, p_, m_, *log_, prep.totalGames, [&file](int number, const ScheduleRecord& r) {
    file->putRecord(static_cast<std::size_t>(number), r);
  });
  s_.rnd.Randomize();
  bool made = maker.run([&](int placed) { progress("Creating Schedule", static_cast<long>(placed + prep.totalGames)); });
  file.reset();
  if (!made) {
    fail(ScheduleOutcome::PlacementFailed);
    s_.ui.tell("Attempt Failed, Try Again", kTitle);
    return ScheduleOutcome::PlacementFailed;
  }
  finish();
  return ScheduleOutcome::Made;
}

bool MakeSuggestedSchedule(LeagueState& s) {
  constexpr int kPresses = 10;
  ScheduleForm form(s);
  for (int press = 0; press < kPresses; ++press)
    if (form.cmdNewSchedule() == ScheduleOutcome::Made) return true;
  return false;
}

}  // namespace kvl
