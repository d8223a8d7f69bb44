#pragma once

#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <cstddef>
#include <functional>
#include <set>
#include <string>

namespace zk::tools {

/// Marks the entries of a translation for review whose English text is not the one that they were made from: the one
/// recorded before the entry, or else the one of `base`, the English table as it was until now. Entries that are still
/// in English get the new text, and comments with the English text and the context are kept up to date. Nothing is
/// marked if the change `keepsMeaning`; the keys `reviewed` are marked in any case. Returns the number of
/// entries that it has marked.
std::size_t markChanged(TableEditor& editor, const EnglishTexts& english, const Table& base,
                        bool keepsMeaning = false, const std::set<std::string, std::less<>>& reviewed = {});

}  // namespace zk::tools
