#include <ZKStrings/tools/Characters.h>
#include <ZKStrings/tools/Fault.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/exchange/CSV.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/exchange/PO.h>
#include <ZKStrings/tools/exchange/XLIFF.h>

#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

namespace zk::tools {

namespace {

constexpr std::uintmax_t kLargest = 32U << 20U;

bool beginsAsXML(std::string_view bytes) {
  constexpr std::string_view kMarksAndBlanks("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n", 10);
  const std::size_t first = bytes.find_first_not_of(kMarksAndBlanks);
  return first != std::string_view::npos && bytes[first] == '<';
}

}  // namespace

ExchangeFormat formatNamedBy(std::string_view path) {
  const std::string ending = lowerCased(std::filesystem::path(path).extension().string());
  if (ending == ".po" || ending == ".pot") return ExchangeFormat::po;
  if (ending == ".csv" || ending == ".tsv") return ExchangeFormat::csv;
  return ExchangeFormat::xliff12;
}

std::string written(const Translations& translations, ExchangeFormat format) {
  switch (format) {
    case ExchangeFormat::xliff12:
      break;
    case ExchangeFormat::xliff20:
      return toXLIFF20(translations);
    case ExchangeFormat::po:
      return toPO(translations);
    case ExchangeFormat::csv:
      return toCSV(translations);
  }
  return toXLIFF12(translations);
}

Translations readTranslations(const std::string& path) {
  std::error_code failure;
  if (const std::uintmax_t size = std::filesystem::file_size(path, failure); !failure && size > kLargest) {
    throw CommandFailed{{{Severity::error, path, 1, 1, "",
                          "the file is larger than 32 MiB, which no export is; import another"}}};
  }
  std::string bytes = readFile("", path);
  const ExchangeFormat format = formatNamedBy(path);
  if (beginsAsXML(bytes) || format == ExchangeFormat::xliff12) return fromXLIFF(std::move(bytes), path);
  return format == ExchangeFormat::po ? fromPO(std::move(bytes), path) : fromCSV(std::move(bytes), path);
}

}  // namespace zk::tools
