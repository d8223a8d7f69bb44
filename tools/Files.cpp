#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/Fault.h>
#include <ZKStrings/tools/Files.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const std::string& path, std::string message) {
  throw CommandFailed{{{Severity::error, path, 1, 1, "", std::move(message)}}};
}

}  // namespace

std::string findRoot() {
  for (fs::path directory = fs::current_path();; directory = directory.parent_path()) {
    std::error_code failure;
    if (fs::exists(directory / "catalogue/entries.json", failure)) return directory.string();
    if (directory == directory.parent_path()) break;
  }
  fail("catalogue/entries.json",
       "not found from the working directory upward; run the command inside the project, or name it with "
       "--root");
}

std::string readFile(const std::string& root, const std::string& path) {
  std::optional<std::string> bytes = contentsOfFile(root + "/" + path);
  if (!bytes) fail(path, "the file cannot be read; see that it exists, is a file and may be read");
  return *std::move(bytes);
}

void writeFile(const std::string& root, const std::string& path, std::string_view bytes) {
  const fs::path target = fs::path(root) / path;
  const fs::path beside = target.string() + ".new";
  std::error_code failure;
  fs::create_directories(target.parent_path(), failure);
  std::ofstream file(beside, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file) fs::rename(beside, target, failure);
  if (!file || failure)
    fail(path, "the file cannot be written; see that its directory may be written and has room");
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    lines.push_back(line);
  }
  return lines;
}

}  // namespace zk::tools
