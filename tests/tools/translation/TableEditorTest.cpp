#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using namespace zk::tools;

/// Edits the entry of `key`. `action` is a state, "remove", "insert" or the new text of the entry.
void edit(TableEditor& editor, const std::string& action, const nlohmann::json& key) {
  constexpr std::pair<const char*, TranslationState> kStates[] = {
      {"untranslated", TranslationState::untranslated},
      {"needs-review", TranslationState::needsReview},
      {"translated", TranslationState::translated}};
  const TableEntry* const entry = key.is_null() ? nullptr : editor.table().find(key.get<std::string>());
  for (const auto& [name, state] : kStates) {
    if (action == name) return editor.setState(*entry, state);
  }
  if (action == "insert") return editor.insertAfter(entry, "/* x */\n\"x\" = \"y\";\n");
  if (action == "remove") return editor.remove(*entry);
  editor.replaceText(*entry, action);
}

TEST(TableEditor, ChangesNothingButWhatIsAskedFor) {
  using Edits = std::vector<std::pair<std::string, nlohmann::json>>;
  for (const auto& [what, before, edits, after] :
       zk::testing::rowsOf<std::string, std::string, Edits, std::string>(
           "tools/translation/TableEditorTest.json")) {
    TableEditor editor(before, "table");
    for (const auto& [action, key] : edits) edit(editor, action, key);
    EXPECT_EQ(editor.edited(), after) << what << "\n" << before;
    EXPECT_EQ(editor.hasEdits(), before != after) << what;
  }
}

TEST(TableEditor, RefusesTablesThatAnEditCouldDamage) {
  for (const std::string bytes : {"a = b", "/*", "\"a\" = \"\xFF\";"})
    EXPECT_THROW(TableEditor(bytes, "table"), CommandFailed) << bytes;
  const std::string utf16 = "\xFF\xFE\"\0A\0\"\0=\0\"\0a\0\"\0;\0"s;
  ASSERT_TRUE(Table::parse(utf16, "table").diagnostics.empty());
  EXPECT_THROW(TableEditor(utf16, "table"), CommandFailed);
}

}  // namespace
