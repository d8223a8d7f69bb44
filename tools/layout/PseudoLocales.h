#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <string>

namespace zk::tools {

/// `english` in the pseudo-locale "xa": accented and at least a third longer, to find layouts that break. "Kick %{username}?"
/// becomes "⟦ĶĶîççķ %{username}?⟧". A text that is cut off lacks a bracket, one that is joined from parts has brackets within,
/// and one that is not translatable has no accents. A plural form is followed by its name.
[[nodiscard]] std::string accentedText(const EnglishText& english);

/// `english` in the pseudo-locale "xb": marks of direction make lines and words run from right to left.
[[nodiscard]] std::string mirroredText(const EnglishText& english);

/// Copies the project's resources to `directory` and adds "xa", "xb", and "xk", in which every text is its key. Throws
/// `CommandFailed`, and writes nothing, if `directory` is in the project's resources, or if a file is wrong or not writable.
void writePseudoLocales(const std::string& root, const std::string& directory);

}  // namespace zk::tools
