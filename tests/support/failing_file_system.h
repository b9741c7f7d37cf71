#pragma once
// A file system that works until its N-th write, rename or removal, which fails
// as if the program were killed there: nothing of that step happens.
#include "util/error.h"
#include "util/file_system.h"

namespace kvl::test {

class FailingFileSystem final : public FileSystem {
 public:
  explicit FailingFileSystem(int failAt) : failAt_(failAt) {}

  void writeFile(const fs::path& path, std::span<const std::uint8_t> bytes) override {
    step();
    RealFileSystem().writeFile(path, bytes);
  }
  void rename(const fs::path& from, const fs::path& to) override {
    step();
    RealFileSystem().rename(from, to);
  }
  void remove(const fs::path& path) override {
    step();
    RealFileSystem().remove(path);
  }
  void syncFolder(const fs::path& dir) override { RealFileSystem().syncFolder(dir); }

 private:
  void step() {
    if (++steps_ == failAt_) throw KvlError("injected fault");
  }
  int failAt_;
  int steps_ = 0;
};

}  // namespace kvl::test
