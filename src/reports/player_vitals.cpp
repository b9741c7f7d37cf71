// Each team's players with age, size, salary and contract, and the pro
// team's average.
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kVitals{"PlayerVitals.html", " Player Vitals", 13, 13, "<HTML><H1>Player Vitals</H1>"};

const char* const kColumns = "#                            POS  AGE  HEIGHT    WEIGHT     SALARY  CONTRACT";

std::string Height(double inches) {
  int whole = static_cast<int>(Int(inches + 0.5));
  return NumText(whole / 12) + " ft " + NumText(whole % 12);
}

}  // namespace

void WritePlayerVitals(PageRun& run) {
  LeagueState& s = run.s;
  const auto ends = CaptionEnds(kColumns);
  const std::vector<std::size_t> valueEnds(ends.begin() + 1, ends.end());
  Page page(run, kVitals);
  ForEachLoadedTeam(s, [&](int team) {
    page.add(TeamAnchor(s, team));
    page.add("<PRE>");
    page.add(kColumns);
    double age = 0, height = 0, weight = 0;
    int pros = 0;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s.player(0, slot);
      if (p.empty()) continue;
      std::string label = Pad(NumText(p.Num), 3) + RookieMark(p) + HtmlText(p.Name.str());
      page.add(RowUnder(label,
                        {std::string(PosName[std::min<std::size_t>(p.Pos, 4)]), NumText(p.Age), Height(p.Height),
                         NumText(p.Weight) + " lbs", FormatNumber(p.Salary, "0,000"),
                         NumText(p.Contract) + (p.Contract == 1 ? " year" : " years")},
                        valueEnds));
      if (p.list() != 0) ++pros, age += p.Age, height += p.Height, weight += p.Weight;
    }
    page.add(std::string(76, '-'));
    auto mean = [&](double sum) { return pros == 0 ? 0.0 : sum / pros; };
    page.add(RowUnder("PRO TEAM AVERAGE",
                      {"", FormatNumber(mean(age), "#0.0"), Height(mean(height)),
                       FormatNumber(mean(weight), "#0.0") + " lbs"},
                      valueEnds));
    page.add("</PRE><P>");
  });
  page.write();
}

}  // namespace kvl
