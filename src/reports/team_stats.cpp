// Team statistics: seven tables of the same columns, each ranked by its own.
#include <algorithm>
#include <optional>

#include "reports/html.h"
#include "reports/page_groups.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kTeamStats{"TeamStats.html", " Team Stats", 12, 12, "<HTML><H2>Team Statistics</H2>"};

// The figures of a row; nullopt where the divisor is zero.
using Figures = std::array<std::optional<double>, 7>;

std::optional<double> Ratio(double a, double b, double scale = 1) {
  if (b == 0) return std::nullopt;
  return a / b * scale;
}

Figures TeamFigures(const Team& t) {
  double gp = t.W[0] + t.L[0] + t.T[0];
  return {Ratio(t.PPG, t.PPO, 100), Ratio(t.PKO - t.PKG, t.PKO, 100), Ratio(t.TeamPIM, gp), Ratio(t.GF, gp),
          Ratio(t.GA, gp),          Ratio(t.SF, gp),                  Ratio(t.SA, gp)};
}

struct Table {
  const char* heading;
  bool highFirst;
};
constexpr std::array<Table, 7> kTables{{{"<H3>Power Play</H3>", true},
                                        {"<H3>Penalty Kill</H3>", true},
                                        {"<H3>Penalty Minutes</H3>", false},
                                        {"<H3>Team Scoring</H3>", true},
                                        {"<H3>Team Defence</H3>", false},
                                        {"<H3>Shots For</H3>", true},
                                        {"<H3>Shots Against</H3>", false}}};
// The column captions with their widths; one is set in bold per table.
constexpr std::array<std::pair<const char*, std::size_t>, 7> kColumns{
    {{"PP%", 7}, {"PK%", 6}, {"PIM/G", 8}, {"GF/G", 7}, {"GA/G", 6}, {"SF/G", 7}, {"SA/G", 7}}};

std::string ColumnLine(std::size_t bold) {
  std::string line = "<PRE>              GP";
  for (std::size_t c = 0; c < kColumns.size(); ++c) {
    std::string cap = Fill(kColumns[c].first, kColumns[c].second);
    line += c == bold ? std::string(cap.size() - std::string(kColumns[c].first).size(), ' ') + "<b>" +
                            kColumns[c].first + "</b>"
                      : cap;
  }
  return line;
}

std::string Row(const LeagueState& s, int team, const Figures& f) {
  const Team& t = s.team(team);
  std::string line = PaddedTeamLink(s, team, 10) + Fill(t.W[0] + t.L[0] + t.T[0], 6);
  for (std::size_t c = 0; c < f.size(); ++c)
    line += Fill(f[c] ? FormatNumber(*f[c], c < 2 ? "#0.0" : "#.00") : "N/A", kColumns[c].second);
  return line;
}

}  // namespace

void WriteTeamStats(PageRun& run) {
  const LeagueState& s = run.s;
  Page page(run, kTeamStats);
  std::vector<Figures> figures;
  for (int t = 0; t < s.numTeams(); ++t) figures.push_back(TeamFigures(s.team(t)));
  for (std::size_t c = 0; c < kTables.size(); ++c) {
    std::vector<int> order(static_cast<std::size_t>(s.numTeams()));
    for (int t = 0; t < s.numTeams(); ++t) order[static_cast<std::size_t>(t)] = t;
    // Teams without the figure go last; ties keep team order.
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
      const auto& fa = figures[static_cast<std::size_t>(a)][c];
      const auto& fb = figures[static_cast<std::size_t>(b)][c];
      if (!fa || !fb) return fa.has_value() && !fb.has_value();
      return kTables[c].highFirst ? *fa > *fb : *fa < *fb;
    });
    page.add(kTables[c].heading);
    page.add(ColumnLine(c));
    for (int t : order) page.add(Row(s, t, figures[static_cast<std::size_t>(t)]));
    page.add("</PRE>");
  }
  page.write();
}

}  // namespace kvl
