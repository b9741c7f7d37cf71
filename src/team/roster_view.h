#pragma once
// The roster editor as text: its three lists with roster slot numbers, and the
// caption.
#include <string>

#include "team/roster_editor.h"

namespace kvl {

std::string RosterEditorText(const RosterEditor& e, const LeagueState& s);

}  // namespace kvl
