// make-schedule and review-schedule: the Schedule form and Review Schedule.
#include <fmt/format.h>

#include <map>
#include <memory>

#include "console/menu.h"
#include "season/schedule_form.h"
#include "season/schedule_review.h"
#include "session.h"
#include "util/error.h"

namespace kvl {

namespace {

struct MakeOptions {
  std::map<ScheduleParam, int> values;  // only those given
  std::optional<bool> exhibition;
  int tries = 1;
};

// The minimums first: each change of one reruns the suggestion.
constexpr ScheduleParam kOrder[] = {ScheduleParam::vsDiv,    ScheduleParam::vsConf,     ScheduleParam::vsLg,
                                    ScheduleParam::GPTeam,   ScheduleParam::GPDay,      ScheduleParam::Variance,
                                    ScheduleParam::VarTotalGP, ScheduleParam::VarHomeGP};

void SetChecked(LeagueState& s, ScheduleForm& form, ScheduleParam which, int value) {
  ParamRange r = form.range(which);
  if (!r.contains(value)) {
    s.ui.tell(fmt::format("{} must be from {} to {} in a league of {} teams.", CaptionOf(which), r.lo, r.hi,
                          s.numTeams()),
              "Make Schedule");
    throw Refused("out of range");
  }
  form.setParam(which, value);
}

void MakeSchedule(LeagueState& s, const MakeOptions& o) {
  if (!ScheduleFormMayOpen(s)) throw Refused("make schedule");
  ScheduleForm form(s);
  if (!form.aligned()) throw Refused("unaligned");
  for (ScheduleParam which : kOrder) {
    if (which == ScheduleParam::GPTeam)
      s.ui.print(fmt::format("Suggested games per team: {}", form.suggested()));
    if (auto it = o.values.find(which); it != o.values.end()) SetChecked(s, form, which, it->second);
    if (!form.aligned()) throw Refused("unaligned");
  }
  if (o.exhibition) form.chkExhibition(*o.exhibition);
  for (int press = 1; press <= o.tries; ++press) {
    ScheduleOutcome out = form.cmdNewSchedule();
    if (out == ScheduleOutcome::Made) {
      s.ui.print(fmt::format("{} games scheduled, {} per team (press {} of at most {}).", s.league.LeagueGames,
                             form.params().GPTeam, press, o.tries));
      return;
    }
    // Only placement draws anew; anything else fails the same way again.
    if (out != ScheduleOutcome::PlacementFailed) break;
  }
  throw Refused("no schedule");
}

struct ParamOption {
  const char* flag;
  ScheduleParam which;
  const char* help;
};

constexpr ParamOption kParamOptions[] = {
    {"--div", ScheduleParam::vsDiv, "Intra-division: games between division rivals (2-16, default 6)"},
    {"--conf", ScheduleParam::vsConf, "Inter-division: games with the rest of the conference (0-10, default 2)"},
    {"--lg", ScheduleParam::vsLg, "Inter-conference: games with the other conference (0-10, default 2)"},
    {"--gp", ScheduleParam::GPTeam,
     "Total GP/Team: games per team, between the suggested number and 110 (the suggestion may be the higher); "
     "default the suggestion"},
    {"--gp-day", ScheduleParam::GPDay, "GP/Day Target: games per game day (default a fifth of the teams)"},
    {"--variance", ScheduleParam::Variance,
     "GP/Day Variance: spread of games per day around the target (default about a quarter of the teams)"},
    {"--var-total", ScheduleParam::VarTotalGP,
     "In-season spread of games between teams, used by the earlier maker (2-10, default 5)"},
    {"--var-home", ScheduleParam::VarHomeGP,
     "In-season spread of home games between teams, used by the earlier maker (2-10, default 4)"},
};

void RegisterMakeSchedule(CLI::App& app, Session& s) {
  auto o = std::make_shared<MakeOptions>();
  CLI::App* cmd = AddCommand(app, s, "make-schedule",
                             "Make the season's schedule (resets the league's statistics); options default to the "
                             "Schedule form's",
                             true, [&s, o] { MakeSchedule(s.state, *o); });
  for (const ParamOption& p : kParamOptions)
    cmd->add_option_function<int>(p.flag, [o, which = p.which](int v) { o->values[which] = v; }, p.help);
  cmd->add_flag_function(
      "--exhibition,!--no-exhibition", [o](std::int64_t n) { o->exhibition = n > 0; },
      "Exhibition Schedule: only exhibition games, no playoffs (default: the league's flag unchanged)");
  cmd->add_option("--tries", o->tries, "press again up to this many times while placement fails (default 1)")
      ->check(CLI::Range(1, 10000));
}

void ReviewSchedule(LeagueState& s, std::optional<int> day) {
  std::vector<MenuEntry> menu = ComputeMenu(s.league, {true, s.Dirty});
  if (!FindEntry(menu, "RevSched")->enabled) {
    s.ui.tell("Review Schedule is not available while the playoffs run.", "Review Schedule");
    throw Refused("review schedule");
  }
  if (!RevSched(s, day)) throw Refused("no such day");
}

void RegisterReviewSchedule(CLI::App& app, Session& s) {
  auto day = std::make_shared<std::optional<int>>();
  AddCommand(app, s, "review-schedule", "Show the schedule by game days as they will be played, with scores", true,
             [&s, day] { ReviewSchedule(s.state, *day); })
      ->add_option_function<int>("--day", [day](int d) { *day = d; }, "only this game day (from 1)");
}

}  // namespace

void RegisterScheduleCommands(CLI::App& app, Session& s) {
  RegisterMakeSchedule(app, s);
  RegisterReviewSchedule(app, s);
}

}  // namespace kvl
