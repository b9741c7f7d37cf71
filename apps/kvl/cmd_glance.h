#pragma once
// Plain tables for a terminal, fitting 100 columns, or CSV for a spreadsheet.
#include <optional>
#include <string>
#include <vector>

namespace kvl {

struct Column {
  std::string title;
  int width = 0;
  bool left = false;  // text flush left; numbers go right
};

struct TextTable {
  std::vector<Column> columns;
  std::vector<std::vector<std::string>> rows;
};

std::string TableText(const TextTable& t, bool csv);
// "C", "LW", "RW", "D", "G", and back (any case).
std::string PosText(int pos);
std::optional<int> PosNumber(const std::string& text);

}  // namespace kvl
