#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// What a formula starts with. Japanese and Chinese spreadsheets also know the full-width signs.
constexpr std::string_view kFormulaSigns[] = {"=", "+", "-", "@", "\t", "\r", "＝", "＋", "－", "＠"};
/// After these, a program that expects another separator starts a new cell.
constexpr std::string_view kCellEnds = "\n\r;\t";

/// Whether `text` is a formula for a spreadsheet, maybe after apostrophes and quotes.
bool isFormula(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of("'\""), text.size()));
  return std::any_of(std::begin(kFormulaSigns), std::end(kFormulaSigns),
                     [&](std::string_view sign) { return text.starts_with(sign); });
}

enum class Guards { add, remove };

/// Adds an apostrophe before everything in `text` that a spreadsheet could run as a formula, or removes it.
std::string changeGuards(std::string_view text, Guards guards) {
  std::string result;
  bool isCellStart = true;
  for (; !text.empty(); text.remove_prefix(1)) {
    if (isCellStart && isFormula(text)) {
      if (guards == Guards::add) result += '\'';
      if (guards == Guards::remove && text[0] == '\'') text.remove_prefix(1);
    }
    result += text[0];
    isCellStart = kCellEnds.find(text[0]) != std::string_view::npos;
  }
  return result;
}

std::string cell(std::string_view text) {
  const std::string content = changeGuards(replaceAll(text, "\r\n", "\n"), Guards::add);
  return fmt::format("\"{}\"", replaceAll(content, "\"", "\"\""));
}

/// Reads a table such as
///
///     key,en,de,state,notes
///     About,About,Info,translated,
///     sent_gifts,"%{n} ""gifts""
///     sent","'+%{n} Geschenke
///     verschickt",needs-review,The English has 15 characters.
///
/// Cells in quotes may contain separators, line breaks and doubled quotes. The apostrophe is a guard against formulas.
class CSVReader {
 public:
  CSVReader(std::string_view text, const std::string& file) : file_(file), text_(text) {
    const std::size_t first = text.substr(0, text.find('\n')).find_first_of(",;\t");
    if (first != std::string_view::npos) separator_ = text[first];
  }

  Translations read() {
    PositionFinder positions(text_);
    titles_ = takeRow();
    const std::size_t key = requiredColumn("key");
    const std::size_t english = requiredColumn("en");
    const std::size_t state = columnOf("state");
    const std::size_t notes = columnOf("notes");
    std::vector<std::size_t> targets;
    for (std::size_t i = 0; i < titles_.size(); ++i) {
      const bool isOther = i == key || i == english || i == state || i == notes;
      if (!isOther && !languageCodeOf(titles_[i]).empty()) targets.push_back(i);
    }
    if (targets.size() != 1)
      fail(file_,
           fmt::format("the first line names {} languages; name exactly one, as in key,en,de,state,notes",
                       targets.size()));

    Translations translations{titles_[targets[0]], {}};
    while (at_ < text_.size()) {
      const Position at = positions.at(at_);
      Row row = takeRow();
      while (!row.empty() && row.back().empty()) row.pop_back();
      if (row.empty()) continue;
      if (row.size() > titles_.size()) {
        fail(file_, at,
             fmt::format(
                 "the line has more cells than the first line; put texts that contain \"{}\" in quotes",
                 separator_));
      }
      // Rows may be shorter than the row of titles. Translators leave words such as "missing" in the column of states.
      const auto cellOf = [&](std::size_t column) { return column < row.size() ? row[column] : ""; };
      const bool needsReview = cellOf(state) == nameOf(TranslationState::needsReview);
      translations.units.push_back(
          {cellOf(key), cellOf(english), cellOf(targets[0]),
           needsReview ? TranslationState::needsReview : TranslationState::translated, cellOf(notes), "",
           at});
    }
    return translations;
  }

 private:
  using Row = std::vector<std::string>;

  /// The index of the column with that title, or one that no row has.
  [[nodiscard]] std::size_t columnOf(std::string_view title) const {
    return static_cast<std::size_t>(std::find(titles_.begin(), titles_.end(), title) - titles_.begin());
  }

  [[nodiscard]] std::size_t requiredColumn(std::string_view title) const {
    const std::size_t column = columnOf(title);
    if (column == titles_.size())
      fail(file_,
           fmt::format("the column \"{}\" is missing; the first line must be like key,en,de,state,notes",
                       title));
    return column;
  }

  /// Takes the next row, including its line ending.
  Row takeRow() {
    Row row;
    for (;;) {
      // Some programs change all line endings when they save.
      row.push_back(changeGuards(replaceAll(takeCell(), "\r\n", "\n"), Guards::remove));
      if (text_.substr(at_, 1) != std::string_view(&separator_, 1)) break;
      ++at_;
    }
    if (text_.substr(at_).starts_with('\r')) ++at_;
    if (text_.substr(at_).starts_with('\n')) ++at_;
    return row;
  }

  /// Whether a cell or row ends at the current place.
  [[nodiscard]] bool isCellEnd() const {
    return at_ == text_.size() || text_[at_] == separator_ || text_[at_] == '\r' || text_[at_] == '\n';
  }

  std::string takeCell() {
    if (text_.substr(at_).starts_with('"')) return takeQuotedCell();
    const std::size_t begin = at_;
    while (!isCellEnd()) ++at_;
    return std::string(text_.substr(begin, at_ - begin));
  }

  std::string takeQuotedCell() {
    const std::size_t begin = at_++;
    std::string content;
    for (;;) {
      const std::size_t quote = text_.find('"', at_);
      if (quote == std::string_view::npos)
        fail(file_, positionOf(text_, begin), "the cell's closing quote is missing; the file may be damaged");
      content += text_.substr(at_, quote - at_);
      at_ = quote + 1;
      if (!text_.substr(at_).starts_with('"')) break;
      content += '"';
      ++at_;
    }
    if (!isCellEnd())
      fail(file_, positionOf(text_, at_),
           "text after the cell's closing quote; double each quote within a cell");
    return content;
  }

  const std::string& file_;
  const std::string_view text_;
  char separator_ = ',';
  std::size_t at_ = 0;
  Row titles_;
};

}  // namespace

std::string toCSV(const Translations& translations) {
  std::string table = fmt::format("{}key,en,{},state,notes\r\n", kByteOrderMark, translations.language);
  for (const TranslationUnit& unit : translations.units) {
    table += fmt::format("{},{},{},{},{}\r\n", cell(unit.key), cell(unit.source), cell(unit.target),
                         nameOf(unit.state), cell(notesWithPrevious(unit)));
  }
  return table;
}

Translations fromCSV(std::string_view text, const std::string& file) {
  return CSVReader(text, file).read();
}

}  // namespace zk::tools
