#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/exchange/CSV.h>
#include <ZKStrings/tools/exchange/CSVGuard.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::string_view kKeyTitle = "key";
constexpr std::string_view kEnglishTitle = "en";
constexpr std::string_view kStateTitle = "state";
constexpr std::string_view kNotesTitle = "notes";
/// The columns that are not the language's, whatever code their titles may be.
constexpr std::string_view kOthers[] = {kKeyTitle, kEnglishTitle, kStateTitle, kNotesTitle};

using Row = std::vector<std::string>;

/// The sign that separates cells: the one that comes first in the line of titles.
char separatorOf(std::string_view text) {
  const std::size_t first = text.substr(0, text.find('\n')).find_first_of(",;\t");
  return first == std::string_view::npos ? ',' : text[first];
}

class Reader {
 public:
  Reader(std::string bytes, const std::string& file) : file_(file) {
    std::optional<std::string> text = decodedText(std::move(bytes), UnmarkedText::isUtf8);
    if (!text) fail(file_, "the bytes are not text in UTF-8; save the file as CSV in UTF-8");
    text_ = *std::move(text);
    separator_ = separatorOf(text_);
  }

  Translations read() && {
    PositionTeller positions(text_);
    const Row titles = takeRow();
    const std::size_t key = columnOf(kKeyTitle, titles);
    const std::size_t english = columnOf(kEnglishTitle, titles);
    const auto language = std::find_if(titles.begin(), titles.end(), [](const std::string& title) {
      const bool isOther = std::find(std::begin(kOthers), std::end(kOthers), title) != std::end(kOthers);
      return !isOther && !languageCodeOf(title).empty();
    });
    if (language == titles.end())
      fail(file_, "no column is titled with the code of a language; title that of the translations \"de\"");
    const auto target = static_cast<std::size_t>(language - titles.begin());
    const auto state =
        static_cast<std::size_t>(std::find(titles.begin(), titles.end(), kStateTitle) - titles.begin());

    Translations translations{*language, {}};
    while (at_ < text_.size()) {
      const Position at = positions.at(at_);
      const Row row = takeRow();
      // Rows may be shorter than the line of titles.
      const auto cellOf = [&](std::size_t column) { return column < row.size() ? row[column] : ""; };
      const auto isEmpty = [](const std::string& cell) { return cell.empty(); };
      if (std::all_of(row.begin(), row.end(), isEmpty)) continue;
      translations.units.push_back(
          {cellOf(key), cellOf(english), cellOf(target), stateFrom(cellOf(state)), {}, at});
    }
    return translations;
  }

 private:
  [[nodiscard]] std::size_t columnOf(std::string_view title, const Row& titles) const {
    const auto found = std::find(titles.begin(), titles.end(), title);
    if (found == titles.end()) {
      fail(file_, fmt::format("no column is titled \"{}\"; the first line of a table of translations is "
                              "key,en,de,state,notes",
                              title));
    }
    return static_cast<std::size_t>(found - titles.begin());
  }

  /// A translator who fills in a text does not write into this column.
  static TranslationState stateFrom(std::string_view name) {
    return name == nameOf(TranslationState::needsReview) ? TranslationState::needsReview
                                                         : TranslationState::translated;
  }

  /// Takes the next row, with its line end.
  Row takeRow() {
    Row row;
    for (;;) {
      std::string cell = takeCell();
      replaceOccurrences(cell, "\r\n", "\n");  // of editors that change all line ends
      row.emplace_back(unguarded(cell));
      if (at_ == text_.size() || text_[at_] != separator_) break;
      ++at_;
    }
    if (text_.compare(at_, 1, "\r") == 0) ++at_;
    if (text_.compare(at_, 1, "\n") == 0) ++at_;
    return row;
  }

  std::string takeCell() {
    if (text_.compare(at_, 1, "\"") == 0) return takeQuotedCell();
    const char ends[] = {separator_, '\r', '\n', '\0'};
    const std::size_t begin = std::exchange(at_, std::min(text_.find_first_of(ends, at_), text_.size()));
    return text_.substr(begin, at_ - begin);
  }

  std::string takeQuotedCell() {
    const std::size_t begin = at_++;
    std::string cell;
    for (;;) {
      const std::size_t quote = text_.find('"', at_);
      if (quote == std::string::npos) {
        fail(file_, positionOf(text_, begin),
             "the closing quote of the cell is missing; the file may be cut off or damaged");
      }
      cell += text_.substr(at_, quote - at_);
      at_ = quote + 1;
      if (text_.compare(at_, 1, "\"") != 0) break;
      cell += '"';
      ++at_;
    }
    const bool isEnd =
        at_ == text_.size() || text_[at_] == separator_ || text_[at_] == '\r' || text_[at_] == '\n';
    if (!isEnd)
      fail(file_, positionOf(text_, at_),
           "text behind the cell's closing quote; double each quote within a cell");
    return cell;
  }

  const std::string& file_;
  std::string text_;
  char separator_ = ',';
  std::size_t at_ = 0;
};

}  // namespace

Translations fromCSV(std::string bytes, const std::string& file) {
  return Reader(std::move(bytes), file).read();
}

}  // namespace zk::tools
