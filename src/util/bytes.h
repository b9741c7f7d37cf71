#pragma once
// Little-endian encoding of fixed records. A record lists its fields once, in
// order, through a visitor; the same list decodes, encodes and names offsets.
#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "util/error.h"
#include "util/fixed_text.h"

namespace kvl {

using Bytes = std::vector<std::uint8_t>;

// 16-bit booleans: 0 false, -1 true. Kept as the raw value so odd bytes survive.
using Bool16 = std::int16_t;
constexpr Bool16 kTrue = -1;
constexpr Bool16 kFalse = 0;
inline Bool16 ToBool16(bool b) { return b ? kTrue : kFalse; }

template <class T>
T LoadLE(const std::uint8_t* p) {
  using U = std::make_unsigned_t<std::conditional_t<std::is_floating_point_v<T>, std::int64_t, T>>;
  if constexpr (std::is_floating_point_v<T>) {
    U u = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) u |= U(p[i]) << (8 * i);
    T v;
    std::memcpy(&v, &u, sizeof v);
    return v;
  } else {
    U u = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) u |= U(p[i]) << (8 * i);
    return static_cast<T>(u);
  }
}

template <class T>
void StoreLE(std::uint8_t* p, T v) {
  using U = std::make_unsigned_t<std::conditional_t<std::is_floating_point_v<T>, std::int64_t, T>>;
  U u;
  if constexpr (std::is_floating_point_v<T>) {
    std::memcpy(&u, &v, sizeof v);
  } else {
    u = static_cast<U>(v);
  }
  for (std::size_t i = 0; i < sizeof(T); ++i) p[i] = static_cast<std::uint8_t>(u >> (8 * i));
}

// Reads fields in order from a byte span; running past the end is a KvlError.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> in) : in_(in) {}
  template <class T>
  void operator()(const char*, T& v) { read(v); }
  std::size_t offset() const { return pos_; }
  void skip(std::size_t n) { need(n); pos_ += n; }

 private:
  void need(std::size_t n) const {
    if (pos_ + n > in_.size()) throw KvlError("record is shorter than its layout");
  }
  template <class T>
  void read(T& v) requires std::is_arithmetic_v<T> {
    need(sizeof(T));
    v = LoadLE<T>(in_.data() + pos_);
    pos_ += sizeof(T);
  }
  template <std::size_t N>
  void read(FixedText<N>& t) {
    need(N);
    std::memcpy(t.bytes.data(), in_.data() + pos_, N);
    pos_ += N;
  }
  template <class T, std::size_t N>
  void read(std::array<T, N>& a) {
    for (auto& e : a) read(e);
  }
  std::span<const std::uint8_t> in_;
  std::size_t pos_ = 0;
};

// Writes fields in order into a byte span.
class ByteWriter {
 public:
  explicit ByteWriter(std::span<std::uint8_t> out) : out_(out) {}
  template <class T>
  void operator()(const char*, const T& v) { write(v); }
  std::size_t offset() const { return pos_; }
  void skip(std::size_t n) { need(n); pos_ += n; }

 private:
  void need(std::size_t n) const {
    if (pos_ + n > out_.size()) throw KvlError("record is longer than its layout");
  }
  template <class T>
  void write(const T& v) requires std::is_arithmetic_v<T> {
    need(sizeof(T));
    StoreLE<T>(out_.data() + pos_, v);
    pos_ += sizeof(T);
  }
  template <std::size_t N>
  void write(const FixedText<N>& t) {
    need(N);
    std::memcpy(out_.data() + pos_, t.bytes.data(), N);
    pos_ += N;
  }
  template <class T, std::size_t N>
  void write(const std::array<T, N>& a) {
    for (const auto& e : a) write(e);
  }
  std::span<std::uint8_t> out_;
  std::size_t pos_ = 0;
};

// Names the field that holds each offset; tests use it to say which field differs.
class FieldMapper {
 public:
  struct Field {
    std::string name;
    std::size_t offset;
    std::size_t size;
  };
  template <class T>
  void operator()(const char* name, const T&) {
    fields.push_back({name, pos_, SizeOf<T>()});
    pos_ += SizeOf<T>();
  }
  void skip(std::size_t n) { pos_ += n; }
  std::size_t offset() const { return pos_; }
  std::vector<Field> fields;

 private:
  template <class T>
  static constexpr std::size_t SizeOf() {
    if constexpr (std::is_arithmetic_v<T>) return sizeof(T);
    else return SizeOfAgg(static_cast<T*>(nullptr));
  }
  template <std::size_t N>
  static constexpr std::size_t SizeOfAgg(FixedText<N>*) { return N; }
  template <class E, std::size_t N>
  static constexpr std::size_t SizeOfAgg(std::array<E, N>*) { return N * SizeOf<E>(); }
  std::size_t pos_ = 0;
};

// Decodes a whole record of type R: R::kSize bytes, and a static
// `template <class IO, class Self> Visit(IO&, Self&)` listing its fields in order.
template <class R>
R DecodeRecord(std::span<const std::uint8_t> in) {
  if (in.size() < R::kSize) throw KvlError("record is shorter than its layout");
  R r{};
  ByteReader rd(in.first(R::kSize));
  R::Visit(rd, r);
  return r;
}

template <class R>
Bytes EncodeRecord(const R& r) {
  Bytes out(R::kSize, 0);
  ByteWriter w(out);
  R::Visit(w, r);
  return out;
}

// The records one after the other, as a file of fixed records holds them.
template <class R>
Bytes EncodeRecords(const std::vector<R>& records) {
  Bytes out;
  for (const R& r : records) {
    Bytes b = EncodeRecord(r);
    out.insert(out.end(), b.begin(), b.end());
  }
  return out;
}

template <class R>
std::vector<FieldMapper::Field> FieldMap() {
  R r{};
  FieldMapper m;
  R::Visit(m, r);
  return m.fields;
}

}  // namespace kvl
