#pragma once

#include <ZKStrings/platform/system/File.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace zk::testing {

/// A directory that exists as long as the object.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    static std::random_device random;
    const std::filesystem::path above = std::filesystem::temp_directory_path();
    do {
      path_ = (above / ("zkstrings-" + std::to_string(random()))).generic_string();
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() { std::filesystem::remove_all(path_); }

  [[nodiscard]] const std::string& path() const { return path_; }

  /// Writes a file, creates its directories, and returns its full path.
  std::string write(const std::string& name, std::string_view bytes) const {
    const std::string path = path_ + "/" + name;
    const std::filesystem::path file = nativePath(path);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return path;
  }

  /// The number of files in the directory and those below it.
  [[nodiscard]] std::size_t files() const {
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_))
      files += entry.is_regular_file() ? 1U : 0U;
    return files;
  }

 private:
  std::string path_;
};

}  // namespace zk::testing
