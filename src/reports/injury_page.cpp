// Who is out, team by team: injuries with their wording, hold-outs, personal
// leaves and suspensions.
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

const PageInfo kInjury{"Injury.html", " Injury Report", 5, 5, "<HTML><H2>Injury Report</H2>", false,
                       ")<BR><BR><BR><BR>", true, "<BODY>"};

// The wordings of inj.dtf by record number; the injury of a player notes the
// number of its wording.
std::vector<std::string> InjuryTexts(const LeagueState& s) {
  std::vector<std::string> texts{""};
  fs::path file = s.AppPath / "inj.dtf";
  if (!fs::exists(file)) return texts;
  RecordFile f(file, InjuryText::kSize);
  for (std::size_t n = 1; n <= f.count(); ++n) texts.push_back(f.getRecord<InjuryText>(n).Text.str());
  return texts;
}

std::vector<std::string> Notices(const Player& p, const std::vector<std::string>& texts) {
  const std::string name = PlayerText(p);
  std::vector<std::string> out;
  if (p.injury() != 0) {
    std::string text = p.InjuryType < texts.size() ? texts[p.InjuryType] : "";
    out.push_back("Injured " + name + " sidelined " +
                  std::string(InjuryName[static_cast<std::size_t>(InjuryClassFor(p.injury()))]) + " (" +
                  HtmlText(text) + ")<BR>");
  }
  if (p.Suspended == 99) out.push_back(name + " holding out<BR>");
  else if (p.Suspended == 88) out.push_back(name + " out with personal reasons<BR>");
  else if (p.Suspended != 0) out.push_back(name + " suspended " + NumText(p.Suspended) + " games<BR>");
  return out;
}

}  // namespace

void WriteInjury(PageRun& run) {
  LeagueState& s = run.s;
  const std::vector<std::string> texts = InjuryTexts(s);
  Page page(run, kInjury);
  ForEachLoadedTeam(s, [&](int team) {
    page.add("<H3>" + NamedTeam(s, team) + "</H3>");
    bool any = false;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s.player(0, slot);
      if (p.empty()) continue;
      for (std::string& line : Notices(p, texts)) page.add(std::move(line)), any = true;
    }
    if (!any) page.add("No injuries to report<BR>");
    page.add("<BR><BR><BR>");
  });
  page.write();
}

}  // namespace kvl
