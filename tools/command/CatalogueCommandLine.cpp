#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

/// What the shell passes as \n inside quotes is meant as a line break.
std::string withLineBreaks(std::string_view text) {
  return replaceAll(text, "\\n", "\n");
}

/// Lets the user give the plural forms of a text: --zero to --many.
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

void addGenerateCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto output = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("generate", "Regenerate the accessors");
  command->add_option("--output", *output, "The folder to write to (default: catalogue/)")->type_name("DIR");
  command->footer("Example: zkstrings generate");
  command->callback([inRoot, output] {
    if (output->empty()) {
      generate(inRoot());
    } else {
      generateInto(*output, inRoot());
    }
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
  const auto entry = std::make_shared<NewEntry>();
  auto* const command = app.add_subcommand("add", "Add a text and its accessor");
  command->add_option("text", entry->text, "The English text; %{name}, \\n for a line break")->required();
  command->add_flag("--count", entry->plural, "The text has plural forms; give at least --one");
  addForms(*command, entry->forms);
  command->add_option("--key", entry->key, "The key (default: derived from the text)");
  command->footer("Example: zkstrings add --count '%{gifts} gifts' --one '%{gifts} gift'");
  command->callback([entry, inRoot] {
    entry->text = withLineBreaks(entry->text);
    say("Added {}.\n", addEntry(inRoot(), *entry));
  });
}

void addChangeCommand(CLI::App& app, const RootFinder& inRoot) {
  struct Arguments {
    std::string key;
    std::string text;
    PluralForms forms;
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command = app.add_subcommand("change", "Change the English of a text, but not its key");
  command->add_option("key", arguments->key, "The text's key")->required()->type_name("KEY");
  command->add_option("text", arguments->text, "The new English text; \\n is a line break")->required();
  addForms(*command, arguments->forms);
  command->footer("Example: zkstrings change About 'About us'");
  command->callback([arguments, inRoot] {
    const std::size_t marked =
        changeEntry(inRoot(), arguments->key, withLineBreaks(arguments->text), arguments->forms);
    say("Changed {}; {} translation{} to review.\n", arguments->key, marked, marked == 1 ? "" : "s");
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

void addCatalogueCommands(CLI::App& app, const RootFinder& inRoot) {
  addGenerateCommand(app, inRoot);
  addKeyCommand(app);
  addAddCommand(app, inRoot);
  addChangeCommand(app, inRoot);
  addRemoveCommand(app, inRoot);
}

}  // namespace zk::tools
