#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/layout/PseudoLocales.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kAccentedSmall[] = {"å", "ƀ", "ç", "đ", "é", "ƒ", "ĝ", "ĥ", "î",
                                               "ĵ", "ķ", "ļ", "ɱ", "ñ", "ö", "þ", "ǫ", "ŕ",
                                               "š", "ţ", "û", "ṽ", "ŵ", "ẋ", "ý", "ž"};
constexpr std::string_view kAccentedCapital[] = {"Å", "Ɓ", "Ç", "Đ", "É", "Ƒ", "Ĝ", "Ĥ", "Î",
                                                 "Ĵ", "Ķ", "Ļ", "Ḿ", "Ñ", "Ö", "Þ", "Ǫ", "Ŕ",
                                                 "Š", "Ţ", "Û", "Ṽ", "Ŵ", "Ẋ", "Ý", "Ž"};

constexpr std::string_view kRightToLeftMark = "\u200F";
constexpr std::string_view kRightToLeftOverride = "\u202E";
constexpr std::string_view kEndOfOverride = "\u202C";

using Kind = TextPiece::Kind;

/// Applies `make` to `text` without the white space at its ends, which is kept.
template <class Make>
std::string withinSpaces(std::string_view text, const Make& make) {
  constexpr std::string_view kSpaces = " \t\n";
  const std::size_t begin = std::min(text.find_first_not_of(kSpaces), text.size());
  const std::size_t end = std::max(text.find_last_not_of(kSpaces) + 1, begin);
  return std::string(text.substr(0, begin)) + make(text.substr(begin, end - begin)) +
         std::string(text.substr(end));
}

std::string accented(char letter) {
  if (letter >= 'a' && letter <= 'z') return std::string(kAccentedSmall[letter - 'a']);
  if (letter >= 'A' && letter <= 'Z') return std::string(kAccentedCapital[letter - 'A']);
  return {letter};
}

/// `text` with accents, and with every second letter doubled.
std::string accentedAndLonger(std::string_view text) {
  std::string result;
  bool isDoubled = false;
  for (const TextPiece& piece : piecesOf(text)) {
    if (piece.kind != Kind::words) {
      result += piece.text;
      continue;
    }
    for (const char character : piece.text) {
      const std::string letter = accented(character);
      const bool isLetter = letter.size() > 1;
      isDoubled = isDoubled != isLetter;
      result += letter;
      if (isLetter && isDoubled) result += letter;
    }
  }
  return result;
}

/// `text` with each word reversed by direction marks, and with right-to-left marks at line breaks.
std::string reversed(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t space = std::min(text.find_first_not_of(" \n"), text.size());
    const std::size_t end = std::min(text.find_first_of(" \n", space), text.size());
    result += text.substr(0, space);
    if (end > space) {
      result.append(kRightToLeftOverride).append(text.substr(space, end - space)).append(kEndOfOverride);
    }
    text.remove_prefix(end);
  }
  return replaceAll(result, "\n", fmt::format("{0}\n{0}", kRightToLeftMark));
}

std::string nameOfForm(const EnglishText& english) {
  return english.form ? " ·" + std::string(english.form->suffix.substr(1)) : "";
}

std::string tableOf(const EnglishTexts& english, std::string (*make)(const EnglishText&)) {
  std::string table;
  for (const EnglishText& text : english.all()) table += tableLine(text.key, make(text));
  return table;
}

/// Throws if `directory` is in the project's own resources, directly or through links.
void refuseShipped(const fs::path& resources, const std::string& directory) {
  std::error_code failure;
  const fs::path shipped = fs::canonical(resources, failure);
  if (failure) return;
  const fs::path folder =
      fs::weakly_canonical(fs::absolute(nativePath(directory)), failure).lexically_relative(shipped);
  if (!failure && !folder.empty() && *folder.begin() != "..")  // empty on another drive
    fail(directory,
         "these resources are shipped and must not contain pseudo-locales; name the folder of "
         "another build or installation");
}

/// Copies of the files in `resources`, below `folder`.
std::vector<FileChange> copiesOf(const fs::path& resources, const std::string& folder) {
  std::vector<FileChange> copies;
  std::error_code failure;
  fs::recursive_directory_iterator file(resources, failure);
  for (; !failure && file != fs::recursive_directory_iterator(); file.increment(failure)) {
    std::error_code brokenLink;
    if (!file->is_regular_file(brokenLink)) continue;
    const std::string path = file->path().lexically_relative(resources).generic_string();
    copies.push_back({pathBelow(folder, path), readFile(resources.generic_string(), path)});
  }
  if (failure) fail(resources.generic_string(), "the folder cannot be listed; make it readable");
  return copies;
}

}  // namespace

std::string accentedText(const EnglishText& english) {
  return withinSpaces(english.text, [&](std::string_view text) {
    return "⟦" + accentedAndLonger(text) + nameOfForm(english) + "⟧";
  });
}

std::string mirroredText(const EnglishText& english) {
  const std::string mark(kRightToLeftMark);
  return withinSpaces(english.text, [&](std::string_view text) {
    std::string result = mark;
    for (const TextPiece& piece : piecesOf(text))
      result += piece.kind == Kind::words ? reversed(piece.text) : std::string(piece.text);
    return result + reversed(nameOfForm(english)) + mark;
  });
}

void writePseudoLocales(const std::string& root, const std::string& directory) {
  const fs::path resources = nativePath(root) / "resources";
  refuseShipped(resources, directory);
  const Catalogue catalogue = Catalogue::read(root);
  const EnglishTexts english(catalogue);
  const std::string output = absolutePath(directory);
  const auto keyOf = [](const EnglishText& text) { return text.key; };
  std::vector<FileChange> files = copiesOf(resources, output);
  files.insert(files.begin(), {{output + "/xa.lproj/Localizable.strings", tableOf(english, accentedText)},
                               {output + "/xb.lproj/Localizable.strings", tableOf(english, mirroredText)},
                               {output + "/xk.lproj/Localizable.strings", tableOf(english, keyOf)}});
  writeFiles(output, files);
}

}  // namespace zk::tools
