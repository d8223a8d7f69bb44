#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>
#include <string_view>

namespace zk::tools {

/// The formats in which texts go to translators and come back.
enum class ExchangeFormat { xliff12, xliff20, po, csv };

/// The format for the file name `path`: PO for .po and .pot, CSV for .csv and .tsv, XLIFF 1.2 for all others.
[[nodiscard]] ExchangeFormat formatNamedBy(std::string_view path);

/// The bytes of a file in that format. Throws `CommandFailed` for XLIFF if XML cannot hold a text.
[[nodiscard]] std::string written(const Translations& translations, ExchangeFormat format);

/// Reads the file at `path`, relative to the working directory. A file that starts with "<" is XLIFF; the extension
/// names the format of all others. Throws `CommandFailed` if the file cannot be read, is larger than 32 MiB or is not
/// well-formed.
[[nodiscard]] Translations readTranslations(const std::string& path);

}  // namespace zk::tools
