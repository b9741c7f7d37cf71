#include "util/record_file.h"

#include <fmt/format.h>
#include <unistd.h>

namespace kvl {

RecordFile::RecordFile(const fs::path& path, std::size_t recordLength) : path_(path), len_(recordLength) {
  if (!fs::exists(path_)) std::ofstream(path_, std::ios::binary);
  f_.open(path_, std::ios::in | std::ios::out | std::ios::binary);
  if (!f_) throw KvlError(fmt::format("cannot open {}", path_.string()));
}

std::size_t RecordFile::count() {
  f_.clear();
  f_.seekg(0, std::ios::end);
  return static_cast<std::size_t>(f_.tellg()) / len_;
}

Bytes RecordFile::get(std::size_t n) { return getRun(n, 1); }

void RecordFile::put(std::size_t n, std::span<const std::uint8_t> bytes) {
  Bytes rec(len_, 0);
  std::copy_n(bytes.begin(), std::min(len_, bytes.size()), rec.begin());
  putRun(n, rec);
}

Bytes RecordFile::getRun(std::size_t n, std::size_t count) {
  if (n == 0) throw KvlError(fmt::format("record 0 asked of {}", path_.string()));
  Bytes out(len_ * count, 0);
  f_.clear();
  f_.seekg(static_cast<std::streamoff>((n - 1) * len_));
  f_.read(reinterpret_cast<char*>(out.data()), static_cast<std::streamsize>(out.size()));
  f_.clear();
  return out;
}

void RecordFile::putRun(std::size_t n, std::span<const std::uint8_t> bytes) {
  if (n == 0) throw KvlError(fmt::format("record 0 written to {}", path_.string()));
  f_.clear();
  f_.seekp(0, std::ios::end);
  auto end = static_cast<std::size_t>(f_.tellp());
  std::size_t at = (n - 1) * len_;
  if (at > end) {
    Bytes gap(at - end, 0);
    f_.write(reinterpret_cast<const char*>(gap.data()), static_cast<std::streamsize>(gap.size()));
  }
  f_.seekp(static_cast<std::streamoff>(at));
  f_.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  f_.flush();
  if (!f_) throw KvlError(fmt::format("cannot write record {} of {}", n, path_.string()));
}

Bytes ReadFileBytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw KvlError(fmt::format("cannot read {}", path.string()));
  return Bytes(std::istreambuf_iterator<char>(in), {});
}

void WriteFileAtomic(const fs::path& path, std::span<const std::uint8_t> bytes) {
  fs::path tmp = path;
  tmp += fmt::format(".kvltmp{}", ::getpid());
  {
    std::ofstream out(tmp, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.flush();
    if (!out) {
      std::error_code ec;
      fs::remove(tmp, ec);
      throw KvlError(fmt::format("cannot write {}", path.string()));
    }
  }
  std::error_code ec;
  fs::rename(tmp, path, ec);
  if (ec) {
    fs::remove(tmp, ec);
    throw KvlError(fmt::format("cannot replace {}: {}", path.string(), ec.message()));
  }
}

void CopyFileAtomic(const fs::path& from, const fs::path& to) {
  WriteFileAtomic(to, ReadFileBytes(from));
}

void RemoveIfExists(const fs::path& path) {
  std::error_code ec;
  fs::remove(path, ec);
  if (ec && fs::exists(path)) throw KvlError(fmt::format("cannot delete {}: {}", path.string(), ec.message()));
}

}  // namespace kvl
