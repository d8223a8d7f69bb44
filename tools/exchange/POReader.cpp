#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/tools/exchange/PO.h>
#include <ZKStrings/tools/exchange/POReference.h>
#include <ZKStrings/tools/exchange/POText.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Position.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

std::string_view firstWord(std::string_view text) {
  text = behindBlanks(text);
  return text.substr(0, text.find_first_of(kPOBlanks));
}

/// Whether `text` is `part` once or several times.
bool isMadeOf(std::string_view text, std::string_view part) {
  while (!part.empty() && text.starts_with(part)) text.remove_prefix(part.size());
  return text.empty();
}

class Reader {
 public:
  Reader(std::string bytes, const std::string& file) : file_(file) {
    std::optional<std::string> text = decodedText(std::move(bytes), UnmarkedText::isUtf8);
    if (!text) fail(file_, "the bytes are not text in UTF-8; save the file as UTF-8");
    text_ = *std::move(text);
  }

  Translations read() && {
    for (const std::string_view line : linesOf(text_)) {
      ++at_.line;
      readLine(line);
    }
    endEntry();
    if (!hasEntries_) fail(file_, "the file has no entries; a PO file has lines such as msgid \"...\"");
    return std::move(translations_);
  }

 private:
  struct Entry {
    TranslationUnit unit;
    std::string context;
    std::string identifier;  ///< of Qt's comment "#. ts-id"
    std::string reference;   ///< the first behind "#:"
    bool hasSource = false;
    bool hasTarget = false;
  };

  void readLine(std::string_view line) {
    const std::string_view content = behindBlanks(line);
    at_.column = line.size() - content.size() + 1;
    if (content.empty() || content.starts_with("#~")) return;
    if (content.starts_with('#')) return readComment(content);
    if (content.starts_with('"')) {
      if (!quoted_) fail(file_, at_, "a text without a keyword before it; write msgctxt, msgid or msgstr");
      return readText(content);
    }
    const std::string_view keyword = content.substr(0, content.find_first_of(" \t\""));
    beginStatement(keyword);
    readText(behindBlanks(content.substr(keyword.size())));
  }

  /// Comments stand before what they are about.
  void readComment(std::string_view comment) {
    if (entry_.hasTarget) endEntry();
    constexpr std::string_view kIdentifier = "ts-id ";
    const std::string_view told = comment.size() > 2 ? behindBlanks(comment.substr(2)) : "";
    if (comment.starts_with("#,") && comment.find("fuzzy") != std::string_view::npos)
      entry_.unit.state = TranslationState::needsReview;
    if (comment.starts_with("#:") && entry_.reference.empty()) entry_.reference = keyNamedBy(firstWord(told));
    if (comment.starts_with("#.") && told.starts_with(kIdentifier))
      entry_.identifier =
          told.substr(kIdentifier.size(), told.find_last_not_of(kPOBlanks) + 1 - kIdentifier.size());
  }

  void beginStatement(std::string_view keyword) {
    const bool isContext = keyword == "msgctxt";
    if (!isContext && keyword != "msgid" && keyword != "msgstr") {
      fail(file_, at_,
           keyword == "msgid_plural" || keyword.starts_with("msgstr[")
               ? "plural entries are not taken; each plural form is an entry of its own, as in the export"
               : "expected msgctxt, msgid or msgstr, a text in quotes, or a comment");
    }
    if (keyword == "msgstr") {
      if (!entry_.hasSource || entry_.hasTarget) fail(file_, at_, "msgstr without a msgid before it");
      entry_.hasTarget = true;
      quoted_ = &entry_.unit.target;
      return;
    }
    if (entry_.hasTarget) endEntry();
    if (entry_.hasSource)
      fail(file_, at_, "msgid without a msgstr behind it; the file may be cut off or damaged");
    if (!isContext) entry_.hasSource = true;
    if (isContext || entry_.context.empty()) entry_.unit.at = at_;
    quoted_ = isContext ? &entry_.context : &entry_.unit.source;
  }

  /// A text in quotes, up to the end of the line.
  void readText(std::string_view quoted) {
    if (const char* const fault = appendUnquoted(quoted, *quoted_)) fail(file_, at_, fault);
  }

  void endEntry() {
    Entry entry = std::exchange(entry_, {});
    quoted_ = nullptr;
    if (!entry.hasTarget) {
      if (entry.hasSource || !entry.context.empty())
        fail(file_, at_, "the last entry has no msgstr; the file may be cut off or damaged");
      return;
    }
    hasEntries_ = true;
    const bool isHeader = entry.unit.source.empty() && entry.context.empty();
    if (isHeader) return readHeader(entry.unit.target);
    entry.unit.key = keyOf(entry);
    translations_.units.push_back(std::move(entry.unit));
  }

  /// Programs keep the context, or a comment instead. translate-toolkit repeats the reference as a context,
  /// and leaves it out where it is the text itself.
  static std::string keyOf(const Entry& entry) {
    if (!entry.context.empty() && !isMadeOf(entry.context, entry.reference)) return entry.context;
    if (!entry.identifier.empty()) return entry.identifier;
    return entry.reference.empty() ? entry.unit.source : entry.reference;
  }

  void readHeader(std::string_view header) {
    for (const std::string_view line : linesOf(header)) {
      for (const std::string_view name : {"Language:", "X-Language:"}) {
        if (line.starts_with(name)) translations_.language = firstWord(line.substr(name.size()));
      }
    }
  }

  const std::string& file_;
  std::string text_;
  Position at_ = {0, 1};
  Translations translations_;
  Entry entry_;
  std::string* quoted_ = nullptr;  // where the texts in quotes go
  bool hasEntries_ = false;
};

}  // namespace

Translations fromPO(std::string bytes, const std::string& file) {
  return Reader(std::move(bytes), file).read();
}

}  // namespace zk::tools
