#include <ZKStrings/tools/exchange/CSV.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/exchange/PO.h>
#include <ZKStrings/tools/exchange/XLIFF.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::uintmax_t kLargest = 32U << 20U;

bool beginsAsXML(std::string_view bytes) {
  constexpr std::string_view kMarksAndBlanks("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n", 10);
  const std::size_t first = bytes.find_first_not_of(kMarksAndBlanks);
  return first != std::string_view::npos && bytes[first] == '<';
}

void refuseWhatNoXMLHolds(const Translations& translations) {
  for (const TranslationUnit& unit : translations.units) {
    if (fitsXML(unit.key) && fitsXML(unit.source) && fitsXML(unit.target)) continue;
    fail(tablePath(translations.language),
         fmt::format("the text of \"{}\" has a control character, which XLIFF cannot hold; "
                     "remove it, or export with --format po",
                     escaped(unit.key)));
  }
}

}  // namespace

ExchangeFormat formatNamedBy(std::string_view path) {
  const std::string ending = lowerCased(std::filesystem::path(path).extension().string());
  if (ending == ".po" || ending == ".pot") return ExchangeFormat::po;
  if (ending == ".csv" || ending == ".tsv") return ExchangeFormat::csv;
  return ExchangeFormat::xliff12;
}

std::string written(const Translations& translations, ExchangeFormat format) {
  if (format == ExchangeFormat::po) return toPO(translations);
  if (format == ExchangeFormat::csv) return toCSV(translations);
  refuseWhatNoXMLHolds(translations);
  return format == ExchangeFormat::xliff20 ? toXLIFF20(translations) : toXLIFF12(translations);
}

Translations readTranslations(const std::string& path) {
  std::error_code failure;
  if (const std::uintmax_t size = std::filesystem::file_size(path, failure); !failure && size > kLargest) {
    fail(path, "the file is larger than 32 MiB, which no export is; import another");
  }
  if (path.ends_with(".strings"))
    fail(path, "string tables are not imported; edit resources/xx.lproj/Localizable.strings in place");
  std::string bytes = readFile("", path);
  const ExchangeFormat format = formatNamedBy(path);
  if (beginsAsXML(bytes)) return fromXLIFF(std::move(bytes), path);
  if (format == ExchangeFormat::xliff12)
    fail(path,
         "the file is not XLIFF, and its name does not end in .po, .csv or .tsv; export it in one "
         "of these formats");
  return format == ExchangeFormat::po ? fromPO(std::move(bytes), path) : fromCSV(std::move(bytes), path);
}

}  // namespace zk::tools
