#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>

#include <optional>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

/// A project with the entries B, "ZZ" kept in its place, and D.
class EntryCommands : public ::testing::Test {
 protected:
  EntryCommands() {
    project_.write(Catalogue::kFile,
                   "[\n  {\"key\": \"B\", \"text\": \"B\"},\n  {\"key\": \"ZZ\", \"text\": \"ZZ\", \"kept\": "
                   "\"place\"},\n"
                   "  {\"key\": \"D\", \"text\": \"D\"}\n]\n");
    project_.write(tablePath("Base"), "/* English */\n\n\"B\" = \"B\";\n\"ZZ\" = \"ZZ\";\n\"D\" = \"D\";\n");
  }
  [[nodiscard]] std::string read(const std::string& path) const { return readFile(root(), path); }
  [[nodiscard]] const std::string& root() const { return project_.path(); }

  zk::testing::TemporaryDirectory project_;
};

TEST_F(EntryCommands, AddPutsTheEntryInItsPlaceEverywhere) {
  EXPECT_EQ(addEntry(root(), {.text = "C \"%{name}\"\n"}), "C_name_n");
  EXPECT_EQ(addEntry(root(), {.text = "a"}), "a");
  EXPECT_EQ(addEntry(root(), {.text = "D", .plural = true, .forms = {std::nullopt, "one D"}}), "D");
  EXPECT_EQ(
      read(tablePath("Base")),
      "/* English */\n\n\"a\" = \"a\";\n\"B\" = \"B\";\n\"C_name_n\" = \"C "
      "\\\"%{name}\\\"\\n\";\n\"ZZ\" = \"ZZ\";\n\"D\" = \"D\";\n"
      "\"D_zero\" = \"D\";\n\"D_one\" = \"one D\";\n\"D_two\" = \"D\";\n\"D_few\" = \"D\";\n\"D_many\" = "
      "\"D\";\n");
  std::string keys;
  const Catalogue catalogue = Catalogue::read(root());
  for (const Entry& entry : catalogue.entries()) keys += entry.key + (entry.plural ? "(count) " : " ");
  EXPECT_EQ(keys, "a B C_name_n ZZ D D(count) ");
  EXPECT_NE(read(CatalogueName().headerFile()).find("static std::string C_name_n(Text name);"),
            std::string::npos);
  EXPECT_NE(read(CatalogueName().sourceFile()).find("entryText(\"D\", \"D\", count)"), std::string::npos);
}

TEST_F(EntryCommands, AddTakesAKeyWhereTheTextGivesNone) {
  EXPECT_EQ(addEntry(root(), {.text = "🎉🎉", .key = "Confetti"}), "Confetti");
  EXPECT_EQ(addEntry(root(), {.text = "B!", .key = "B_loud"}), "B_loud");
  EXPECT_EQ(addEntry(root(), {.text = "C", .key = "C"}), "C");
  EXPECT_NE(read(Catalogue::kFile).find("{\"key\": \"Confetti\", \"text\": \"🎉🎉\", \"kept\": \"key\"}"),
            std::string::npos);
  EXPECT_NE(read(Catalogue::kFile).find("{\"key\": \"C\", \"text\": \"C\"}"), std::string::npos);
}

TEST_F(EntryCommands, AddRefusesWithoutChangingAnything) {
  const std::string before = read(Catalogue::kFile);
  const NewEntry cases[] = {
      {.text = "B"},
      {.text = "B!"},
      {.text = "!"},
      {.text = ""},
      {.text = "%{a}%{a}"},
      {.text = "%{a b}"},
      {.text = "No %{}"},
      {.text = "No %{unclosed"},
      {.text = "Counted", .plural = true},
      {.text = "Plain", .forms = {"no plain"}},
      {.text = "%{n} things", .plural = true, .forms = {std::nullopt, "%{m} thing"}},
      {.text = "Text", .key = "no key"},
      {.text = "Text", .key = "B"},
  };
  for (const NewEntry& added : cases) {
    EXPECT_THROW(addEntry(root(), added), std::invalid_argument) << added.text;
    EXPECT_EQ(read(Catalogue::kFile), before) << added.text;
  }
  EXPECT_THROW(addEntry(root(), {.text = "Not UTF-\xF8"}), std::invalid_argument);
  project_.write(tablePath("Base"), "\"B\" = \"B\"\n");
  EXPECT_THROW(addEntry(root(), {.text = "New"}), CommandFailed);
  EXPECT_EQ(read(Catalogue::kFile), before);

  // A folder stands where the accessors' source would go.
  project_.write(tablePath("Base"), "\"B\" = \"B\";\n");
  project_.write(CatalogueName().sourceFile() + "/x", "");
  EXPECT_THROW(addEntry(root(), {.text = "New"}), CommandFailed);
  EXPECT_EQ(read(Catalogue::kFile) + read(tablePath("Base")), before + "\"B\" = \"B\";\n");
}

