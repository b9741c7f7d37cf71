#pragma once
// Windows-1252 text of the league files to and from UTF-8 for terminals.
#include <string>
#include <string_view>

namespace kvl {

std::string Cp1252ToUtf8(std::string_view bytes);
// Characters with no Windows-1252 form become "?".
std::string Utf8ToCp1252(std::string_view utf8);

}  // namespace kvl
