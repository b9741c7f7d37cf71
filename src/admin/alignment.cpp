#include "admin/alignment.h"

#include <fmt/format.h>

#include <algorithm>

#include "admin/alignment_renumber.h"
#include "admin/league_creation.h"
#include "league/league_files.h"
#include "league/value_check.h"
#include "transactions/priority.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Align League";
constexpr const char* kDisrupt = "This will disrupt current schedule! Continue?";

}  // namespace

AlignLeague::AlignLeague(LeagueState& s) : s_(s) {
  if (auto problems = AlignmentProblems(s_); !problems.empty()) {
    s_.ui.tell("Unexpected error in AlignLeague.\n" +
                   ProblemText(FindLeagueFile(s_.LeaguePath, ".lge").string(), "the alignment names teams the league lacks",
                               problems),
               "Unexpected error");
    throw Refused("broken alignment lists");
  }
}

void AlignLeague::Refuse(const std::string& text) const {
  s_.ui.tell(text, kTitle);
  throw Refused(text);
}

Division& AlignLeague::division(int conf, int div) {
  return s_.league.Conf[static_cast<std::size_t>(conf)].Div[static_cast<std::size_t>(div)];
}

void AlignLeague::CheckConference(int conf) const {
  if (conf < 0 || conf > 1) Refuse(fmt::format("There is no conference {}: a league has conferences 1 and 2.", conf + 1));
}

void AlignLeague::CheckDivision(int conf, int div) const {
  CheckConference(conf);
  const Conference& c = s_.league.Conf[static_cast<std::size_t>(conf)];
  if (div < 0 || div >= c.NumDivs)
    Refuse(fmt::format("{} has {} divisions: there is no division {}.", c.Name.str(), c.NumDivs, div + 1));
}

bool AlignLeague::ScheduleDisruptionAccepted(bool onlyWithSchedule) {
  if (onlyWithSchedule && !s_.league.ScheduleMade) return true;
  return s_.ui.ask(kDisrupt, kTitle, Buttons::YesNo) == Answer::Yes;
}

bool AlignLeague::cmdAdd(int conf, int div, std::optional<std::string> name) {
  CheckDivision(conf, div);
  if (s_.numTeams() >= kMaxTeams) Refuse(fmt::format("A league holds at most {} teams.", kMaxTeams));
  Division& d = division(conf, div);
  if (d.NumTeams >= kMaxDivisionTeams)
    Refuse(fmt::format("{} already holds {} teams, the most a division can.", d.Name.str(), kMaxDivisionTeams));
  if (!name) name = s_.ui.prompt("New Team Name", "Add Team", "");
  if (!name || name->empty()) return false;
  // A league loaded without a priority list gets a whole one, not a list with
  // only the new team in it.
  bool noPriority = !fs::exists(s_.swap(swp::Priority));
  if (name->size() > Team{}.Name.size())
    s_.ui.tell(fmt::format("\"{}\" is longer than a team's name, {} characters: the team is named \"{}\".", *name,
                           Team{}.Name.size(), name->substr(0, Team{}.Name.size())),
               "Add Team");
  AddTeam(s_, name->substr(0, Team{}.Name.size()), conf, div);
  if (noPriority) MakePriority(s_);
  return true;
}

bool AlignLeague::cmdDelete(int team) {
  if (team < 0 || team >= s_.numTeams()) Refuse(fmt::format("There is no team {} in this league.", team));
  if (!ScheduleDisruptionAccepted(true)) return false;
  RemoveTeam(s_, team);
  return true;
}

bool AlignLeague::cmdRenameConf(int conf, std::optional<std::string> name) {
  CheckConference(conf);
  Conference& c = s_.league.Conf[static_cast<std::size_t>(conf)];
  if (!name) name = s_.ui.prompt("New Conference Name?", "Rename Conference", c.Name.str());
  if (!name || name->empty()) return false;
  c.Name.set(*name);
  s_.Dirty = true;
  return true;
}

bool AlignLeague::cmdRenameDiv(int conf, int div, std::optional<std::string> name) {
  CheckDivision(conf, div);
  Division& d = division(conf, div);
  if (!name) name = s_.ui.prompt("New Division Name?", "Rename Division", d.Name.str());
  if (!name || name->empty()) return false;
  d.Name.set(*name);
  s_.Dirty = true;
  return true;
}

