#include "util/cp1252.h"

#include <array>
#include <cstdint>

namespace kvl {
namespace {

// 0x80-0x9F; the five bytes Windows-1252 leaves undefined keep their C1 code point.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CodePointOf(unsigned char b) { return b >= 0x80 && b < 0xA0 ? kHighControls[b - 0x80] : b; }

void AppendUtf8(std::string& out, char32_t cp) {
  auto put = [&](unsigned v) { out += static_cast<char>(v); };
  if (cp < 0x80) {
    put(cp);
  } else if (cp < 0x800) {
    put(0xC0 | (cp >> 6));
    put(0x80 | (cp & 0x3F));
  } else {
    put(0xE0 | (cp >> 12));
    put(0x80 | ((cp >> 6) & 0x3F));
    put(0x80 | (cp & 0x3F));
  }
}

constexpr char32_t kInvalid = 0xFFFFFFFF;

// The range the second byte of a sequence may take; it rules out overlong
// forms, surrogates and code points past U+10FFFF.
struct Lead {
  int length;
  unsigned char low, high;
};

Lead LeadOf(unsigned char b) {
  if (b >= 0xC2 && b <= 0xDF) return {2, 0x80, 0xBF};
  if (b == 0xE0) return {3, 0xA0, 0xBF};
  if (b == 0xED) return {3, 0x80, 0x9F};
  if (b >= 0xE1 && b <= 0xEF) return {3, 0x80, 0xBF};
  if (b == 0xF0) return {4, 0x90, 0xBF};
  if (b >= 0xF1 && b <= 0xF3) return {4, 0x80, 0xBF};
  if (b == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

// Decodes one character at s[i] and advances i. A broken sequence is consumed
// up to where it breaks and gives kInvalid, so each break costs one "?".
char32_t NextCodePoint(std::string_view s, std::size_t& i) {
  auto b = static_cast<unsigned char>(s[i++]);
  if (b < 0x80) return b;
  Lead lead = LeadOf(b);
  if (lead.length == 0) return kInvalid;
  char32_t cp = b & (0x7F >> lead.length);
  for (int k = 1; k < lead.length; ++k) {
    if (i >= s.size()) return kInvalid;
    auto c = static_cast<unsigned char>(s[i]);
    unsigned char low = k == 1 ? lead.low : 0x80, high = k == 1 ? lead.high : 0xBF;
    if (c < low || c > high) return kInvalid;
    cp = (cp << 6) | (c & 0x3F);
    ++i;
  }
  return cp;
}

char ByteOf(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
  for (std::size_t k = 0; k < kHighControls.size(); ++k)
    if (kHighControls[k] == cp) return static_cast<char>(0x80 + k);
  return '?';
}

}  // namespace

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (char c : bytes) AppendUtf8(out, CodePointOf(static_cast<unsigned char>(c)));
  return out;
}

std::string Utf8ToCp1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) out += ByteOf(NextCodePoint(utf8, i));
  return out;
}

}  // namespace kvl
