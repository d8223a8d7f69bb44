#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>
#include <string_view>

namespace zk::tools {

/// The formats in which texts go to translators and come back.
enum class ExchangeFormat { xliff12, xliff20, po, csv };

/// The format that the ending of `path` names: .po and .pot, .csv and .tsv; XLIFF 1.2 for all others.
[[nodiscard]] ExchangeFormat formatNamedBy(std::string_view path);

[[nodiscard]] std::string written(const Translations& translations, ExchangeFormat format);

/// Reads the file at `path`, from the working directory: a document that begins with "<" as XLIFF, others in
/// the format of their ending. Throws `CommandFailed` when it cannot be read, is larger than 32 MiB, or is
/// not well formed.
[[nodiscard]] Translations readTranslations(const std::string& path);

}  // namespace zk::tools
