// The team card and its revenue estimate.
#include <fmt/format.h>

#include <cmath>

#include "admin/league_creation.h"
#include "league/league_files.h"
#include "league/ratings.h"
#include "team/cards.h"
#include "team/cards_email.h"
#include "ui/ui.h"
#include "util/fixed_text.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr int kMaxSeats = 60000;

// Seats is stored in 16 bits; capacities up to 60000 are read back unsigned.
int SeatsOf(const Team& t) { return static_cast<u16>(t.Seats); }

// The amount of a cash adjustment: "-$", "$-" or "-" in front deduct.
std::optional<double> Adjustment(std::string answer) {
  answer = Trim(answer);
  bool minus = false;
  for (const char* prefix : {"-$", "$-", "-", "$"})
    if (answer.rfind(prefix, 0) == 0) {
      minus = std::string(prefix).find('-') != std::string::npos;
      answer = answer.substr(std::string(prefix).size());
      break;
    }
  auto v = WholeIn(answer, 0, 2147483647.0);
  if (!v) return std::nullopt;
  return minus ? -*v : *v;
}

std::string TextOf(const TeamCard& card, TeamControl c) {
  const Team& t = card.team();
  switch (c) {
    case TeamControl::lblTeam: return t.Name.str();
    case TeamControl::lblAbbrev: return t.Abbrev.str();
    case TeamControl::lblArena: return t.Arena.str();
    case TeamControl::lblSeats: return NumText(SeatsOf(t));
    case TeamControl::lblTicket: return NumText(t.Ticket);
    case TeamControl::lblOwner: return t.Owner.str();
    case TeamControl::lblPassword: return t.Password.str();
    case TeamControl::lblEmail: return card.email();
    case TeamControl::lblICQ: return t.ICQ.str();
    case TeamControl::lblFarmTeam: return card.farm().Name.str();
    case TeamControl::lblCurFin: return "";
  }
  return "";
}

}  // namespace

const std::vector<TeamField>& TeamFields() {
  using C = TeamControl;
  static const std::vector<TeamField> fields{
      {"Name", C::lblTeam, "What is the new name?", "New Team Name"},
      {"Abbrev", C::lblAbbrev, "New Abbreviation", "Change Abbreviation"},
      {"Arena", C::lblArena, "New Arena Name", "Change Arena Name"},
      {"Seats", C::lblSeats, "New Arena Capacity", "Change Arena Capacity"},
      {"Ticket", C::lblTicket, "New Ticket Price", "Change Ticket Price"},
      {"Owner", C::lblOwner, "New Owner Name", "Change Team Owner"},
      {"Password", C::lblPassword, "New Password", "Change Password"},
      {"Email", C::lblEmail, "New Email Address", "Change Team Email"},
      {"ICQ", C::lblICQ, "New Instant Messenger ID", "Change IM ID"},
      {"FarmTeam", C::lblFarmTeam, "New name for farm team", "Change Farm Team"},
      {"CurFin", C::lblCurFin, "", "Adjust Money"}};
  return fields;
}

i32 EstimatedRevenue(const LeagueState& s, int team, int side) { return EstimatedRevenue(s, s.team(team), side); }

i32 EstimatedRevenue(const LeagueState& s, const Team& t, int side) {
  double gate = std::nearbyint((115 - std::pow(t.Ticket, 1.1)) / 100 * SeatsOf(t));
  int n = 0, sum = 0;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (p.empty() || p.Status != 200) continue;
    ++n;
    sum += Overall(p);
  }
  if (n == 0) return 0;  // nobody dressed: the old card divided by zero here
  double crowd = std::nearbyint(static_cast<double>(sum) / n / 65 * gate);
  return static_cast<i32>(std::nearbyint(t.Ticket * crowd * 0.8 * 0.6 / 2));
}

TeamCard::TeamCard(LeagueState& s, int side)
    : s_(s), side_(side), team_(s.CurTeam), t_(s.team(s.CurTeam)), farm_(s.Farm[s.CurTeam]), email_(TeamEmail(s, s.CurTeam)) {}

