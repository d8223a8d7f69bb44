#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/authoring/Initialisation.h>
#include <ZKStrings/tools/authoring/Uses.h>
#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <charconv>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr int kMostCharacters = 1'000'000;

constexpr const char* kPlainHelp = "Treat %s, {name} and the like as plain text";

/// `text` with line breaks for each \n, which shells pass on unchanged.
std::string withLineBreaks(std::string_view text) {
  return replaceAll(text, "\\n", "\n");
}

/// "Marked 2 translations for review".
std::string markedForReview(std::size_t count) {
  return fmt::format("Marked {} translation{} for review", count, count == 1 ? "" : "s");
}

/// Adds options for the plural forms of a text: --zero to --many.
void addForms(CLI::App& command, PluralForms& forms) {
  for (std::size_t i = 0; i < forms.size(); ++i) {
    const std::string name(kPluralForms[i].suffix.substr(1));
    command
        .add_option_function<std::string>(
            "--" + name, [&forms, i](const std::string& text) { forms[i] = withLineBreaks(text); },
            "The English form for " + std::string(kPluralForms[i].counts))
        ->type_name("TEXT");
  }
}

void addInitCommand(CLI::App& app) {
  struct Arguments {
    std::string directory;
    CatalogueName name{"", ""};
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command = app.add_subcommand("init", "Create a new catalogue");
  command->add_option("directory", arguments->directory, "The catalogue's folder; created if needed")
      ->required();
  command->add_option("--name", arguments->name.name, "The class of the accessors, such as Texts")
      ->required();
  command->add_option("--namespace", arguments->name.nameSpace,
                      "The namespace of that class (default: none)");
  command->footer("Example: zkstrings init texts --name Texts --namespace myapp");
  command->callback([arguments] {
    initCatalogue(arguments->directory, arguments->name);
    const std::string& directory = arguments->directory;
    say("Wrote {}; {} explains the next steps.\n", directory,
        (std::filesystem::path(directory) / "README.md").string());
  });
}

void addGenerateCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto output = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("generate", "Regenerate the accessors and the English table");
  command->add_option("--output", *output, "Write only the accessors, to this folder")->type_name("DIR");
  command->footer("Example: zkstrings generate");
  command->callback([inRoot, output] {
    if (!output->empty()) return generateInto(*output, inRoot());
    if (const std::size_t marked = generate(inRoot()); marked > 0) say("{}.\n", markedForReview(marked));
  });
}

void addKeyCommand(CLI::App& app) {
  const auto text = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("key", "Print the key derived from a text");
  command->add_option("text", *text, "The English text; \\n is a line break")->required();
  command->footer("Example: zkstrings key 'Kick %{username}?'");
  command->callback([text] { say("{}\n", keyOf(withLineBreaks(*text))); });
}

void addAddCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto entry = std::make_shared<Entry>();
  const auto isPlain = std::make_shared<bool>(false);
  auto* const command = app.add_subcommand("add", "Add a text and its accessor");
  command->add_option("text", entry->text, "The English text; %{name} is a placeholder, \\n a line break")
      ->required();
  command->add_flag("--count", entry->plural, "The text has plural forms; needs at least --one");
  addForms(*command, entry->forms);
  command->add_option("--key", entry->key, "The key (default: derived from the text)");
  command->add_option("--comment", entry->comment, "What translators need to know about the text");
  command->add_option("--max", entry->max, "The maximum number of characters")
      ->check(isNumberUpTo(kMostCharacters));
  command->add_flag("--plain", *isPlain, kPlainHelp);
  command->footer("Example: zkstrings add --count '%{gifts} gifts' --one '%{gifts} gift'");
  command->callback([entry, isPlain, inRoot] {
    entry->text = withLineBreaks(entry->text);
    say("Added {}.\n", addEntry(inRoot(), *entry, *isPlain));
  });
}

void addChangeCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto key = std::make_shared<std::string>();
  const auto change = std::make_shared<EntryChange>();
  auto* const command = app.add_subcommand("change", "Change a text, but not its key");
  command->add_option("key", *key, "The text's key")->required()->type_name("KEY");
  auto* const text = command->add_option("text", change->text, "The new English text; \\n is a line break");
  command->add_flag("--same-meaning", change->keepsMeaning, "Do not mark translations for review")
      ->needs(text);
  addForms(*command, change->forms);
  command->add_flag("--count", change->plural, "Add plural forms; needs at least --one");
  command->add_option("--placeholder", change->placeholder, "Rename a placeholder in all tables")
      ->type_name("OLD=NEW")
      ->excludes(text);
  command->add_option("--comment", change->comment, "What translators need to know; '' removes the comment");
  command->add_option("--max", change->max, "The maximum number of characters; 0 removes the limit")
      ->check(isNumberUpTo(kMostCharacters));
  command->add_flag("--plain", change->isPlain, kPlainHelp);
  command->footer("Example: zkstrings change About 'About us'");
  command->callback([key, change, command, inRoot] {
    if (command->count_all() < 3) throw CLI::RequiredError("A new text or an option");
    if (change->text) change->text = withLineBreaks(*change->text);
    const std::size_t marked = changeEntry(inRoot(), *key, *change);
    say("Changed {}.{}\n", *key, marked > 0 ? fmt::format(" {}.", markedForReview(marked)) : "");
  });
}

void addRenameCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto keys = std::make_shared<std::pair<std::string, std::string>>();
  auto* const command = app.add_subcommand("rename", "Change the key of a text in all tables");
  command->add_option("key", keys->first, "The text's key")->required()->type_name("KEY");
  command->add_option("new_key", keys->second, "The new key")->required()->type_name("NEW_KEY");
  command->footer("Example: zkstrings rename About About_the_app");
  command->callback([keys, inRoot] {
    renameEntry(inRoot(), keys->first, keys->second);
    say("Renamed {} to {}.\n", keys->first, keys->second);
  });
}

void addRemoveCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto key = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("remove", "Remove a text and its translations");
  command->add_option("key", *key, "The text's key")->required()->type_name("KEY");
  command->footer("Example: zkstrings remove Out_of_date");
  command->callback([key, inRoot] {
    removeEntry(inRoot(), *key);
    say("Removed {}.\n", *key);
  });
}

}  // namespace

CLI::Validator isNumberUpTo(int most) {
  const auto refusal = [most](const std::string& value) -> std::string {
    int number = -1;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    const bool isNumber = error == std::errc() && end == value.data() + value.size();
    if (isNumber && number >= 0 && number <= most) return "";
    return fmt::format("\"{}\" is not a whole number from 0 to {}", value, most);
  };
  return {refusal, ""};
}

void addSourcesOption(CLI::App& command, std::vector<std::string>& directories) {
  command
      .add_option("--sources", directories,
                  "Show where the sources in this folder use each text; can be repeated")
      ->allow_extra_args(false)
      ->type_name("DIR");
}

void addCatalogueCommands(CLI::App& app, const RootFinder& inRoot) {
  addInitCommand(app);
  addGenerateCommand(app, inRoot);
  addKeyCommand(app);
  addAddCommand(app, inRoot);
  addChangeCommand(app, inRoot);
  addRenameCommand(app, inRoot);
  addRemoveCommand(app, inRoot);
}

void addUnusedCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto directories = std::make_shared<std::vector<std::string>>();
  auto* const command = app.add_subcommand("unused", "List the texts that no source file uses");
  command->add_option("directories", *directories, "The folders of the program's sources")
      ->required()
      ->type_name("DIR");
  command->footer("Example: zkstrings unused src");
  command->callback([directories, inRoot] {
    const std::string root = inRoot();
    const Catalogue catalogue = Catalogue::read(root);
    const Uses uses(*directories, catalogue);
    Diagnostics unused;
    for (const Entry& entry : catalogue.entries()) {
      if (uses.of(entry).empty())
        unused.push_back(
            {Severity::note, Catalogue::kFile, entry.line, 1, "",
             fmt::format("no source file calls {}", accessorCall(entry, catalogue.settings().name))});
    }
    print(stdout, fromWorkingDirectory(unused, root));
  });
}

}  // namespace zk::tools
