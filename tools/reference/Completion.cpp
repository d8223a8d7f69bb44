#include <ZKStrings/tools/reference/Completion.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

namespace zk::tools {

namespace {

bool startsWithDash(std::string_view word) {
  return word.starts_with('-');
}

bool takesValue(const CLI::Option& option) {
  return option.get_items_expected_max() > 0;
}

/// Where a command line has come to.
class CommandLine {
 public:
  explicit CommandLine(const CLI::App& app) : app_(app), command_(&app) {}

  /// Goes on behind `word`.
  void take(const std::string& word) {
    if (word == "=") return;
    if (awaitsValue_) {
      awaitsValue_ = nullptr;
      return;
    }
    if (word == "--") {
      onlyArguments_ = true;
    } else if (startsWithDash(word) && !onlyArguments_) {
      const CLI::Option* const option = optionNamed(word);
      if (option && takesValue(*option)) awaitsValue_ = option;
    } else if (const CLI::App* const subcommand = subcommandNamed(word)) {
      command_ = subcommand;
    } else {
      ++arguments_;
    }
  }

  [[nodiscard]] std::vector<Candidate> candidates(std::string_view begun,
                                                  const WordsOfType& wordsOfType) const {
    if (awaitsValue_) return valuesOf(*awaitsValue_, wordsOfType);
    if (startsWithDash(begun) && !onlyArguments_) return optionsFor(begun, wordsOfType);
    if (command_ == &app_) return arguments_ == 0 ? subcommands() : std::vector<Candidate>();
    const CLI::Option* const argument = nextArgument();
    return argument ? valuesOf(*argument, wordsOfType) : std::vector<Candidate>();
  }

 private:
  /// The options of the subcommand and of the command itself, which may stand behind it.
  [[nodiscard]] std::vector<const CLI::Option*> options() const {
    const auto isNamed = [](const CLI::Option* option) { return option->nonpositional(); };
    std::vector<const CLI::Option*> all = command_->get_options(isNamed);
    if (command_ == &app_) return all;
    for (const CLI::Option* const option : app_.get_options(isNamed)) {
      if (option != app_.get_help_ptr() && option != app_.get_version_ptr()) all.push_back(option);
    }
    return all;
  }

  [[nodiscard]] const CLI::Option* optionNamed(const std::string& name) const {
    const std::vector<const CLI::Option*> all = options();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const CLI::Option* option) { return option->check_name(name); });
    return found == all.end() ? nullptr : *found;
  }

  [[nodiscard]] const CLI::App* subcommandNamed(const std::string& name) const {
    if (command_ != &app_ || onlyArguments_) return nullptr;
    const std::vector<const CLI::App*> all = app_.get_subcommands({});
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const CLI::App* command) { return command->get_name() == name; });
    return found == all.end() ? nullptr : *found;
  }

  /// The argument that the next word would be; the last of a subcommand may take any number of words.
  [[nodiscard]] const CLI::Option* nextArgument() const {
    const std::vector<const CLI::Option*> all =
        command_->get_options([](const CLI::Option* option) { return option->get_positional(); });
    if (arguments_ < all.size()) return all[arguments_];
    return !all.empty() && all.back()->get_items_expected_max() > 1 ? all.back() : nullptr;
  }

  [[nodiscard]] std::vector<Candidate> subcommands() const {
    std::vector<Candidate> all;
    for (const CLI::App* const command : app_.get_subcommands({}))
      all.push_back({command->get_name(), command->get_description()});
    return all;
  }

  /// Names of options; for "--option=", the same with each of its values.
  [[nodiscard]] std::vector<Candidate> optionsFor(std::string_view begun,
                                                  const WordsOfType& wordsOfType) const {
    std::vector<Candidate> all;
    if (const std::size_t equals = begun.find('='); equals != std::string_view::npos) {
      const CLI::Option* const option = optionNamed(std::string(begun.substr(0, equals)));
      if (option) all = valuesOf(*option, wordsOfType);
      for (Candidate& candidate : all) candidate.word.insert(0, begun.substr(0, equals + 1));
      return all;
    }
    for (const CLI::Option* const option : options()) {
      for (const std::string& name : option->get_lnames())
        all.push_back({"--" + name, option->get_description()});
    }
    return all;
  }

  [[nodiscard]] static std::vector<Candidate> valuesOf(const CLI::Option& option,
                                                       const WordsOfType& wordsOfType) {
    const std::string type = option.get_type_name();
    if (type == "DIR" || type == "FILE") return {{std::string(kFileNames), ""}};
    std::vector<Candidate> all;
    if (const std::size_t open = type.find('{'); open != std::string::npos) {
      std::istringstream values(type.substr(open + 1, type.find('}') - open - 1));
      for (std::string value; std::getline(values, value, ',');) all.push_back({value, ""});
      return all;
    }
    for (std::string& word : wordsOfType(type)) all.push_back({std::move(word), ""});
    return all;
  }

  const CLI::App& app_;
  const CLI::App* command_;
  const CLI::Option* awaitsValue_ = nullptr;
  std::size_t arguments_ = 0;
  bool onlyArguments_ = false;
};

}  // namespace

std::vector<Candidate> candidatesFor(const CLI::App& app, const std::vector<std::string>& words,
                                     const WordsOfType& wordsOfType) {
  if (words.empty()) return {};
  CommandLine line(app);
  for (auto word = words.begin(); word != words.end() - 1; ++word) line.take(*word);
  const std::string_view begun = words.back() == "=" ? std::string_view() : words.back();
  std::vector<Candidate> all = line.candidates(begun, wordsOfType);
  std::erase_if(all, [&](const Candidate& candidate) {
    return candidate.word != kFileNames && !candidate.word.starts_with(begun);
  });
  return all;
}

}  // namespace zk::tools
