#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// A text on its way to translators or back, in any format.
struct TranslationUnit {
  std::string key;
  std::string source;  ///< the English text
  std::string target;  ///< the translation; empty if there is none
  /// In a unit that was read, `translated` or `needsReview`; meaningless without a target.
  TranslationState state = TranslationState::translated;
  std::string notes = {};  ///< for translators, one a line
  std::string previousSource =
      {};                ///< the English text that the target translates; empty unless it has changed
  Position at = {1, 1};  ///< in the file that it was read from
};

/// Texts with their translations into one language.
struct Translations {
  std::string language;  ///< empty if a file does not name it
  std::vector<TranslationUnit> units;
  std::string catalogue{};  ///< the name of the catalogue; empty if read from a file
};

/// The formats in which texts go to translators and come back.
enum class ExchangeFormat { xliff12, xliff20, po, csv };

/// The format for the file name `path`: PO for .po and .pot, CSV for .csv and .tsv, XLIFF 1.2 for all others.
[[nodiscard]] ExchangeFormat formatNamedBy(std::string_view path);

/// The bytes of a file in that format. Throws `CommandFailed` for XLIFF if XML cannot hold a text.
[[nodiscard]] std::string written(const Translations& translations, ExchangeFormat format);

/// Reads the file at `path`, relative to the working directory. A file that starts with "<" is XLIFF; the extension names the
/// format of all others. Throws `CommandFailed` if the file cannot be read, is larger than 32 MiB or is not well-formed.
[[nodiscard]] Translations readTranslations(const std::string& path);

// The single formats. The functions that read one take the UTF-8 text of a file without a byte-order mark. They throw
// `CommandFailed`, which names `file`, if the text is not in the format.

/// The unit's notes, with the previous English text if there is one. For formats that have no other place for it.
[[nodiscard]] std::string notesWithPrevious(const TranslationUnit& unit);

/// XLIFF 1.2, which nearly all translation programs read. Codes are <ph> elements around the text of the code.
[[nodiscard]] std::string toXLIFF12(const Translations& translations);
/// XLIFF 2.0. Codes are <ph> and <pc> elements that refer to the unit's original data.
[[nodiscard]] std::string toXLIFF20(const Translations& translations);
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
