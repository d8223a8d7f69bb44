#pragma once

#include <cstdint>
#include <string_view>

namespace zk::tools {

/// One plural form of a counted text.
struct PluralForm {
  std::string_view suffix;  ///< appended to the entry's key: "_few"
  std::string_view counts;  ///< the counts that use this form, for people: "3 to 5"
  std::int64_t example;     ///< one of those counts
};

/// The plural forms of every counted text, the same in every language.
inline constexpr PluralForm kPluralForms[] = {
    {"_zero", "0", 0}, {"_one", "1", 1}, {"_two", "2", 2}, {"_few", "3 to 5", 4}, {"_many", "6 or more", 11}};

}  // namespace zk::tools
