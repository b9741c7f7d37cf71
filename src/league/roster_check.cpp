#include "league/roster_check.h"

#include <fmt/format.h>

#include <array>
#include <fstream>

#include "league/league_files.h"
#include "ui/ui.h"
#include "util/dates.h"
#include "util/record_file.h"

namespace kvl {

namespace {

struct Need {
  int count;
  const char* tail;
};
// Per position: centres, left wings, right wings, defence, goalies.
constexpr std::array<Need, 5> kNeeds{{{3, " of the 3 required Centres available"},
                                      {3, " of the 3 required Left Wingers available"},
                                      {3, " of the 3 required Right Wingers available"},
                                      {5, " of 5 required Defencemen available"},
                                      {2, " of 2 required Goaltenders available"}}};
constexpr int kNeedPlayers = 20;

constexpr const char* kHeading = "Games cannot be run with invalid rosters:";

void WriteInvalidRosters(LeagueState& s, const RosterReport& r, bool nameTeams) {
  fs::path file = s.AppPath / "InvalidRosters.txt";
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  double now = s.clock.now();
  out << "Invalid roster configurations were detected in the following league files:\r\n";
  out << s.LeaguePath << ".ros\r\n";
  out << "League Roster Validation performed " << FormatDate(now, "dddd, mmm d yyyy") << " "
      << FormatDate(now, "hh:mm:ss AMPM") << "\r\n";
  for (const auto& block : r.lines) out << block;
  // Before games the message names the teams that cannot play; at load (a
  // new league has no players yet) the file alone has them.
  std::string text;
  if (nameTeams) {
    text = "Invalid roster configurations were detected in the following league files:\r\n" + s.LeaguePath +
           ".ros\r\n";
    for (const auto& block : r.failing) text += block;
  }
  s.ui.progress("Invalid Rosters Detected", kHeading, 0, 0);
  s.ui.tell(text + "Details saved in " + file.string(), kHeading);
  s.ui.progressDone();
}

}  // namespace

std::vector<std::string> RosterShortages(int total, const std::array<int, 5>& byPos) {
  std::vector<std::string> out;
  if (total < kNeedPlayers) out.push_back(fmt::format("- only {} of {} players available", total, kNeedPlayers));
  for (std::size_t pos = 0; pos < kNeeds.size(); ++pos)
    if (byPos[pos] < kNeeds[pos].count) out.push_back(fmt::format("- only {}{}", byPos[pos], kNeeds[pos].tail));
  return out;
}

std::string RosterLine(LeagueState& s, int t, bool& ok) {
  loadteam(s, t, 0);
  int total = 0;
  std::array<int, 5> byPos{};
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (p.empty() || p.Condition <= 90) continue;
    ++total;
    if (p.Pos < 5) ++byPos[p.Pos];
  }
  // The name stands in its padded width, as the fixed field prints.
  std::string block = PadCut(s.team(t).Name.str(), 10);
  std::vector<std::string> shortages = RosterShortages(total, byPos);
  ok = shortages.empty();
  for (const auto& line : shortages) block += line + "\r\n";
  if (ok) block += "- Roster OK!\r\n";
  return block;
}

RosterReport CheckRosters(LeagueState& s) {
  RosterReport r;
  for (int t = 0; t < s.numTeams(); ++t) {
    bool ok = true;
    r.lines.push_back(RosterLine(s, t, ok));
    if (!ok) r.failing.push_back(r.lines.back());
    r.allValid = r.allValid && ok;
  }
  return r;
}

bool RosterCheck(LeagueState& s, bool beforeGames) {
  RosterReport r = CheckRosters(s);
  if (!r.allValid) WriteInvalidRosters(s, r, beforeGames);
  CoachCheck(s);
  return r.allValid;
}

namespace {

// True when a coach of the file bears the team's coach name; repairs the link.
bool Relink(LeagueState& s, Team& team, const std::vector<Coach>& coaches) {
  for (std::size_t i = 1; i < coaches.size(); ++i) {
    if (coaches[i].Name.empty() || !(coaches[i].Name == team.Coach.Name)) continue;
    s.ui.tell(fmt::format("Found a match for {} at record {}\nRelinking to {}.", team.Coach.Name.str(), i,
                          team.Name.str()),
              "Validate Coaches");
    team.CoachRec = static_cast<u8>(i);
    team.Coach.Salary = coaches[i].Salary;
    return true;
  }
  return false;
}

void CheckTeamCoach(LeagueState& s, int t, const std::vector<Coach>& coaches) {
  Team& team = s.team(t);
  std::string teamName = team.Name.str();
  const Coach* held = team.CoachRec < coaches.size() ? &coaches[team.CoachRec] : nullptr;
  bool sameName = held && held->Name == team.Coach.Name;
  // A record that names no team is not another team's coach: the link stands.
  bool otherTeams = held && held->Team != Coach::kNoTeam && held->Team != t + 1;
  if (sameName && !otherTeams) return;
  if (!sameName) {
    s.ui.tell("Team Files say " + teamName + " coach is " + team.Coach.Name.str() + "\n" +
                  fmt::format("However, coach record #{} is held by {}\n", team.CoachRec,
                              held ? held->Name.str() : std::string()) +
                  "Attempting to relink the team to its previous coach by name.",
              "Validate Coaches");
    if (Relink(s, team, coaches)) return;
  }
  s.ui.tell(teamName + " coach link is corrupted.\nRemoving link to between " + teamName + " and " +
                team.Coach.Name.str(),
            "Validate Coaches");
  team.Coach.Name.set("");
  team.Coach.Contract = 0;
  team.Coach.Salary = 0;
  team.CoachRec = 0;
}

}  // namespace

void CoachCheck(LeagueState& s) {
  RecordFile f(s.swap(swp::Coaches), Coach::kSize);
  std::size_t n = std::min<std::size_t>(f.count(), 253);
  std::vector<Coach> coaches(n + 1);
  for (std::size_t i = 1; i <= n; ++i) {
    Coach c = f.getRecord<Coach>(i);
    if (!c.Name.empty() && c.Team != Coach::kNoTeam && c.Team > s.numTeams()) {
      s.ui.tell("Coach " + c.Name.str() + " seems to be hired by a team that doesn't exist.\n" +
                    fmt::format("Removing employment link to team #{}", c.Team),
                "Validate Coaches");
      c.Team = Coach::kNoTeam;
      f.putRecord(i, c);
    }
    coaches[i] = c;
  }
  for (int t = 0; t < s.numTeams(); ++t)
    if (s.team(t).CoachRec != 0) CheckTeamCoach(s, t, coaches);
}

}  // namespace kvl
