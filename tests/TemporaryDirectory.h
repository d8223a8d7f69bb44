#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace zk::testing {

/// A directory that is there as long as the object.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "zkstrings-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() { std::filesystem::remove_all(path_); }

  [[nodiscard]] const std::string& path() const { return path_; }

  /// Writes a file, with the directories that lead to it, and gives its full path.
  std::string write(const std::string& name, std::string_view bytes) const {
    const std::filesystem::path file = std::filesystem::path(path_) / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
  }

 private:
  std::string path_;
};

}  // namespace zk::testing
