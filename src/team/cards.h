#pragma once
// The player card (PlayerInfo) and the team card (DisplayTeam): the
// commissioner's direct view and edit of one player and one team. Each field is
// a small command that prompts for a new value; nothing checks what the value
// does to the league. The cards edit copies, written back on closing after a
// yes to "Keep Changes?".
#include <optional>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

// The clickable fields of the player card.
enum class PlayerControl { lblBirthplace, lblContract, lblGW, lblSalary, lblSkill, lblWgt, lblNum, lblPos, lblAge, lblHgt, lblSts };

struct PlayerField {
  std::string name;  // as the command line names it: "Salary", "Spd"
  PlayerControl control;
  int rating = -1;   // for lblSkill, the rating clicked
  std::string prompt, title;
};
const std::vector<PlayerField>& PlayerFields();

class PlayerCard {
 public:
  // The card of Player(side, CurPlayer), the team CurTeam being loaded in `side`.
  PlayerCard(LeagueState& s, int side);

  const Player& player() const { return p_; }
  bool changed() const { return changed_; }
  std::string Text() const;

  // Clicking a field: prompts with its text unless `value` is given. An empty
  // answer leaves the field; an accepted one sets Changed.
  bool edit(const PlayerField& field, std::optional<std::string> value = std::nullopt);
  void lblHD();   // hand L <-> R
  void lblExp();  // rookie <-> veteran
  // Asks whether to release; on yes marks him for the roster editor to release.
  bool cmdRelease();
  void SaveChanges();
  // With Changed asks "Keep Changes?"; on yes saves, SaveTeam, Dirty.
  void Close();

 private:
  bool Store(const PlayerField& field, const std::string& answer);

  LeagueState& s_;
  int side_;
  int slot_;
  Player p_;
  bool changed_ = false;
};

// The clickable fields of the team card.
enum class TeamControl { lblTeam, lblAbbrev, lblArena, lblSeats, lblTicket, lblOwner, lblPassword, lblEmail, lblICQ, lblFarmTeam, lblCurFin };

struct TeamField {
  std::string name;  // "Seats", "CurFin"
  TeamControl control;
  std::string prompt, title;
};
const std::vector<TeamField>& TeamFields();

// The gate a team can expect at its price, filled as its dressed players are
// good: a mean Overall of 65 fills the estimate exactly. The team stands in `side`.
i32 EstimatedRevenue(const LeagueState& s, int team, int side);
// The same for a team record not yet written back (the card's copy).
i32 EstimatedRevenue(const LeagueState& s, const Team& t, int side);

class TeamCard {
 public:
  // The card of Teams(CurTeam), loaded in `side`.
  TeamCard(LeagueState& s, int side);

  const Team& team() const { return t_; }
  const FarmTeam& farm() const { return farm_; }
  const std::string& email() const { return email_; }
  bool changed() const { return changed_; }
  std::string Text() const;

  bool edit(const TeamField& field, std::optional<std::string> value = std::nullopt);
  void SaveChanges();
  void Close();

 private:
  std::string PromptText(const TeamField& field) const;
  bool Store(const TeamField& field, const std::string& answer);
  // Tells a typed text the record cuts, with what it becomes.
  void TellCut(const std::string& answer, std::size_t room, const char* what) const;

  LeagueState& s_;
  int side_;
  int team_;
  Team t_;
  FarmTeam farm_;
  std::string email_;
  bool changed_ = false;
};

}  // namespace kvl
