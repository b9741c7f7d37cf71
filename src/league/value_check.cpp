#include "league/value_check.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "ui/ui.h"
#include "util/error.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Validate League";
constexpr std::size_t kMostTold = 20;  // a wholly damaged file is told by its first lines

std::string RosterFile(const LeagueState& s) { return FindLeagueFile(s.LeaguePath, ".ros").string(); }

}  // namespace

std::string ProblemText(const std::string& file, const std::string& what, const std::vector<std::string>& lines) {
  std::string text = file + ": " + what;
  for (std::size_t i = 0; i < lines.size() && i < kMostTold; ++i) text += "\n" + lines[i];
  if (lines.size() > kMostTold) text += fmt::format("\n... and {} more", lines.size() - kMostTold);
  return text;
}

std::vector<std::string> UnplayableRatings(const LeagueState& s, int team, int side) {
  std::vector<std::string> out;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (p.empty()) continue;
    for (std::size_t r = 0; r < kRatingNames.size(); ++r)
      if (p.Ratings[r] > kMaxPlayableRating)
        out.push_back(fmt::format("{}, slot {}, record {} ({}): rating {} is {}, above {}", s.team(team).Name.str(), slot,
                                  team * kRosterSlots + slot + 1, p.Name.str(), kRatingNames[r], p.Ratings[r],
                                  kMaxPlayableRating));
  }
  return out;
}

std::vector<std::string> AlignmentProblems(const LeagueState& s) {
  std::vector<std::string> out;
  std::string teams = s.numTeams() ? fmt::format("the league has teams 0 to {}", s.numTeams() - 1) : "the league has no teams";
  for (std::size_t c = 0; c < s.league.Conf.size(); ++c) {
    const Conference& conf = s.league.Conf[c];
    if (conf.NumDivs > kMaxDivisions)
      out.push_back(fmt::format("conference {} ({}): NumDivs is {}, above {}", c + 1, conf.Name.str(), conf.NumDivs, kMaxDivisions));
    for (std::size_t d = 0; d < conf.Div.size(); ++d) {
      const Division& div = conf.Div[d];
      std::string where = fmt::format("conference {} ({}), division {} ({})", c + 1, conf.Name.str(), d + 1, div.Name.str());
      if (div.NumTeams > kMaxDivisionTeams)
        out.push_back(fmt::format("{}: NumTeams is {}, above {}", where, div.NumTeams, kMaxDivisionTeams));
      for (std::size_t i = 0; i < div.NumTeams && i < div.Team.size(); ++i)
        if (div.Team[i] >= s.numTeams())
          out.push_back(fmt::format("{}, place {}: team {}, {}", where, i + 1, div.Team[i], teams));
    }
  }
  return out;
}

void CheckRatingsPlayable(const LeagueState& s, int team, int side) {
  auto bad = UnplayableRatings(s, team, side);
  if (!bad.empty()) throw KvlError(ProblemText(RosterFile(s), "a game cannot be played with these ratings", bad));
}

void TellUnplayableValues(LeagueState& s) {
  std::vector<std::string> ratings;
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    for (auto& line : UnplayableRatings(s, t, 0)) ratings.push_back(std::move(line));
  }
  if (!ratings.empty())
    s.ui.tell(ProblemText(RosterFile(s), "ratings above 99 cannot be played; games of these teams will stop until they are set",
                   ratings),
              kTitle);
  auto alignment = AlignmentProblems(s);
  if (!alignment.empty())
    s.ui.tell(ProblemText(FindLeagueFile(s.LeaguePath, ".lge").string(),
                   "the alignment names teams the league lacks; Align League refuses until the lists are repaired",
                   alignment),
              kTitle);
}

}  // namespace kvl
