#pragma once
// Fixed-width single-byte text fields, blank padded, as the league files store them.
#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kvl {

template <std::size_t N>
struct FixedText {
  std::array<char, N> bytes{};

  static constexpr std::size_t size() { return N; }
  // A field is empty when its first byte is 0 (an unused slot).
  bool empty() const { return bytes[0] == 0; }
  // The raw bytes, padding included.
  std::string raw() const { return std::string(bytes.data(), N); }
  // Pads with blanks or cuts to the width.
  void set(std::string_view text) {
    std::size_t n = std::min(N, text.size());
    std::copy_n(text.data(), n, bytes.data());
    std::fill(bytes.begin() + n, bytes.end(), ' ');
  }
  void clear() { bytes.fill(0); }
  // The text without trailing blanks or NULs.
  std::string str() const;
  bool operator==(const FixedText&) const = default;
};

// Strips trailing blanks (and NULs, which unused fields hold).
std::string Condense(std::string_view text);

template <std::size_t N>
std::string FixedText<N>::str() const {
  return Condense(std::string_view(bytes.data(), N));
}

// Strips blanks, tabs and line ends at both ends, as typed text is taken.
std::string Trim(std::string_view text);
// The surname with the first initial: "J. Smith".
std::string ShortName(const std::string& name);

// Pads with blanks or cuts to the width.
std::string PadCut(std::string_view text, std::size_t width);

}  // namespace kvl
