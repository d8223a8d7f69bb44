#include <ZKStrings/tools/exchange/PO.h>
#include <ZKStrings/tools/exchange/POReference.h>
#include <ZKStrings/tools/exchange/POText.h>
#include <ZKStrings/tools/support/Position.h>

#include <algorithm>
#include <string_view>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// A keyword and its text; one of several lines stands on lines of its own.
std::string statement(std::string_view keyword, std::string_view text) {
  const std::size_t lineBreak = text.find('\n');
  if (lineBreak == std::string_view::npos || lineBreak + 1 == text.size())
    return fmt::format("{} {}\n", keyword, quotedForPO(text));
  std::string lines = fmt::format("{} \"\"\n", keyword);
  while (!text.empty()) {
    const std::string_view line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
    lines += quotedForPO(line) + "\n";
    text.remove_prefix(line.size());
  }
  return lines;
}

std::string entryOf(const TranslationUnit& unit) {
  std::string lines = "\n";
  for (const std::string& note : unit.notes) {
    for (const std::string_view line : linesOf(note)) lines += fmt::format("#. {}\n", line);
  }
  // Programs that drop the context keep the reference.
  lines += fmt::format("#: {}\n", referenceTo(unit.key));
  if (unit.state == TranslationState::needsReview) lines += "#, fuzzy\n";
  return lines + statement("msgctxt", unit.key) + statement("msgid", unit.source) +
         statement("msgstr", unit.target);
}

}  // namespace

std::string toPO(const Translations& translations) {
  std::string file = "msgid \"\"\nmsgstr \"\"\n";
  file += fmt::format("\"Project-Id-Version: {}\\n\"\n", translations.catalogue);
  file += fmt::format("\"Language: {}\\n\"\n", translations.language);
  file +=
      "\"MIME-Version: 1.0\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
      "\"Content-Transfer-Encoding: 8bit\\n\"\n";
  for (const TranslationUnit& unit : translations.units) file += entryOf(unit);
  return file;
}

}  // namespace zk::tools
