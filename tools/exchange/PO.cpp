#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view withoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

std::string_view firstWord(std::string_view text) {
  text = withoutLeadingBlanks(text);
  return text.substr(0, text.find_first_of(kBlanks));
}

/// `key` percent-encoded, since a reference cannot contain blanks.
std::string referenceTo(std::string_view key) {
  constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-.";
  std::string reference;
  for (const char character : key) {
    const bool isPlain = kPlain.find(character) != std::string_view::npos;
    reference +=
        isPlain ? std::string(1, character) : fmt::format("%{:02X}", static_cast<unsigned char>(character));
  }
  return reference;
}

/// The key that is percent-encoded as `reference`. "+" means a blank as well.
std::string keyNamedBy(std::string_view reference) {
  std::string key;
  for (std::size_t at = 0; at < reference.size(); ++at) {
    const std::string_view digits = reference.substr(at + 1, 2);
    unsigned byte = 0;
    const bool isByte = reference[at] == '%' && digits.size() == 2 &&
                        std::from_chars(digits.data(), digits.data() + 2, byte, 16).ptr == digits.data() + 2;
    key += isByte ? static_cast<char>(byte) : reference[at] == '+' ? ' ' : reference[at];
    if (isByte) at += 2;
  }
  return key;
}

std::string entryOf(const TranslationUnit& unit) {
  std::string lines = "\n";
  for (const std::string_view note : linesOf(unit.notes)) lines += fmt::format("#. {}\n", note);
  // Programs that drop the context keep the reference.
  lines += fmt::format("#: {}\n", referenceTo(unit.key));
  if (unit.state == TranslationState::needsReview) lines += "#, fuzzy\n";
  if (!unit.previousSource.empty()) lines += fmt::format("#| msgid \"{}\"\n", literal(unit.previousSource));
  return lines + fmt::format("msgctxt \"{}\"\nmsgid \"{}\"\nmsgstr \"{}\"\n", literal(unit.key),
                             literal(unit.source), literal(unit.target));
}

/// Removes an escape without its backslash from the beginning of `text`. Returns its meaning, or nothing if it is unknown.
std::optional<char> takeEscape(std::string_view& text) {
  constexpr std::string_view kNames = "abfnrtv\\\"";
  constexpr std::string_view kCharacters = "\a\b\f\n\r\t\v\\\"";
  unsigned octal = 0;
  const char* const end = text.data() + std::min<std::size_t>(text.size(), 3);
  if (const char* const rest = std::from_chars(text.data(), end, octal, 8).ptr; rest != text.data()) {
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    return static_cast<char>(octal);
  }
  const std::size_t known = text.empty() ? std::string_view::npos : kNames.find(text[0]);
  if (known == std::string_view::npos) return std::nullopt;
  text.remove_prefix(1);
  return kCharacters[known];
}

/// Whether `text` is `part` once or several times.
bool isRepeated(std::string_view part, std::string_view text) {
  while (!part.empty() && text.starts_with(part)) text.remove_prefix(part.size());
  return text.empty();
}

/// Reads a file such as
///
///     msgid ""
///     msgstr "Language: de\n"
///
///     #. The English has 9 characters.
///     #: sent_gifts
///     #, fuzzy
///     msgctxt "sent_gifts"
///     msgid ""
///     "%{n} gifts\n"
///     "sent"
///     msgstr "%{n} Geschenke"
///
/// The first entry is the header. Comments precede the entry that they are about.
class POReader {
 public:
  explicit POReader(const std::string& file) : file_(file) {}

  Translations read(std::string_view text) && {
    for (const std::string_view line : linesOf(text)) {
      ++at_.line;
      readLine(line);
    }
    endEntry();
    if (translations_.units.empty() && translations_.language.empty())
      fail(file_, "the file has no entries; a PO file has lines such as msgid \"...\"");
    return std::move(translations_);
  }

 private:
  static constexpr std::string_view kKeywords[] = {"msgctxt", "msgid", "msgstr"};
  enum Part : std::size_t { context, source, target };

  struct Pending {
    std::array<std::optional<std::string>, std::size(kKeywords)> texts;
    std::string identifier;  ///< from Qt's comment "#. ts-id"
    std::string reference;   ///< the first one after "#:"
    TranslationUnit unit;
  };

  void readLine(std::string_view line) {
    const std::string_view content = withoutLeadingBlanks(line);
    at_.column = line.size() - content.size() + 1;
    if (content.empty() || content.starts_with("#~")) return;
    if (content.starts_with('#')) return readComment(content);
    if (content.starts_with('"')) return readText(content);
    const std::string_view keyword = content.substr(0, content.find_first_of(" \t\""));
    beginPart(keyword);
    readText(withoutLeadingBlanks(content.substr(keyword.size())));
  }

