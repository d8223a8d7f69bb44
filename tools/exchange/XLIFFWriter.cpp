#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/exchange/XLIFF.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/texts/TextPieces.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>

#include <fmt/format.h>

namespace zk::tools {

namespace {

using Kind = TextPiece::Kind;
using Pieces = std::vector<TextPiece>;

std::string inText(std::string_view text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '\r':
        result += "&#13;";
        break;
      default:
        result += character;
    }
  }
  return result;
}

std::string inAttribute(std::string_view text) {
  std::string result = inText(text);
  replaceOccurrences(result, "\"", "&quot;");
  replaceOccurrences(result, "\n", "&#10;");
  replaceOccurrences(result, "\t", "&#9;");
  return result;
}

bool isReviewed(const TranslationUnit& unit) {
  return unit.state == TranslationState::translated;
}

/// The content of a <source> or <target> of XLIFF 1.2.
std::string content12(const Pieces& pieces, const Pieces& source) {
  const std::vector<std::size_t> numbers = codeNumbers(pieces, source);
  std::string content;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const std::string text = inText(pieces[i].text);
    content += numbers[i] == 0 ? text : fmt::format("<ph id=\"{}\">{}</ph>", numbers[i], text);
  }
  return content;
}

std::string unit12(const TranslationUnit& unit) {
  const Pieces source = piecesOf(unit.source);
  const std::string key = inAttribute(unit.key);
  const bool isApproved = !unit.target.empty() && isReviewed(unit);
  std::string lines = fmt::format("      <trans-unit id=\"{}\" resname=\"{}\"{} xml:space=\"preserve\">\n",
                                  key, key, isApproved ? " approved=\"yes\"" : "");
  lines += fmt::format("        <source>{}</source>\n", content12(source, source));
  if (!unit.target.empty()) {
    lines += fmt::format("        <target state=\"{}\">{}</target>\n",
                         isReviewed(unit) ? "translated" : "needs-review-translation",
                         content12(piecesOf(unit.target), source));
  }
  for (const std::string& note : unit.notes) {
    lines += fmt::format("        <note from=\"developer\" annotates=\"source\">{}</note>\n", inText(note));
  }
  return lines + "      </trans-unit>\n";
}

/// The codes of one unit of XLIFF 2.0, each with the place of its text in the original data.
class OriginalData {
 public:
  explicit OriginalData(const TranslationUnit& unit)
      : source_(piecesOf(unit.source)), target_(piecesOf(unit.target)) {
    for (const Pieces* const pieces : {&source_, &target_}) {
      for (const TextPiece& piece : *pieces) {
        if (piece.kind != Kind::words && places_.try_emplace(piece.text, texts_.size()).second)
          texts_.push_back(piece.text);
      }
    }
  }

  [[nodiscard]] std::string element() const {
    if (texts_.empty()) return "";
    std::string lines = "      <originalData>\n";
    for (std::size_t i = 0; i < texts_.size(); ++i)
      lines += fmt::format("        <data id=\"d{}\">{}</data>\n", i + 1, inText(texts_[i]));
    return lines + "      </originalData>\n";
  }
  [[nodiscard]] std::string source() const { return content(source_); }
  [[nodiscard]] std::string target() const { return content(target_); }

 private:
  /// From 1; 0 for words, which have no place.
  [[nodiscard]] std::size_t placeOf(std::string_view text) const {
    const auto place = places_.find(text);
    return place == places_.end() ? 0 : place->second + 1;
  }

  [[nodiscard]] std::string content(const Pieces& pieces) const {
    const std::vector<std::size_t> numbers = codeNumbers(pieces, source_);
    std::string result;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      const std::string text = inText(pieces[i].text);
      const std::size_t data = placeOf(pieces[i].text);
      switch (pieces[i].kind) {
        case Kind::words:
          result += text;
          break;
        case Kind::placeholder:
          result += fmt::format("<ph id=\"{}\" dataRef=\"d{}\" disp=\"{}\"/>", numbers[i], data, text);
          break;
        case Kind::opening:
          result += fmt::format("<pc id=\"{}\" dataRefStart=\"d{}\" dataRefEnd=\"d{}\">", numbers[i], data,
                                placeOf(closingOf(pieces[i].text)));
          break;
        case Kind::closing:
          result += "</pc>";
      }
    }
    return result;
  }

  const Pieces source_;
  const Pieces target_;
  std::vector<std::string_view> texts_;
  std::map<std::string_view, std::size_t> places_;  // of the texts
};

std::string unit20(const TranslationUnit& unit, std::size_t number) {
  const OriginalData codes(unit);
  std::string lines = fmt::format("    <unit id=\"u{}\" name=\"{}\" xml:space=\"preserve\">\n", number,
                                  inAttribute(unit.key));
  if (!unit.notes.empty()) {
    lines += "      <notes>\n";
    for (const std::string& note : unit.notes)
      lines += fmt::format("        <note category=\"developer\">{}</note>\n", inText(note));
    lines += "      </notes>\n";
  }
  lines += codes.element();
  const bool isTranslated = !unit.target.empty() && isReviewed(unit);
  lines += fmt::format("      <segment state=\"{}\">\n", isTranslated ? "translated" : "initial");
  lines += fmt::format("        <source>{}</source>\n", codes.source());
  if (!unit.target.empty()) lines += fmt::format("        <target>{}</target>\n", codes.target());
  return lines + "      </segment>\n    </unit>\n";
}

}  // namespace

bool fitsXML(std::string_view text) {
  const bool hasNoncharacter =
      text.find("\uFFFE") != std::string_view::npos || text.find("\uFFFF") != std::string_view::npos;
  return !hasNoncharacter && std::none_of(text.begin(), text.end(), [](char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 && character != '\t' && character != '\n' && character != '\r';
  });
}

std::string toXLIFF12(const Translations& translations) {
  std::string document =
      fmt::format(R"(<?xml version="1.0" encoding="UTF-8"?>
<xliff version="1.2" xmlns="urn:oasis:names:tc:xliff:document:1.2">
  <file original="{}" source-language="en" target-language="{}" datatype="plaintext">
    <body>
)",
                  inAttribute(tablePath(translations.language)), inAttribute(translations.language));
  for (const TranslationUnit& unit : translations.units) document += unit12(unit);
  return document + "    </body>\n  </file>\n</xliff>\n";
}

std::string toXLIFF20(const Translations& translations) {
  std::string document =
      fmt::format(R"(<?xml version="1.0" encoding="UTF-8"?>
<xliff version="2.0" xmlns="urn:oasis:names:tc:xliff:document:2.0" srcLang="en" trgLang="{}">
  <file id="f1" original="{}">
)",
                  inAttribute(translations.language), inAttribute(tablePath(translations.language)));
  std::size_t number = 0;
  for (const TranslationUnit& unit : translations.units) document += unit20(unit, ++number);
  return document + "  </file>\n</xliff>\n";
}

}  // namespace zk::tools
