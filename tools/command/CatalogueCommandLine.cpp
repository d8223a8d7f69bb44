#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/authoring/Uses.h>
#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <cstddef>
#include <string>
#include <string_view>
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
  static std::string directory;
  static CatalogueName name{"", ""};
  CLI::App& command =
      addCommand(app, "init", "Create a new catalogue", "init texts --name Texts --namespace myapp");
  command.add_option("directory", directory, "The catalogue's folder; created if needed")->required();
  command.add_option("--name", name.name, "The class of the accessors, such as Texts")->required();
  command.add_option("--namespace", name.nameSpace, "The namespace of that class (default: none)");
  command.callback([] {
    initCatalogue(directory, name);
    say("Wrote {}; {} explains the next steps.\n", directory, pathBelow(directory, "README.md"));
  });
}

void addGenerateCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string output;
  CLI::App& command =
      addCommand(app, "generate", "Regenerate the accessors and the English table", "generate");
  command.add_option("--output", output, "Write only the accessors, to this folder")->type_name("DIR");
  command.callback([inRoot] {
    if (!output.empty()) return generateInto(output, inRoot());
    if (const std::size_t marked = generate(inRoot()); marked > 0) say("{}.\n", markedForReview(marked));
  });
}

void addKeyCommand(CLI::App& app) {
  static std::string text;
  CLI::App& command = addCommand(app, "key", "Print the key derived from a text", "key 'Kick %{username}?'");
  command.add_option("text", text, "The English text; \\n is a line break")->required();
  command.callback([] { say("{}\n", keyOf(withLineBreaks(text))); });
}

void addAddCommand(CLI::App& app, const RootFinder& inRoot) {
  static Entry entry;
  static bool isPlain = false;
  CLI::App& command = addCommand(app, "add", "Add a text and its accessor",
                                 "add --count '%{gifts} gifts' --one '%{gifts} gift'");
  command.add_option("text", entry.text, "The English text; %{name} is a placeholder, \\n a line break")
      ->required();
  command.add_flag("--count", entry.plural, "The text has plural forms; needs at least --one");
  addForms(command, entry.forms);
  command.add_option("--key", entry.key, "The key (default: derived from the text)");
  command.add_option("--comment", entry.comment, "What translators need to know about the text");
  command.add_option("--max", entry.max, "The maximum number of characters")
      ->check(CLI::Range(0, kMostCharacters).description(""));
  command.add_flag("--plain", isPlain, kPlainHelp);
  command.callback([inRoot] {
    entry.text = withLineBreaks(entry.text);
    say("Added {}.\n", addEntry(inRoot(), entry, isPlain));
  });
}

void addChangeCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string key;
  static EntryChange change;
  CLI::App& command = addCommand(app, "change", "Change a text, but not its key", "change About 'About us'");
  command.add_option("key", key, "The text's key")->required()->type_name("KEY");
  auto* const text = command.add_option("text", change.text, "The new English text; \\n is a line break");
  command.add_flag("--same-meaning", change.keepsMeaning, "Do not mark translations for review")->needs(text);
  addForms(command, change.forms);
  command.add_flag("--count", change.plural, "Add plural forms; needs at least --one");
  command.add_option("--placeholder", change.placeholder, "Rename a placeholder in all tables")
      ->type_name("OLD=NEW")
      ->excludes(text);
  command.add_option("--comment", change.comment, "What translators need to know; '' removes the comment");
  command.add_option("--max", change.max, "The maximum number of characters; 0 removes the limit")
      ->check(CLI::Range(0, kMostCharacters).description(""));
  command.add_flag("--plain", change.isPlain, kPlainHelp);
  command.callback([&command, inRoot] {
    if (command.count_all() < 3) throw CLI::RequiredError("A new text or an option");
    if (change.text) change.text = withLineBreaks(*change.text);
    const std::size_t marked = changeEntry(inRoot(), key, change);
    say("Changed {}.{}\n", key, marked > 0 ? fmt::format(" {}.", markedForReview(marked)) : "");
  });
}

void addRenameCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string key;
  static std::string newKey;
  CLI::App& command =
      addCommand(app, "rename", "Change the key of a text in all tables", "rename About About_the_app");
  command.add_option("key", key, "The text's key")->required()->type_name("KEY");
  command.add_option("new_key", newKey, "The new key")->required()->type_name("NEW_KEY");
  command.callback([inRoot] {
    renameEntry(inRoot(), key, newKey);
    say("Renamed {} to {}.\n", key, newKey);
  });
}

void addRemoveCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string key;
  CLI::App& command = addCommand(app, "remove", "Remove a text and its translations", "remove Out_of_date");
  command.add_option("key", key, "The text's key")->required()->type_name("KEY");
  command.callback([inRoot] {
    removeEntry(inRoot(), key);
    say("Removed {}.\n", key);
  });
}

void addUnusedCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::vector<std::string> directories;
  CLI::App& command = addCommand(app, "unused", "List the texts that no source file uses", "unused src");
  command.add_option("directories", directories, "The program's source folders")
      ->required()
      ->type_name("DIR");
  command.callback([inRoot] {
    const std::string root = inRoot();
    const Catalogue catalogue = Catalogue::read(root);
    const Uses uses(directories, catalogue);
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

}  // namespace

void addCatalogueCommands(CLI::App& app, const RootFinder& inRoot, const RootFinder& aloneInRoot) {
  addInitCommand(app);
  addGenerateCommand(app, aloneInRoot);
  addKeyCommand(app);
  addAddCommand(app, aloneInRoot);
  addChangeCommand(app, aloneInRoot);
  addRenameCommand(app, aloneInRoot);
  addRemoveCommand(app, aloneInRoot);
  addUnusedCommand(app, inRoot);
}

}  // namespace zk::tools