bool AlignLeague::MoveTeam(int team, int conf, int div) {
  if (team < 0 || team >= s_.numTeams()) Refuse(fmt::format("There is no team {} in this league.", team));
  CheckDivision(conf, div);
  Team& t = s_.team(team);
  if (t.Conf == conf && t.Div == div) return false;
  Division& to = division(conf, div);
  if (to.NumTeams >= kMaxDivisionTeams)
    Refuse(fmt::format("{} already holds {} teams, the most a division can.", to.Name.str(), kMaxDivisionTeams));
  if (!ScheduleDisruptionAccepted(false)) return false;
  for (auto& c : s_.league.Conf)
    for (auto& d : c.Div) {
      auto end = d.Team.begin() + d.NumTeams;
      auto kept = std::remove(d.Team.begin(), end, static_cast<u8>(team));
      std::fill(kept, d.Team.end(), u8{0});
      d.NumTeams = static_cast<u8>(kept - d.Team.begin());
    }
  to.Team[to.NumTeams++] = static_cast<u8>(team);
  t.Conf = static_cast<u8>(conf);
  t.Div = static_cast<u8>(div);
  s_.Dirty = true;
  return true;
}

void AlignLeague::ChangeDivisions(int conf, int count) {
  CheckConference(conf);
  if (count < 1 || count > kMaxDivisions)
    Refuse(fmt::format("A conference has 1 to {} divisions, not {}.", kMaxDivisions, count));
  Conference& c = s_.league.Conf[static_cast<std::size_t>(conf)];
  std::string stranded;
  for (int d = count; d < kMaxDivisions; ++d) {
    const Division& div = c.Div[static_cast<std::size_t>(d)];
    for (int i = 0; i < div.NumTeams; ++i)
      stranded += s_.team(div.Team[static_cast<std::size_t>(i)]).Name.str() + "->" + div.Name.str() + "\n";
  }
  if (!stranded.empty()) {
    std::string text = "You cannot reduce the number of divisions per conference until\n"
                       "the following teams have been pulled out of thie respective divisions:\n" + stranded;
    s_.ui.tell(text, "Unable to reduce division count");
    throw Refused("teams stand in the divisions to remove");
  }
  for (int d = c.NumDivs; d < count; ++d) {
    Division& div = c.Div[static_cast<std::size_t>(d)];
    div = Division{};
    div.Name.set("NewDiv");
  }
  c.NumDivs = static_cast<u8>(count);
  s_.Dirty = true;
}

void AlignLeague::Expansion(int team, bool mark) {
  if (team < 0 || team >= s_.numTeams()) Refuse(fmt::format("There is no team {} in this league.", team));
  s_.team(team).Expansion = mark ? 1 : 0;
  s_.Dirty = true;
}

std::string AlignLeague::Listing() const {
  std::string out;
  std::vector<bool> placed(static_cast<std::size_t>(s_.numTeams()), false);
  for (int c = 0; c < 2; ++c) {
    const Conference& conf = s_.league.Conf[static_cast<std::size_t>(c)];
    out += fmt::format("Conference {}: {} ({} divisions)\n", c + 1, conf.Name.str(), conf.NumDivs);
    for (int d = 0; d < kMaxDivisions; ++d) {
      const Division& div = conf.Div[static_cast<std::size_t>(d)];
      if (d >= conf.NumDivs && div.NumTeams == 0) continue;
      out += fmt::format("  Division {}: {} ({} teams)\n", d + 1, div.Name.str(), div.NumTeams);
      for (int i = 0; i < div.NumTeams; ++i) {
        int t = div.Team[static_cast<std::size_t>(i)];
        placed[static_cast<std::size_t>(t)] = true;
        out += fmt::format("    {:>2}  {}{}\n", t, s_.team(t).Name.str(), s_.team(t).Expansion ? "  (expansion)" : "");
      }
    }
  }
  for (int t = 0; t < s_.numTeams(); ++t)
    if (!placed[static_cast<std::size_t>(t)]) out += fmt::format("Unassigned: {:>2}  {}\n", t, s_.team(t).Name.str());
  return out;
}

}  // namespace kvl
