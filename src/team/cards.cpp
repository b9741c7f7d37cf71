// The player card.
#include "team/cards.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

#include "league/league_files.h"
#include "league/value_check.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "ui/ui.h"
#include "util/fixed_text.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr std::array<const char*, 5> kPositions{"C", "LW", "RW", "D", "G"};

std::vector<PlayerField> MakePlayerFields() {
  using C = PlayerControl;
  std::vector<PlayerField> f{
      {"Birthplace", C::lblBirthplace, -1, "Enter New Birthplace (3 letters)", "Edit Player"},
      {"Contract", C::lblContract, -1, "Enter New Contract Length", "Edit Player"},
      {"GW", C::lblGW, -1, "Enter New Value for Shutouts", "Edit Player"},
      {"Salary", C::lblSalary, -1, "Enter New Pro Salary", "New Salary"},
      {"Weight", C::lblWgt, -1, "Enter Player Weight", "Player Weight"},
      {"Num", C::lblNum, -1, "Enter New Sweater Number", "Edit Player"},
      {"Pos", C::lblPos, -1, "Enter New Position (C, LW, RW, D or G)", "Edit Player"},
      {"Age", C::lblAge, -1, "Enter New Age", "Edit Player"},
      {"Height", C::lblHgt, -1, "Enter New Height in Inches", "Edit Player"},
      {"Status", C::lblSts, -1, "Enter New Status (0 minors, 100 pro roster, 200 dressed, plus the injury class)",
       "Edit Player"}};
  for (int i = 0; i < 13; ++i)
    f.push_back({kRatingNames[std::size_t(i)], C::lblSkill, i, "New Rating", "Change Player Rating"});
  return f;
}

std::optional<u8> Byte(const std::string& answer) {
  auto v = WholeIn(answer, 0, 255);
  return v ? std::optional<u8>(static_cast<u8>(*v)) : std::nullopt;
}

std::optional<u8> TypedPosition(std::string answer) {
  answer = Trim(answer);
  for (auto& c : answer) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  for (std::size_t i = 0; i < kPositions.size(); ++i)
    if (answer == kPositions[i]) return static_cast<u8>(i);
  auto v = WholeIn(answer, 0, 4);
  return v && !answer.empty() ? std::optional<u8>(static_cast<u8>(*v)) : std::nullopt;
}

// The byte a control edits; nullptr for the fields that are not single bytes.
u8* ByteField(Player& p, const PlayerField& f) {
  switch (f.control) {
    case PlayerControl::lblContract: return &p.Contract;
    case PlayerControl::lblGW: return p.Pos == kGoalie ? &p.PP : &p.GW;
    case PlayerControl::lblSkill: return &p.rating(f.rating);
    case PlayerControl::lblWgt: return &p.Weight;
    case PlayerControl::lblNum: return &p.Num;
    case PlayerControl::lblAge: return &p.Age;
    case PlayerControl::lblHgt: return &p.Height;
    case PlayerControl::lblSts: return &p.Status;
    default: return nullptr;
  }
}

std::string CurrentValue(Player& p, const PlayerField& f) {
  if (u8* b = ByteField(p, f)) return NumText(*b);
  if (f.control == PlayerControl::lblSalary) return NumText(p.Salary);
  if (f.control == PlayerControl::lblPos) return p.Pos < 5 ? kPositions[p.Pos] : NumText(p.Pos);
  return p.Birthplace.str();
}

std::string HeightText(u8 inches) {
  if (inches < 66) return "5 ft 6";
  return fmt::format("{} ft {}", inches / 12, inches % 12);
}

std::string StatusText(const Player& p) {
  if (p.injury() > 0) return "Injured " + std::string(InjuryName[std::size_t(InjuryClassFor(p.injury()))]);
  if (p.Suspended > 0) return fmt::format("Suspended {} games", p.Suspended);
  return "Healthy";
}

std::string Ratio(double num, double den, const char* mask) {
  return den == 0 ? "N/A" : FormatNumber(num / den, mask);
}

