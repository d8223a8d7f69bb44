#pragma once

#include <ZKStrings/tools/adoption/ForeignTexts.h>
#include <ZKStrings/tools/support/Fault.h>

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The entries of a .stringsdict file with the text `xml`, each with its plural forms as whole texts: the
/// format "%#@coins@ left" with the variable's form "%d coin" gives "%1$@ coin left". A string without forms
/// is an entry without. What cannot be read is added to `faults`, as a format with several variables, whose
/// forms would have to be multiplied.
[[nodiscard]] std::vector<ForeignEntry> readPluralDictionary(std::string_view xml, const std::string& file,
                                                             Faults& faults);

}  // namespace zk::tools
