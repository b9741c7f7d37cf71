// Team rosters with every rating; the published folder also carries the
// league's raw team, roster and league files.
#include "league/league_files.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "team/cards_email.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

const PageInfo kRosters{"Rosters.html", " Team Rosters", 2, 2, "<H2>Team Rosters</H2>", true};

const char* const kColumns = "<PRE> # Player                 PO HD CD IJ IT SP ST EN DU DI SK PA PC DF SC EX LD OV";
constexpr std::array<int, 13> kShown{kInt, kSpd, kStr, kEnd, kDur, kDis, kSka, kPas, kPcc, kDef, kSco, kExp, kLdr};

std::string Injury(const Player& p) {
  int v = p.injury() > 7 ? 6 : p.injury();
  if (v != 0) return Pad(InjuryCode[static_cast<std::size_t>(InjuryClassFor(v))], 3);
  switch (p.Suspended) {
    case 0: return "   ";
    case 99: return "HO ";
    case 88: return "PB ";
    default: return Pad(NumText(p.Suspended) + "S", 3);
  }
}

// The hand is stored as its letter; a record without one shows none.
std::string HandColumn(u8 hand) { return hand == 'L' ? "L  " : hand == 'R' ? "R  " : "   "; }

std::string RosterRow(const Player& p) {
  std::string line = Fill(p.Num, 2) + " " + HtmlText(Pad(p.Name.str(), 22)) + " " +
                     std::string(PosName[std::min<std::size_t>(p.Pos, 4)]) + " " + HandColumn(p.Hand);
  line += p.Condition == 100 ? "OK " : Pad(NumText(p.Condition), 3);
  line += Injury(p);
  for (int r : kShown) line += Pad(NumText(p.rating(r)), 3);
  int overall = Overall(p);
  return line + (p.Pos == kGoalie && overall == 0 ? "NA " : NumText(overall));
}

std::string LinkBar(const LeagueState& s, int team) {
  auto link = [&](const char* file, const char* caption) { return Link(TeamHref(s, team, file), caption); };
  return link("TeamScoring.html", "[Scoring]") + " " + link("Finance.html", "[Finances]") + " " +
         link("PlayerVitals.html", "[Player Vitals]") + " " + link("Lines.html", "[Lines]") + " " +
         link("Futures.html", "[Prospects]");
}

void Table(const LeagueState& s, bool pro, Page& page) {
  page.add(kColumns);
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (!p.empty() && (p.list() != 0) == pro) page.add(RosterRow(p));
  }
  page.add("</PRE>");
}

void CopyRawFiles(const LeagueState& s) {
  for (auto [swap, ext] : {std::pair{swp::Teams, ".tms"}, {swp::Roster, ".ros"}, {swp::League, ".lge"}})
    if (fs::exists(s.swap(swap))) CopyFileAtomic(s.swap(swap), TransferFile(s, ext));
}

}  // namespace

void WriteRosters(PageRun& run) {
  LeagueState& s = run.s;
  fs::create_directories(TransferFile(s, "").parent_path());
  CopyRawFiles(s);
  Page page(run, kRosters);
  ForEachLoadedTeam(s, [&](int t) {
    page.add(TeamAnchor(s, t));
    const std::string owner = HtmlText(s.team(t).Owner.str()), mail = TeamEmail(s, t);
    page.add("General Manager: " + (mail.empty() ? owner : Link("mailto:" + mail, owner)) + "<BR>");
    page.add(LinkBar(s, t));
    page.add("<H3>Pro Roster</H3>");
    Table(s, true, page);
    page.add("<H4>Farm Roster</H4>");
    Table(s, false, page);
  });
  page.write();
}

}  // namespace kvl
