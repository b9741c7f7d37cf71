// Each team's accounts: arena, income, expenses and the projection to the end
// of the season, the salaries it is committed to, and its payrolls.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/payroll.h"
#include "reports/player_lists.h"
#include "reports/standings_rank.h"
#include "ui/ui.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kFinance{"Finance.html", " Team Finances", 6, 6, "<H2>Financial Report</H2>", true};

constexpr int kCommitmentYears = 5;

std::string Cell(const std::string& caption, const std::string& value) {
  return "<TR><TD>" + caption + "</TD><TD>" + value + "</TD></TR>";
}
std::string Money(double v) { return FormatNumber(v, "$0,000"); }

int HomeGamesLeft(LeagueState& s, int team, int seasonGames) {
  const Team& t = s.team(team);
  int left = seasonGames / 2 - t.HomeGames;
  if (left >= 0) return left;
  if (!s.league.InPlayoffs)
    s.ui.tell("An unexpected error has occurred. It appears that " + t.Name.str() + " has played " +
                  NumText(t.HomeGames) + " home games in this " + NumText(seasonGames) + " game schedule.\n" +
                  "KVL will attempt to continue with this condition in place. This schedule is unfair should be noted",
              "Error in schedule");
  return 0;
}

void Accounts(LeagueState& s, int team, Page& page) {
  const Team& t = s.team(team);
  const int seasonGames = SeasonGamesWhole(s);
  const double pro = ProPayroll(s, 0), farm = FarmPayroll(s, 0), fees = ProspectFees(s, 0), coach = t.Coach.Salary;
  const int homeLeft = HomeGamesLeft(s, team, seasonGames);
  const int gamesLeft = std::max(0, seasonGames - (t.W[0] + t.L[0] + t.T[0]));
  const double projectedRevenue = double(homeLeft) * t.Revenue;
  // Salaries and fees are for the season: the remaining games' share of them,
  // and the game costs of every game left.
  const double gameExpenses = gamesLeft * Revenue(s);
  const double share = seasonGames == 0 ? 0 : double(gamesLeft) / seasonGames;
  const double projectedExpenses = (pro + farm + fees + coach) * share + gameExpenses;
  page.add("<BR><BR><TABLE><TR><TD VALIGN=top WIDTH=280>");
  page.add("<B>Income</B><P>");
  page.add("<TABLE WIDTH=260>");
  page.add(Cell("Current Funds", "<B>" + Money(t.CurFin) + "</B>"));
  page.add(Cell("Home Games Remaining", NumText(homeLeft)));
  page.add(Cell("Avg. Attendance", FormatNumber(static_cast<u16>(t.Attendance), "0,000")));
  page.add(Cell("Avg. Revenue/Game", Money(t.Revenue)));
  page.add(Cell("Projected Revenue", Money(projectedRevenue)));
  page.add("</TABLE><P>");
  page.add("<B>Expenses</B><P>");
  page.add("<TABLE WIDTH=260>");
  page.add(Cell("Pro Payroll", Money(pro)));
  page.add(Cell("Farm Payroll", Money(farm)));
  page.add(Cell("Prospect Fees", Money(fees)));
  page.add(Cell("Coach", Money(coach)));
  page.add(Cell("Games Remaining", NumText(gamesLeft)));
  page.add(Cell("Total Game Expenses", Money(gameExpenses)));
  page.add(Cell("Projected Expenses", Money(projectedExpenses)));
  page.add("<TR><TD><B>Projected Balance</B></TD><TD><B>" + Money(t.CurFin + projectedRevenue - projectedExpenses) +
           "</B></TD></TR>");
  page.add("</TABLE><P>");
}

void Commitments(const LeagueState& s, Page& page) {
  page.add("<B>Salary Commitment</B><P>");
  page.add("<TABLE WIDTH=260>");
  for (int y = 1; y <= kCommitmentYears; ++y) {
    double sum = 0;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s.player(0, slot);
      if (!p.empty() && p.Contract >= y) sum += p.Salary;
    }
    page.add("<TR><TD>Year: " + NumText(s.league.CurrentYear + y - 1) + "</TD><TD>" + Money(sum) + "</TD></TR>");
  }
  page.add("</TABLE>");
}

void Payroll(const LeagueState& s, bool pro, Page& page) {
  page.add(pro ? "<B>Pro Payroll</B><P>" : "<B>Farm Payroll</B><P>");
  page.add("<TABLE WIDTH=260>");
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (!p.empty() && (p.list() != 0) == pro)
      page.add(Cell(PlayerText(p), Money(p.Salary) + " (" + NumText(p.Contract) + ")"));
  }
  page.add("</TABLE><BR><BR>");
}

}  // namespace

void WriteFinance(PageRun& run) {
  LeagueState& s = run.s;
  Page page(run, kFinance);
  ForEachLoadedTeam(s, [&](int team) {
    const Team& t = s.team(team);
    page.add(TeamAnchor(s, team));
    page.add("<TABLE BORDER=3 CELLPADDING=2>" + Cell("Arena", HtmlText(t.Arena.str())));
    page.add(Cell("Capacity", FormatNumber(t.Seats, "0,000")));
    page.add(Cell("Ticket Price", FormatNumber(t.Ticket, "$0.00")));
    page.add("</TABLE>");
    Accounts(s, team, page);
    Commitments(s, page);
    page.add("</TD><TD VALIGN=top WIDTH=280>");
    Payroll(s, true, page);
    Payroll(s, false, page);
    page.add("</TD></TR></TABLE>");
    page.add("<BR><BR><BR>");
  });
  page.write();
}

}  // namespace kvl
