#pragma once
// A command refused: the user is told why, and nothing is kept.
#include <string>

#include "session.h"
#include "util/error.h"

namespace kvl {

[[noreturn]] inline void RefuseWith(Session& s, const std::string& text, const std::string& title) {
  s.ui.tell(text, title);
  throw Refused(text);
}

}  // namespace kvl
