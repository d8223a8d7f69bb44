#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/exchange/CSV.h>
#include <ZKStrings/tools/exchange/CSVGuard.h>

#include <string_view>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

std::string cell(std::string_view text) {
  std::string content = guarded(text);
  replaceOccurrences(content, "\"", "\"\"");
  return fmt::format("\"{}\"", content);
}

}  // namespace

std::string toCSV(const Translations& translations) {
  std::string table(kByteOrderMark);
  table += fmt::format("key,en,{},state,notes\r\n", translations.language);
  for (const TranslationUnit& unit : translations.units) {
    table += fmt::format("{},{},{},{},{}\r\n", cell(unit.key), cell(unit.source), cell(unit.target),
                         nameOf(unit.state), cell(fmt::format("{}", fmt::join(unit.notes, "\n"))));
  }
  return table;
}

}  // namespace zk::tools
