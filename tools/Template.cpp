#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/Template.h>

#include <filesystem>
#include <system_error>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// `text` as a comment on one line, which no text ends early.
std::string comment(std::string text) {
  replaceOccurrences(text, "*/", "* /");
  return fmt::format("/* {} */\n", text);
}

std::string entryFor(const EnglishText& english) {
  std::string about = fmt::format("English: \"{}\"", escaped(english.text));
  const std::vector<std::string_view> names = english.placeholders();
  if (!names.empty()) about += fmt::format("; placeholders: %{{{}}}", fmt::join(names, "}, %{"));
  return "\n" + comment(std::move(about)) + tableLine(english.key, english.text);
}

[[noreturn]] void refuse(const std::string& path, std::string message) {
  throw CommandFailed{{{Severity::error, path, 1, 1, "", std::move(message)}}};
}

}  // namespace

std::string templateFor(std::string_view language, const EnglishTexts& english) {
  std::string table = comment(fmt::format(
      "Language {}. Translate the texts behind the equals signs; keep keys and placeholders.", language));
  for (const EnglishText& text : english.all()) table += entryFor(text);
  return table;
}

std::size_t writeTemplate(const std::string& root, const std::string& language) {
  const std::string path = tablePath(language);
  std::string reason = whyNeverChosen(language);
  if (!reason.empty()) refuse(path, std::move(reason));
  std::error_code failure;
  if (std::filesystem::exists(std::filesystem::path(root) / path, failure)) {
    refuse(path, "the table is there already, and its texts would be lost; remove it first to begin anew");
  }
  const Catalogue catalogue = Catalogue::read(root);
  Table base = Table::read(root, kBase);
  if (!base.faults.empty()) throw CommandFailed{std::move(base.faults)};
  const EnglishTexts english(catalogue, base);
  writeFile(root, path, templateFor(language, english));
  return english.all().size();
}

}  // namespace zk::tools