std::string TeamCard::Text() const {
  const Team& t = t_;
  const Conference& conf = s_.league.Conf[t.Conf < 2 ? t.Conf : 0];
  std::string out = fmt::format("{} ({})  {}, {}\n", t.Name.str(), t.Abbrev.str(), conf.Name.str(),
                                conf.Div[t.Div < 4 ? t.Div : 0].Name.str());
  out += fmt::format("Arena {}  Seats {}  Ticket {}\n", t.Arena.str(), FormatNumber(SeatsOf(t), "0,000"),
                     FormatNumber(t.Ticket, "$#,##0"));
  out += fmt::format("Owner {}  Password {}  Email {}  IM {}\n", t.Owner.str(), t.Password.str(), email_, t.ICQ.str());
  out += fmt::format("Farm team {}  Coach {}\n", farm_.Name.str(), t.Coach.Name.str());
  out += fmt::format("Record {}-{}-{}  GF {}  GA {}\n", t.W[0], t.L[0], t.T[0], t.GF, t.GA);
  out += fmt::format("Cash {}  Revenue {}  Attendance {}  Home games {}\n", FormatNumber(t.CurFin, "$0,000"),
                     FormatNumber(t.Revenue, "$#,##0"), t.Attendance, t.HomeGames);
  return out + fmt::format("Estimated revenue {}\n", FormatNumber(EstimatedRevenue(s_, t_, side_), "$#,##0"));
}

std::string TeamCard::PromptText(const TeamField& field) const {
  if (field.control == TeamControl::lblCurFin)
    return "Adjust " + t_.Name.str() + " cash by how much?\n(prefix - for deductions)";
  return field.prompt;
}

void TeamCard::TellCut(const std::string& answer, std::size_t room, const char* what) const {
  if (answer.size() > room)
    s_.ui.tell(fmt::format("\"{}\" is longer than a team's {}, {} characters: it becomes \"{}\".", answer, what, room,
                           answer.substr(0, room)),
               "View Team");
}

bool TeamCard::Store(const TeamField& field, const std::string& answer) {
  switch (field.control) {
    case TeamControl::lblTeam:
      TellCut(answer, t_.Name.size(), "name");
      t_.Name.set(answer);
      return true;
    case TeamControl::lblAbbrev:
      if (AbbrevTaken(s_, team_, answer.substr(0, t_.Abbrev.size()))) {
        s_.ui.tell(fmt::format("{} is another team's abbreviation already; each team's is its own. It stays {}.",
                               answer.substr(0, t_.Abbrev.size()), t_.Abbrev.str()),
                   field.title);
        return false;
      }
      TellCut(answer, t_.Abbrev.size(), "abbreviation");
      t_.Abbrev.set(answer);
      return true;
    case TeamControl::lblArena: t_.Arena.set(answer); return true;
    case TeamControl::lblOwner: t_.Owner.set(answer); return true;
    case TeamControl::lblPassword: t_.Password.set(answer); return true;
    case TeamControl::lblICQ: t_.ICQ.set(answer); return true;
    case TeamControl::lblFarmTeam: farm_.Name.set(answer); return true;
    case TeamControl::lblEmail: email_ = Trim(answer); return true;
    default: break;
  }
  if (field.control == TeamControl::lblCurFin) {
    auto v = Adjustment(answer);
    double total = v ? t_.CurFin + *v : 0;
    if (!v || total < -2147483648.0 || total > 2147483647.0) return false;
    t_.CurFin = static_cast<i32>(total);
    return true;
  }
  auto v = WholeIn(answer, 0, field.control == TeamControl::lblSeats ? kMaxSeats : 255);
  if (!v) return false;
  if (field.control == TeamControl::lblSeats) t_.Seats = static_cast<i16>(static_cast<u16>(*v));
  else t_.Ticket = static_cast<u8>(*v);
  return true;
}

bool TeamCard::edit(const TeamField& field, std::optional<std::string> value) {
  if (!value) {
    if (field.control == TeamControl::lblTeam &&
        s_.ui.ask("Change team name?", "Change team name?", Buttons::YesNo) != Answer::Yes)
      return false;
    value = s_.ui.prompt(PromptText(field), field.title, TextOf(*this, field.control));
  }
  if (!value || value->empty() || !Store(field, *value)) return false;
  changed_ = true;
  return true;
}

void TeamCard::SaveChanges() {
  s_.team(team_) = t_;
  s_.Farm[static_cast<std::size_t>(team_)] = farm_;
  if (email_ != TeamEmail(s_, team_)) SetTeamEmail(s_, team_, email_);
}

void TeamCard::Close() {
  if (!changed_ || s_.ui.ask("Keep Changes?", "Keep Changes", Buttons::YesNo) != Answer::Yes) return;
  SaveChanges();
  SaveTeam(s_, team_, side_);
  s_.Dirty = true;
}

}  // namespace kvl
