#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::uintmax_t kLargest = 32U << 20U;

}  // namespace

std::string notesWithPrevious(const TranslationUnit& unit) {
  if (unit.previousSource.empty()) return unit.notes;
  return fmt::format("The English text was \"{}\".\n{}", unit.previousSource, unit.notes);
}

ExchangeFormat formatNamedBy(std::string_view path) {
  const std::string ending = lowerCased(nativePath(std::string(path)).extension().string());
  if (ending == ".po" || ending == ".pot") return ExchangeFormat::po;
  if (ending == ".csv" || ending == ".tsv") return ExchangeFormat::csv;
  return ExchangeFormat::xliff12;
}

std::string written(const Translations& translations, ExchangeFormat format) {
  if (format == ExchangeFormat::po) return toPO(translations);
  if (format == ExchangeFormat::csv) return toCSV(translations);
  return format == ExchangeFormat::xliff20 ? toXLIFF20(translations) : toXLIFF12(translations);
}

Translations readTranslations(const std::string& path) {
  std::error_code failure;
  if (const std::uintmax_t size = std::filesystem::file_size(nativePath(path), failure);
      !failure && size > kLargest)
    fail(path, "the file is larger than 32 MiB; no export is that large");
  if (path.ends_with(".strings"))
    fail(path, "string tables cannot be imported; edit resources/xx.lproj/Localizable.strings in place");
  const std::optional<std::string> text = decodedText(readFile("", path));
  if (!text) fail(path, "the file is not UTF-8 text; save it as UTF-8");
  const std::size_t start = text->find_first_not_of(" \t\r\n");
  if (start != std::string::npos && (*text)[start] == '<') return fromXLIFF(*text, path);
  const ExchangeFormat format = formatNamedBy(path);
  if (format == ExchangeFormat::xliff12)
    fail(path,
         "the file is not XLIFF, and its name does not end in .po, .csv or .tsv; export it in one of "
         "these formats");
  return format == ExchangeFormat::po ? fromPO(*text, path) : fromCSV(*text, path);
}

}  // namespace zk::tools
