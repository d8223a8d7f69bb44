#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>
#include <string_view>

namespace zk::tools {

/// Whether XML can hold `text`: not with control characters other than tab and line ends.
[[nodiscard]] bool fitsXML(std::string_view text);

/// XLIFF 1.2, which all translators' programs read. Codes in texts are <ph> elements with what they stand
/// for as content, so that programs that know none of them keep the text as it is.
[[nodiscard]] std::string toXLIFF12(const Translations& translations);

/// XLIFF 2.0. Codes in texts are <ph> and <pc> elements that refer to the unit's original data.
[[nodiscard]] std::string toXLIFF20(const Translations& translations);

/// Reads XLIFF 1.1, 1.2 or 2.x, also as translate-toolkit and Qt write it, which keep a unit's key elsewhere.
/// Throws `CommandFailed` for what is no such file, which diagnostics call `file`.
[[nodiscard]] Translations fromXLIFF(std::string bytes, const std::string& file);

}  // namespace zk::tools
