#pragma once

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/support/Files.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace zk::testing {

/// A copy of small-project/ in a temporary directory, which is removed with the object.
class TemporaryProject {
 public:
  TemporaryProject() {
    std::filesystem::copy(ZK_PROJECT_ROOT "/tests/tools/small-project", root(),
                          std::filesystem::copy_options::recursive);
  }

  [[nodiscard]] const std::string& root() const { return directory_.path(); }

  static std::string table(const std::string& language) {
    return "resources/" + language + ".lproj/Localizable.strings";
  }

  void write(const std::string& path, std::string_view bytes) const { directory_.write(path, bytes); }

  [[nodiscard]] std::string read(const std::string& path) const { return tools::readFile(root(), path); }

 private:
  TemporaryDirectory directory_;
};

}  // namespace zk::testing
