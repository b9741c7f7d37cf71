#pragma once
// A roster player made from a record of named fields, as prospects and new
// players are brought onto a roster.
#include <string>
#include <utility>
#include <vector>

#include "league/records.h"

namespace kvl {

// Field name and value as text, in any order; missing fields read as 0.
using PlayerFieldRecord = std::vector<std::pair<std::string, std::string>>;

// The fields in the order they are read: "Name", "Num", "Pos", "Hand", the
// thirteen ratings "Int" .. "Exp", "Height", "Weight", "Age", "salary",
// "Contract", "Active".
const std::vector<std::string>& PromoteFieldNames();

// The player the record describes. Each rating goes to the element of its
// place in the list, so "ldr" lands in Exp and "Exp" in Ldr, as the old
// prospect files have it. "Pos" is a number 0..4 or C, LW, RW, D, G; "Hand" L or R.
Player PromoteProspect(const PlayerFieldRecord& fields);

// The fields of a player made by hand: a playable rookie of middling ratings.
PlayerFieldRecord NewPlayerFields(const std::string& name, int pos, int age, i32 salary, int contract);

}  // namespace kvl
