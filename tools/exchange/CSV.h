#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>

namespace zk::tools {

/// A table for spreadsheets by RFC 4180, in UTF-8 with the byte-order mark by which they know it, with the
/// columns key, en, the language, state and notes. An apostrophe stands before what they would take for a
/// formula.
[[nodiscard]] std::string toCSV(const Translations& translations);

/// Reads such a table, as a spreadsheet saves it: separated by commas, semicolons or tabs, with the columns
/// in any order and others besides. Throws `CommandFailed` for what is no such file, which diagnostics call
/// `file`.
[[nodiscard]] Translations fromCSV(std::string bytes, const std::string& file);

}  // namespace zk::tools
