#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

/// Reads the text of a string table, entry by entry:
///
///     /* a comment */
///     "About" = "Über uns";     // quoted, with the escapes of `unescape`
///     Cancel = Abbrechen;       // unquoted: letters, digits and _ $ / : . -
///
/// A token is a range of the text, which is neither copied nor changed.
/// Requires: one thread uses a reader at a time.
class StringTableReader {
 public:
  /// A key, a value or a comment: the bytes [begin, end) of the text, without quotes and comment marks.
  struct Token {
    std::size_t begin = 0;
    std::size_t end = 0;
    bool hasEscapes = false;
  };

  /// Why the text is not a table: what was expected at the byte `offset`.
  struct Error {
    std::size_t offset;
    std::string expected;
  };

  /// Reads `text`, UTF-8 without a byte-order mark, which must outlive the reader.
  explicit StringTableReader(std::string_view text) : text_(text) {}

  /// Reads the next entry. Returns false at the end of the text and on an error.
  [[nodiscard]] bool next();

  /// After `next` returned true: the entry's parts, and the comments before it.
  [[nodiscard]] const Token& key() const { return key_; }
  [[nodiscard]] const Token& value() const { return value_; }
  [[nodiscard]] const std::vector<Token>& comments() const { return comments_; }
  /// After `next` returned true: the whole entry, from the key's quote to the semicolon.
  [[nodiscard]] Token entry() const { return {entryBegin_, at_}; }

  /// After `next` returned false: the error, or nothing at the end of the text.
  [[nodiscard]] const std::optional<Error>& error() const { return error_; }

  /// Clears the error and continues with what looks like the next entry. Everything after an unterminated comment
  /// belongs to the comment.
  void recover();

 private:
  bool skipBlanks();
  bool skipComment();
  bool readToken(Token& token, const char* expected);
  bool readQuoted(Token& token);
  bool readMark(char mark, const Token& after);
  bool fail(std::size_t offset, std::string expected);
  [[nodiscard]] std::size_t lineAfter(std::size_t place) const;

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t entryBegin_ = 0;
  Token key_{};
  Token value_{};
  std::vector<Token> comments_{};
  std::optional<Error> error_{};
};

/// Replaces the escapes in the `size` bytes at `token` with the characters they mean, which are never longer, and
/// returns the new size. Escapes are a backslash and
///
///     " \ n t r a b f v        the character, as in C
///     101                      one to three octal digits: a character up to U+00FF
///     Ue9, U00e9, Ud83c\Udf89  one to four hexadecimal digits, or two surrogates; a lone one becomes U+FFFD
///
/// Any other escaped character means itself; `unknown` receives the offsets of those backslashes.
std::size_t unescape(char* token, std::size_t size, std::vector<std::size_t>* unknown = nullptr);

}  // namespace zk
