#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/authoring/Initialisation.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/project/CatalogueName.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/translation/Template.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

class OwnCatalogue : public ::testing::Test {
 protected:
  [[nodiscard]] std::string root() const { return directory_.path() + "/new/texts"; }

  zk::testing::TemporaryDirectory directory_;
};

TEST_F(OwnCatalogue, BeginsRightAndTakesTheSubcommands) {
  initCatalogue(root(), {"Texts", "my::app"});
  EXPECT_TRUE(check(root(), {}).faults.empty());  // no countries, and none missed
  EXPECT_EQ(addEntry(root(), {.text = "Bye, %{name}!"}), "Bye_name");
  EXPECT_GT(writeTemplate(root(), "de"), 0U);
  EXPECT_FALSE(
      std::filesystem::exists(root() + "/catalogue/Texts.h"));  // left to the build until they are wanted

  generate(root());
  EXPECT_NE(readFile(root(), "catalogue/Texts.h").find("namespace my::app {"), std::string::npos);
  EXPECT_NE(readFile(root(), "catalogue/Texts.cpp").find("\"Bye_name\", \"Bye, %{name}!\""),
            std::string::npos);
  removeEntry(root(), "Bye_name");
  EXPECT_EQ(readFile(root(), "catalogue/Texts.cpp").find("Bye_name"), std::string::npos);
}

TEST_F(OwnCatalogue, AccessorsOfAnyTextsCompileAsNames) {
  initCatalogue(root(), {"Texts", ""});
  for (const char* const text : {"Texts", "zk", "std", "class", "bundle"}) addEntry(root(), {.text = text});
  generate(root());
  const std::string header = readFile(root(), "catalogue/Texts.h");
  for (const char* const name : {" Texts_()", " zk()", " std()", " class_()", " bundle()"})
    EXPECT_NE(header.find(name), std::string::npos) << name;
  EXPECT_EQ(header.find("namespace"), std::string::npos);
}

TEST_F(OwnCatalogue, IsNotBegunOverFilesOrByAWrongName) {
  const CatalogueName wrong[] = {{"", ""},           {"ZKStrings", "a"}, {"1st", ""},     {"a b", ""},
                                 {"class", ""},      {"Ü", ""},          {"A", "b::"},    {"A", "::b"},
                                 {"A", "namespace"}, {"../A", ""},       {"same", "same"}};
  for (const CatalogueName& name : wrong) {
    EXPECT_THROW(initCatalogue(root(), name), std::invalid_argument) << name.name << " " << name.nameSpace;
  }
  EXPECT_FALSE(std::filesystem::exists(root()));
  directory_.write("new/texts/README.md", "mine");
  EXPECT_THROW(initCatalogue(root(), {"Texts", ""}), CommandFailed);
  EXPECT_FALSE(std::filesystem::exists(root() + "/catalogue"));
  EXPECT_EQ(readFile(root(), "README.md"), "mine");
}

TEST_F(OwnCatalogue, AFaultInItsNameIsToldWithItsPlace) {
  constexpr std::pair<const char*, std::size_t> kCases[] = {{"", 1},
                                                            {"{", 1},
                                                            {"[]", 1},
                                                            {"\"Texts\"", 1},
                                                            {"{\"name\": 3}", 1},
                                                            {"{\n\"name\": x}", 2},
                                                            {"{\"name\": \"Texts\", \"other\": \"\"}", 1},
                                                            {"{\"namespace\": \"a\"}", 1},
                                                            {"null", 1}};
  for (const auto& [json, line] : kCases) {
    try {
      static_cast<void>(CatalogueName::parse(json));
      ADD_FAILURE() << json;
    } catch (const CommandFailed& failed) {
      EXPECT_EQ(failed.faults.front().line, line) << json;
    }
  }
}

}  // namespace
}  // namespace zk::tools
