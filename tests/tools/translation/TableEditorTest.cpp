#include <ZKStrings/tools/translation/TableEditor.h>

#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using namespace zk::tools;

struct Case {
  const char* what;
  std::string before;
  std::function<void(TableEditor& editor)> edit;
  std::string after;
};

const TableEntry& entry(const TableEditor& editor, const char* key) {
  return *editor.table().find(key);
}

/// Inserts an entry behind the one of `key`; before all when that is null.
auto insertion(const char* key) {
  return [key](TableEditor& editor) {
    editor.insertAfter(key ? &entry(editor, key) : nullptr, "/* x */\n\"x\" = \"y\";\n");
  };
}
auto removal(const char* key) {
  return [key](TableEditor& editor) { editor.remove(entry(editor, key)); };
}
auto marking(const char* key, TranslationState state) {
  return [key, state](TableEditor& editor) { editor.setState(entry(editor, key), state); };
}

const std::string kInserted = "/* x */\n\"x\" = \"y\";\n";
const auto kUntranslated = TranslationState::untranslated;
const auto kNeedsReview = TranslationState::needsReview;
const auto kTranslated = TranslationState::translated;

const Case kCases[] = {
    {"no edit", "\xEF\xBB\xBF a=b ; // c\r\n", [](TableEditor&) {}, "\xEF\xBB\xBF a=b ; // c\r\n"},

    {"a text", "\"a\" = \"b\"; // \"b\"\n",
     [](TableEditor& editor) { editor.replaceText(entry(editor, "a"), "\"c\"\n"); },
     "\"a\" = \"\\\"c\\\"\\n\"; // \"b\"\n"},
    {"an unquoted text", "a=b;c=d;", [](TableEditor& editor) { editor.replaceText(entry(editor, "a"), "ä"); },
     "a=\"ä\";c=d;"},

    {"insertion", "\"a\" = \"b\";\n\"c\" = \"d\";\n", insertion("a"),
     "\"a\" = \"b\";\n" + kInserted + "\"c\" = \"d\";\n"},
    {"behind what stands on the line", "\"a\" = \"b\"; /* of\na */ // and b\n/* of c */\nc = d;\n",
     insertion("a"), "\"a\" = \"b\"; /* of\na */ // and b\n" + kInserted + "/* of c */\nc = d;\n"},
    {"between two on a line", "a = b; /* of c */ c = d;", insertion("a"),
     "a = b;\n" + kInserted + " /* of c */ c = d;"},
    {"at the end without line break", "a = b;", insertion("a"), "a = b;\n" + kInserted},
    {"among blank lines", "/* a */\n\na = b;\n\nc = d;\n", insertion("a"),
     "/* a */\n\na = b;\n\n" + kInserted + "\nc = d;\n"},
    {"before all", "/* German. */\n\n/* of a */ // more\na = b;\nc = d;\n", insertion(nullptr),
     "/* German. */\n\n" + kInserted + "/* of a */ // more\na = b;\nc = d;\n"},
    {"before all, among blank lines", "/* German. */\n\na = b;\n\nc = d;\n", insertion(nullptr),
     "/* German. */\n\n" + kInserted + "\na = b;\n\nc = d;\n"},
    {"behind the first, below the head", "/* German. */\n\na = b;\nc = d;\n", insertion("a"),
     "/* German. */\n\na = b;\n" + kInserted + "c = d;\n"},
    {"before what is told of the first", "/* check: off marks */\n\n/* of a */\na = b;\n", insertion(nullptr),
     kInserted + "/* check: off marks */\n\n/* of a */\na = b;\n"},
    {"into nothing", "", insertion(nullptr), kInserted},
    {"into a table of comments", "/* German. */", insertion(nullptr), "/* German. */\n" + kInserted},
    {"the line ends of the file", "a = b;\r\nc = d;\r\n", insertion("a"),
     "a = b;\r\n/* x */\r\n\"x\" = \"y\";\r\nc = d;\r\n"},

    {"removal", "a = b;\nc = d;\ne = f;\n", removal("c"), "a = b;\ne = f;\n"},
    {"of one among blank lines",
     "a = b;\n\n/* English: \"d\" */\n/* state: untranslated */\nc = d;\n\ne = f;\n", removal("c"),
     "a = b;\n\ne = f;\n"},
    {"of one with its comments",
     "a = b;\n\n/* A group */\n\n/* of c */\n// check: off marks\nc = d; // it\ne = f;\n", removal("c"),
     "a = b;\n\n/* A group */\n\ne = f;\n"},
    {"below the head", "/* German. */\na = b;\nc = d;\n", removal("a"), "/* German. */\nc = d;\n"},
    {"of one on a line", "a = b; c = d; e = f;", removal("c"), "a = b; e = f;"},
    {"of the last", "\na = b;", removal("a"), ""},

    {"a mark", "a = b;\n  // of c\n  c = d;\n", marking("c", kNeedsReview),
     "a = b;\n  // of c\n  /* state: needs-review */\n  c = d;\n"},
    {"on a line", "a = b; c = d;\n", marking("c", kUntranslated),
     "a = b; /* state: untranslated */ c = d;\n"},
    {"instead of another", "// state: untranslated\n/* x */ /* state: untranslated */ a = b;\n",
     marking("a", kNeedsReview), "/* state: needs-review */\n/* x */ a = b;\n"},
    {"none", "/* x */\n/* state: untranslated */\n/* y */\na = b;\n", marking("a", kTranslated),
     "/* x */\n/* y */\na = b;\n"},
    {"not that of the entry before", "a = b; // state: untranslated\nc = d;\n", marking("c", kNeedsReview),
     "a = b; // state: untranslated\n/* state: needs-review */\nc = d;\n"},
    {"within the entry", "a /* state: untranslated */ = b;\n", marking("a", kTranslated), "a = b;\n"},

    {"an insertion before a mark", "a = b;\nc = d;\n",
     [](TableEditor& editor) {
       editor.setState(entry(editor, "c"), kUntranslated);
       editor.insertAfter(&entry(editor, "a"), "x = y;\n");
       editor.insertAfter(&entry(editor, "a"), "z = y;\n");
     },
     "a = b;\nx = y;\nz = y;\n/* state: untranslated */\nc = d;\n"},
    {"all of one entry", "/* state: untranslated */\na = b;\n",
     [](TableEditor& editor) {
       editor.replaceText(entry(editor, "a"), "c");
       editor.setState(entry(editor, "a"), kTranslated);
     },
     "a = \"c\";\n"},
    {"all entries", "// state: untranslated\na = b;\n\n// state: untranslated\nc = d;\n",
     [](TableEditor& editor) {
       for (const TableEntry& one : editor.table().entries) editor.remove(one);
     },
     ""},
};

TEST(TableEditor, ChangesWhatItIsToldAndNothingElse) {
  for (const auto& [what, before, edit, after] : kCases) {
    TableEditor editor(before, "table");
    edit(editor);
    EXPECT_EQ(editor.edited(), after) << what << "\n" << before;
    EXPECT_EQ(editor.hasEdits(), before != after) << what;
  }
}

TEST(TableEditor, RefusesWhatItCouldHarm) {
  for (const std::string bytes : {"a = b", "/*", "\"a\" = \"\xFF\";"}) {
    EXPECT_THROW(TableEditor(bytes, "table"), CommandFailed) << bytes;
  }
  const std::string utf16 = "\xFF\xFE\"\0A\0\"\0=\0\"\0a\0\"\0;\0"s;
  ASSERT_TRUE(Table::parse(utf16, "table").diagnostics.empty());
  EXPECT_THROW(TableEditor(utf16, "table"), CommandFailed);
}

}  // namespace
