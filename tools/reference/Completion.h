#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace zk::tools {

/// A word that may stand at the end of a command line.
struct Candidate {
  std::string word;
  std::string explanation;  ///< one line; empty where the word explains itself
};

/// Stands for the names of files and directories, which the shell knows best.
inline constexpr std::string_view kFileNames = ":files";

/// The words that an argument takes whose type is called `type` in the help: "LANGUAGE", "RULE", "KEY".
using WordsOfType = std::function<std::vector<std::string>(std::string_view type)>;

/// What the last of `words`, perhaps empty, may become as an argument of `app`, in view of those before it: the
/// names of subcommands and options, and the words that an option or a subcommand takes. Words of the
/// form --option=value may be whole or, as bash hands them over, in three parts.
[[nodiscard]] std::vector<Candidate> candidatesFor(const CLI::App& app, const std::vector<std::string>& words,
                                                   const WordsOfType& wordsOfType);

}  // namespace zk::tools
