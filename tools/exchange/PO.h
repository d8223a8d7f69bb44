#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>

namespace zk::tools {

/// A PO file: the key as msgctxt and as reference, notes as extracted comments, the flag fuzzy for what needs
/// review. Plural forms are entries of their own.
[[nodiscard]] std::string toPO(const Translations& translations);

/// Reads a PO file, also as translate-toolkit and Qt write it, which keep the key in comments. Throws
/// `CommandFailed` for what is no such file, which diagnostics call `file`.
[[nodiscard]] Translations fromPO(std::string bytes, const std::string& file);

}  // namespace zk::tools
