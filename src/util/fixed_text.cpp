#include "util/fixed_text.h"

namespace kvl {

std::string Condense(std::string_view text) {
  std::size_t end = text.size();
  while (end > 0 && (text[end - 1] == ' ' || text[end - 1] == '\0')) --end;
  return std::string(text.substr(0, end));
}

std::string Trim(std::string_view text) {
  auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1));
}

std::string PadCut(std::string_view text, std::size_t width) {
  std::string out(text.substr(0, std::min(width, text.size())));
  out.resize(width, ' ');
  return out;
}

std::string ShortName(const std::string& name) {
  auto space = name.find(' ');
  if (name.empty() || space == std::string::npos) return name;
  return name.substr(0, 1) + ". " + name.substr(space + 1);
}

}  // namespace kvl
