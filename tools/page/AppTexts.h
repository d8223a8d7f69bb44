#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/tools/project/Catalogue.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

/// The texts for an entry's placeholders, by name, in the order of its English text.
using Values = std::vector<std::pair<std::string, std::string>>;

/// What an app shows whose resources are those of a project: the texts as the module's own lookup and
/// substitution give them, whatever the process's own resources and language are.
class AppTexts {
 public:
  /// The resources of the project at `root`, as the process first saw them. Throws `CommandFailed` when there
  /// is no Base.lproj, without which the module does not run.
  explicit AppTexts(const std::string& root);

  /// The text of `entry` in `language`, "Base" or a code, before its placeholders are filled in.
  [[nodiscard]] std::string text(std::string_view language, const Entry& entry,
                                 std::optional<std::int64_t> count) const;
  /// The same, finished.
  [[nodiscard]] std::string finishedText(std::string_view language, const Entry& entry,
                                         std::optional<std::int64_t> count, const Values& values) const;

 private:
  const Bundle* resources_;
};

}  // namespace zk::tools
