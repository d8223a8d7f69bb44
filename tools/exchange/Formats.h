#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>
#include <string_view>

namespace zk::tools {

/// The formats. The functions that read one take the UTF-8 text of a file without a byte-order mark. They throw
/// `CommandFailed`, which names `file`, if the text is not in the format.

/// The unit's notes, with the previous English text if there is one. For formats that have no other place for it.
[[nodiscard]] std::string notesWithPrevious(const TranslationUnit& unit);

/// XLIFF 1.2, which nearly all translation programs read. Codes are <ph> elements around the code's text, so that
/// programs without support for codes keep it.
[[nodiscard]] std::string toXLIFF12(const Translations& translations);
/// XLIFF 2.0. Codes are <ph> and <pc> elements that refer to the unit's original data.
[[nodiscard]] std::string toXLIFF20(const Translations& translations);
/// Whether XLIFF can hold `text`: it has no control characters except tabs and line feeds.
[[nodiscard]] bool fitsXLIFF(std::string_view text);
/// Reads XLIFF 1.x or 2.x, including files written by translate-toolkit and Qt, which keep keys elsewhere.
[[nodiscard]] Translations fromXLIFF(const std::string& text, const std::string& file);

/// PO. The key is the msgctxt and the reference, notes are extracted comments, and texts that need review are fuzzy.
/// Each plural form is an entry.
[[nodiscard]] std::string toPO(const Translations& translations);
/// Reads PO, including files written by translate-toolkit and Qt, which keep keys in comments.
[[nodiscard]] Translations fromPO(std::string_view text, const std::string& file);

/// CSV as in RFC 4180, with a byte-order mark for spreadsheets and the columns key, en, the language, state and notes.
/// An apostrophe precedes everything that a spreadsheet could run as a formula.
[[nodiscard]] std::string toCSV(const Translations& translations);
/// Reads CSV as spreadsheets save it: cells are separated by commas, semicolons or tabs; columns are in any order.
[[nodiscard]] Translations fromCSV(std::string_view text, const std::string& file);

}  // namespace zk::tools