/// As above, with the counted D and a German table in which one text is translated, one is not.
class EntryChanges : public EntryCommands {
 protected:
  EntryChanges() {
    addEntry(root(), {.text = "%{n} Ds", .plural = true, .forms = {"none", "%{n} D"}, .key = "Ds"});
    project_.write(
        tablePath("de"),
        "/* German */\n\n\"B\" = \"Be\";\n/* English: \"D\" */\n/* state: untranslated */\n\"D\" = "
        "\"D\";\n/* kept */\n\"Ds_one\" = \"%{n} De\";\n");
  }
};

TEST_F(EntryChanges, ChangeKeepsTheKeyAndMarksTranslations) {
  EXPECT_EQ(changeEntry(root(), "B", "Bee", {}), 1u);
  EXPECT_EQ(changeEntry(root(), "D", "Dee", {}), 0u);
  EXPECT_EQ(changeEntry(root(), "ZZ", "Zed", {}), 0u) << "an entry kept in its place";
  EXPECT_EQ(changeEntry(root(), "Ds", "%{n} Dees", {"none", "%{n} Dee"}), 1u);
  EXPECT_EQ(read(tablePath("de")),
            "/* German */\n\n/* state: needs-review */\n\"B\" = \"Be\";\n/* English: \"Dee\" */\n/* state: "
            "untranslated */\n\"D\" = \"Dee\";\n/* kept */\n/* state: needs-review */\n\"Ds_one\" = \"%{n} "
            "De\";\n");
  EXPECT_NE(read(Catalogue::kFile).find("{\"key\": \"B\", \"text\": \"Bee\", \"kept\": \"key\"}"),
            std::string::npos);
  const Table base = Table::read(root(), "Base");
  EXPECT_EQ(base.find("Ds_zero")->text + base.find("Ds_one")->text + base.find("Ds_many")->text,
            "none%{n} Dee%{n} Dees");
  EXPECT_NE(read(CatalogueName().sourceFile()).find("\"Bee\""), std::string::npos);
  changeEntry(root(), "B", "B", {});
  EXPECT_NE(read(Catalogue::kFile).find("{\"key\": \"B\", \"text\": \"B\"}"), std::string::npos);
}

TEST_F(EntryChanges, RemoveTakesTheTextOutEverywhere) {
  removeEntry(root(), "Ds");
  removeEntry(root(), "D");
  EXPECT_EQ(read(tablePath("de")), "/* German */\n\n\"B\" = \"Be\";\n/* kept */\n");
  EXPECT_EQ(read(tablePath("Base")), "/* English */\n\n\"B\" = \"B\";\n\"ZZ\" = \"ZZ\";\n");
  EXPECT_EQ(Catalogue::read(root()).entries().size(), 2u);
}

TEST_F(EntryChanges, RefuseWithoutChangingAnything) {
  const auto everything = [&] {
    return read(Catalogue::kFile) + read(tablePath("Base")) + read(tablePath("de"));
  };
  const std::string before = everything();
  EXPECT_THROW(changeEntry(root(), "Bx", "B", {}), std::invalid_argument);
  EXPECT_THROW(changeEntry(root(), "B", "", {}), std::invalid_argument);
  EXPECT_THROW(changeEntry(root(), "B", "%{b", {}), std::invalid_argument);
  EXPECT_THROW(changeEntry(root(), "B", "Bee", {"no Bs"}), std::invalid_argument);
  EXPECT_THROW(changeEntry(root(), "Ds", "%{n} Dees", {}), std::invalid_argument) << "forgotten forms";
  EXPECT_THROW(changeEntry(root(), "Ds", "%{n} Dees", {"no D\xE9s", "%{n} Dee"}), std::invalid_argument);
  EXPECT_THROW(removeEntry(root(), "d"), std::invalid_argument);
  project_.write(tablePath("fr"), "\"B\" = \"B\"\n");
  EXPECT_THROW(changeEntry(root(), "B", "Bee", {}), CommandFailed);
  EXPECT_THROW(removeEntry(root(), "B"), CommandFailed);
  EXPECT_EQ(everything(), before);
}

TEST_F(EntryCommands, GenerateKeepsReservedWordsOutOfTheCode) {
  project_.write(Catalogue::kFile, "[\n  {\"key\": \"or_class\", \"text\": \"or %{class}\"}\n]\n");
  generate(root());
  EXPECT_NE(read(CatalogueName().sourceFile()).find("or_class(Text class_)"), std::string::npos);
  EXPECT_NE(read(CatalogueName().sourceFile()).find("{{\"class\", class_}}"), std::string::npos);
}

}  // namespace
}  // namespace zk::tools
