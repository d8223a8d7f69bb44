#pragma once

#include <ZKStrings/tools/project/EnglishTexts.h>

#include <array>
#include <string>
#include <string_view>

namespace zk::tools {

/// Languages that nobody speaks, to find in an app what would break in one that somebody does: "xa", accented
/// and a third longer, and "xb", from right to left. Both are English, and readable.
inline constexpr std::array<std::string_view, 2> kPseudoLanguages = {"xa", "xb"};

/// `english` in "xa": "Kick %{username}?" gives "⟦Ķîîîçķ %{username}?⟧". What is cut off lacks a bracket,
/// what is joined has brackets in it, what comes from elsewhere has no accents. A plural form says which it is.
[[nodiscard]] std::string accentedText(const EnglishText& english);

/// `english` in "xb": each word runs from right to left by marks of direction, and so do the lines.
[[nodiscard]] std::string mirroredText(const EnglishText& english);

/// Writes both into the folder of resources `directory`, which it brings up to date with those of the project
/// at `root` besides. Throws `CommandFailed`, having written nothing, when `directory` is or lies in the
/// project's own resources, which are shipped, or when the catalogue or the English table is wrong; also when
/// a file cannot be written.
void writePseudoLanguages(const std::string& root, const std::string& directory);

}  // namespace zk::tools
