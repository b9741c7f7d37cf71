#include "util/fixed_text.h"

namespace kvl {

std::string Condense(std::string_view text) {
  std::size_t end = text.size();
  while (end > 0 && (text[end - 1] == ' ' || text[end - 1] == '\0')) --end;
  return std::string(text.substr(0, end));
}

std::string PadCut(std::string_view text, std::size_t width) {
  std::string out(text.substr(0, std::min(width, text.size())));
  out.resize(width, ' ');
  return out;
}

}  // namespace kvl