  void readComment(std::string_view comment) {
    if (entry_.texts[target]) endEntry();
    constexpr std::string_view kIdentifier = "ts-id ";
    const std::string_view content = comment.size() > 2 ? withoutLeadingBlanks(comment.substr(2)) : "";
    entry_.unit.notes.append(content) += '\n';
    if (comment.starts_with("#,") && content.find("fuzzy") != std::string_view::npos)
      entry_.unit.state = TranslationState::needsReview;
    if (comment.starts_with("#:") && entry_.reference.empty())
      entry_.reference = keyNamedBy(firstWord(content));
    if (comment.starts_with("#.") && content.starts_with(kIdentifier))
      entry_.identifier =
          content.substr(kIdentifier.size(), content.find_last_not_of(kBlanks) + 1 - kIdentifier.size());
  }

  void beginPart(std::string_view keyword) {
    const auto* const known = std::find(std::begin(kKeywords), std::end(kKeywords), keyword);
    if (keyword == "msgid_plural" || keyword.starts_with("msgstr["))
      fail(file_, at_,
           "plural entries are not supported; write an entry for each plural form, as in the export");
    if (known == std::end(kKeywords))
      fail(file_, at_, "expected msgctxt, msgid or msgstr, a text in quotes, or a comment");
    const auto part = static_cast<std::size_t>(known - kKeywords);
    if (entry_.texts[target]) endEntry();
    const bool isInOrder = part == target ? entry_.texts[source].has_value() : !entry_.texts[source];
    if (!isInOrder || entry_.texts[part])
      fail(file_, at_, "misplaced keyword; write msgctxt, msgid and msgstr in this order");
    if (part == context || (part == source && !entry_.texts[context])) entry_.unit.at = at_;
    text_ = &entry_.texts[part].emplace();
  }

  /// Adds the text in quotes, which goes up to the end of the line, to the current part.
  void readText(std::string_view rest) {
    if (!text_) fail(file_, at_, "quoted text without a keyword; write msgctxt, msgid or msgstr before it");
    bool isQuoted = rest.starts_with('"');
    for (rest = rest.substr(isQuoted); isQuoted && !rest.starts_with('"');) {
      const std::string_view plain = rest.substr(0, rest.find_first_of("\\\""));
      *text_ += plain;
      rest.remove_prefix(plain.size());
      if (rest.empty()) fail(file_, at_, "the text's closing quote is missing; the file may be damaged");
      if (rest[0] == '"') break;
      rest.remove_prefix(1);
      const std::optional<char> character = takeEscape(rest);
      if (!character) fail(file_, at_, "unknown escape sequence; write \\\\ for a backslash");
      *text_ += *character;
    }
    if (!isQuoted || !withoutLeadingBlanks(rest.substr(1)).empty())
      fail(file_, at_, "expected one text in quotes; write a backslash before each quote in it");
  }

  void endEntry() {
    Pending entry = std::exchange(entry_, {});
    text_ = nullptr;
    if (!entry.texts[context] && !entry.texts[source]) return;
    if (!entry.texts[target]) fail(file_, at_, "the last entry has no msgstr; the file may be damaged");
    entry.unit.source = entry.texts[source].value_or("");
    entry.unit.target = entry.texts[target].value_or("");
    const std::string key = entry.texts[context].value_or("");
    if (entry.unit.source.empty() && key.empty()) return readHeader(entry.unit.target);
    // Programs keep the context, or else a comment. translate-toolkit repeats the reference as the context.
    const bool isKey = !key.empty() && !isRepeated(entry.reference, key);
    entry.unit.key = isKey                       ? key
                     : !entry.identifier.empty() ? entry.identifier
                     : entry.reference.empty()   ? entry.unit.source
                                                 : entry.reference;
    translations_.units.push_back(std::move(entry.unit));
  }

  void readHeader(std::string_view header) {
    for (const std::string_view line : linesOf(header)) {
      for (const std::string_view name : {"Language:", "X-Language:"}) {
        if (line.starts_with(name)) translations_.language = firstWord(line.substr(name.size()));
      }
    }
  }

  const std::string& file_;
  Position at_ = {0, 1};
  Translations translations_;
  Pending entry_;
  std::string* text_ = nullptr;  // the part to which texts in quotes are added
};

}  // namespace

std::string toPO(const Translations& translations) {
  std::string file = fmt::format(
      "msgid \"\"\nmsgstr \"\"\n"
      "\"Project-Id-Version: {}\\n\"\n\"Language: {}\\n\"\n\"MIME-Version: 1.0\\n\"\n"
      "\"Content-Type: text/plain; charset=UTF-8\\n\"\n\"Content-Transfer-Encoding: 8bit\\n\"\n",
      translations.catalogue, translations.language);
  for (const TranslationUnit& unit : translations.units) file += entryOf(unit);
  return file;
}

Translations fromPO(std::string_view text, const std::string& file) {
  return POReader(file).read(text);
}

}  // namespace zk::tools