std::string StatsText(const Player& p) {
  if (p.Pos == kGoalie)
    return fmt::format("GP {}  W {}  L {}  T {}  Min {}  GA {}  GAA {}  As {}  SO {}  Sv% {}  PIM {}\n", p.GP, p.SH,
                       p.GW, p.GT, p.Plus, p.PIM, Ratio(p.PIM * 60.0, p.Plus, "0.00"), p.A, p.PP,
                       Ratio(p.Shots - p.PIM, p.Shots, "0.000"), p.G);
  return fmt::format("GP {}  G {}  A {}  Pts {}  +/- {}  PIM {}  Shots {}  Sh% {}  PP {}  SH {}  GW {}  GT {}  Hits {}  "
                     "Hat tricks {}\n",
                     p.GP, p.G, p.A, p.G + p.A, p.Plus, p.PIM, p.Shots, Ratio(p.G * 100.0, p.Shots, "0.0"), p.PP, p.SH,
                     p.GW, p.GT, p.Hits, p.HatTricks);
}

std::string RatingsText(const Player& p) {
  std::string out;
  for (int i = 0; i < 13; ++i)
    out += fmt::format("{} {}  ", kRatingNames[std::size_t(i)], p.rating(i) == 255 ? "n/a" : NumText(p.rating(i)));
  return out + fmt::format("\nOverall {}  Offense {}  Defense {}\n", Overall(p), OffenseRating(p), DefenseRating(p));
}

}  // namespace

const std::vector<PlayerField>& PlayerFields() {
  static const std::vector<PlayerField> fields = MakePlayerFields();
  return fields;
}

PlayerCard::PlayerCard(LeagueState& s, int side)
    : s_(s), side_(side), slot_(s.CurPlayer), p_(s.player(side, s.CurPlayer)) {}

std::string PlayerCard::Text() const {
  static constexpr std::array<const char*, 3> kLists{"Minors", "Pro roster", "Dressed"};
  const Player& p = p_;
  std::string out = fmt::format("{}  #{}  {}  {}  Shoots {}\n", p.Name.str(), p.Num, p.Pos < 5 ? kPositions[p.Pos] : "?",
                                p.Rookie ? "Rookie" : "Veteran", p.Hand == 'R' ? "R" : p.Hand == 'L' ? "L" : "na");
  out += fmt::format("Age {}  Height {}  Weight {}  Birthplace {}\n", p.Age, HeightText(p.Height), p.Weight,
                     p.Birthplace.str());
  out += fmt::format("Status {}  {}  Condition {}\n", StatusText(p), p.list() < 3 ? kLists[std::size_t(p.list())] : "",
                     p.Condition);
  out += fmt::format("Salary {}  Contract {}{}\n", FormatNumber(p.Salary, "$#,##0"), p.Contract,
                     p.Release ? "  (to be released)" : "");
  return out + RatingsText(p) + StatsText(p);
}

bool PlayerCard::Store(const PlayerField& field, const std::string& answer) {
  if (field.control == PlayerControl::lblBirthplace) {
    p_.Birthplace.set(answer);
    return true;
  }
  if (field.control == PlayerControl::lblSalary) {
    auto v = WholeIn(answer, 0, 2147483647.0);
    if (v) p_.Salary = static_cast<i32>(*v);
    return v.has_value();
  }
  auto v = field.control == PlayerControl::lblPos ? TypedPosition(answer) : Byte(answer);
  if (!v) return false;
  *(field.control == PlayerControl::lblPos ? &p_.Pos : ByteField(p_, field)) = *v;
  return true;
}

bool PlayerCard::edit(const PlayerField& field, std::optional<std::string> value) {
  if (!value) value = s_.ui.prompt(field.prompt, field.title, CurrentValue(p_, field));
  if (!value || value->empty() || !Store(field, *value)) return false;
  changed_ = true;
  return true;
}

void PlayerCard::lblHD() {
  p_.Hand = p_.Hand == 'L' ? 'R' : 'L';
  changed_ = true;
}

void PlayerCard::lblExp() {
  p_.Rookie = p_.Rookie ? kFalse : kTrue;
  changed_ = true;
}

bool PlayerCard::cmdRelease() {
  if (s_.ui.ask("Release " + p_.Name.str() + "?", "Release Player", Buttons::YesNo) != Answer::Yes) return false;
  p_.Release = 1;
  changed_ = true;
  return true;
}

void PlayerCard::SaveChanges() { s_.player(side_, slot_) = p_; }

void PlayerCard::Close() {
  if (!changed_ || s_.ui.ask("Keep Changes?", "Keep Changes", Buttons::YesNo) != Answer::Yes) return;
  SaveChanges();
  SaveTeam(s_, s_.CurTeam, side_);
  s_.Dirty = true;
}

}  // namespace kvl
