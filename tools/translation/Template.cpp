#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/translation/Template.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

std::string explanationOf(const EnglishText& english) {
  std::string about = fmt::format("/* {} {}", kExplanation, quotedForComment(english.text));
  const std::vector<std::string_view> names = english.placeholders();
  if (!names.empty()) about += fmt::format("; placeholders: %{{{}}}", fmt::join(names, "}, %{"));
  return about + " */";
}

std::string contextOf(const EnglishText& english) {
  const std::string context = english.entry->context();
  return context.empty() ? "" : fmt::format("/* {} {} */", kContext, context);
}

std::string untranslatedEntry(const EnglishText& english) {
  const std::string mark =
      english.settings->isSameEverywhere(english.text) ? "" : markFor(TranslationState::untranslated) + "\n";
  const std::string context = contextOf(english);
  return explanationOf(english) + "\n" + context + (context.empty() ? "" : "\n") + mark +
         tableLine(english.key, english.text);
}

std::size_t writeTemplate(const std::string& root, const std::string& language) {
  if (language.empty()) throw std::invalid_argument("the language is empty; give its ISO 639-1 code");
  const std::string path = tablePath(language);
  if (const std::string reason = whyNeverChosen(language); !reason.empty())
    throw std::invalid_argument(reason);
  std::error_code failure;
  if (std::filesystem::exists(std::filesystem::path(root) / path, failure)) {
    fail(path, "the table exists already, and its texts would be lost; remove it first to start again");
  }
  const Catalogue catalogue = Catalogue::read(root);
  const EnglishTexts english(catalogue, Table::readWellFormed(root, kBase));
  std::string table = fmt::format(
      "/* Language {}. Translate the texts after the equals signs; keep keys and placeholders. */\n",
      language);
  for (const EnglishText& text : english.all()) table += "\n" + untranslatedEntry(text);
  writeFile(root, path, table);
  return english.all().size();
}

}  // namespace zk::tools
