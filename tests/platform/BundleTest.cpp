#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

using testing::TemporaryDirectory;

TEST(Bundle, ListsItsDirectoryByExactNames) {
  const TemporaryDirectory directory;
  directory.write("de.lproj/Localizable.strings", "");
  directory.write("fr.lproj", "a file");
  directory.write("countries.json", "[]");
  directory.write(".lproj/x", "");
  directory.write("a.b.lproj/x", "");
  const Bundle* const bundle = Bundle::initWithPath(directory.path());
  ASSERT_NE(bundle, nullptr);
  ASSERT_NE(bundle->pathForResource("de", "lproj"), nullptr);
  EXPECT_EQ(bundle->pathForResource("de", "lproj")->string(), directory.path() + "/de.lproj");
  EXPECT_EQ(bundle->URLForResource("countries", "json"), directory.path() + "/countries.json");
  EXPECT_EQ(bundle->URLForResource("fr", "lproj"), directory.path() + "/fr.lproj");
  const std::pair<std::string_view, std::string_view> absent[] = {{"fr", "lproj"},
                                                                  {"DE", "lproj"},
                                                                  {"", "lproj"},
                                                                  {"d", "lproj"},
                                                                  {"de", ""},
                                                                  {"de.lproj", ""},
                                                                  {"a", "b.lproj"},
                                                                  {"../x", "lproj"},
                                                                  {"de.lproj/Localizable", "strings"},
                                                                  {std::string_view("de\0", 3), "lproj"},
                                                                  {".", "."}};
  for (const auto& [name, type] : absent)
    EXPECT_EQ(bundle->pathForResource(name, type), nullptr) << name << " " << type;
}

TEST(Bundle, LooksForAFileAfreshByOneName) {
  const TemporaryDirectory directory;
  directory.write("inner/countries.json", "[]");
  const Bundle& bundle = *Bundle::initWithPath(directory.path() + "/inner");
  const Bundle& outer = *Bundle::initWithPath(directory.path());
  EXPECT_EQ(outer.URLForResource("countries", "json"), std::nullopt);
  directory.write("countries.json", "[]");
  EXPECT_EQ(outer.URLForResource("countries", "json"), directory.path() + "/countries.json");
  std::filesystem::remove(directory.path() + "/inner/countries.json");
  const std::pair<std::string_view, std::string_view> absent[] = {
      {"countries", "json"}, {"../countries", "json"},    {".", ""},
      {"", "json"},          {"/", "/../countries.json"}, {"countries", std::string_view("json\0", 5)}};
  for (const auto& [name, extension] : absent)
    EXPECT_EQ(bundle.URLForResource(name, extension), std::nullopt) << name << " " << extension;
  EXPECT_EQ(Bundle::withoutResources("").URLForResource("tmp", ""), std::nullopt);
}

TEST(Bundle, OpensDirectoriesOnly) {
  const TemporaryDirectory directory;
  EXPECT_EQ(Bundle::initWithPath(directory.write("file", "")), nullptr);
  EXPECT_EQ(Bundle::initWithPath(directory.path() + "/missing"), nullptr);
  EXPECT_EQ(Bundle::initWithPath(directory.path()), Bundle::initWithPath(directory.path()));
}

TEST(Bundle, OfAModuleWithoutResourcesIsMadeOnce) {
  // This type belongs to the standard library, which has no texts of ours beside it, unless it is a part of this
  // program, as in a static one.
  std::error_code failure;
  const std::string own = fileHolding(typeid(TemporaryDirectory).name(), failure);
  const bool isPart = fileHolding(typeid(int).name(), failure) == own;
  const Bundle& none = Bundle::bundleForClass(typeid(int));
  EXPECT_EQ(&none, &Bundle::bundleForClass(typeid(int)));
  EXPECT_EQ(none.path(), isPart ? bundle().path() : "");
  EXPECT_EQ(none.pathForResource("Base", "lproj") != nullptr, isPart);
}

TEST(Bundle, GivesTheValueAndThenTheKeyForAMissingText) {
  const TemporaryDirectory directory;
  directory.write("Localizable.strings", "\"a\" = \"text\"; \"empty\" = \"\";");
  directory.write("Other.strings", "\"a\" = \"other\";");
  const Bundle& bundle = *Bundle::initWithPath(directory.path());
  EXPECT_EQ(bundle.localizedStringForKey("a", "value"), "text");
  EXPECT_EQ(bundle.localizedStringForKey("a", "value", "Other"), "other");
  EXPECT_EQ(bundle.localizedStringForKey("a", "value", "Missing"), "value");
  EXPECT_EQ(bundle.localizedStringForKey("b", "value"), "value");
  EXPECT_EQ(bundle.localizedStringForKey("b", ""), "b");
  EXPECT_EQ(bundle.localizedStringForKey("empty", "value"), "");
}

TEST(Bundle, ThreadsOpenOneTableAtOnce) {
  const TemporaryDirectory directory;
  directory.write("Localizable.strings", "\"a\" = \"text\";");
  const Bundle& bundle = *Bundle::initWithPath(directory.path());
  std::vector<const char*> found(8);
  std::vector<std::thread> threads;
  for (const char*& text : found)
    threads.emplace_back([&] { text = bundle.localizedStringForKey("a", "").data(); });
  for (std::thread& thread : threads) thread.join();
  for (const char* text : found) EXPECT_EQ(text, found[0]);
}

TEST(Bundle, GlobalsAreTheModulesResourcesAndTheAppsDirectory) {
  EXPECT_NE(bundle().pathForResource("Base", "lproj"), nullptr);
  EXPECT_EQ(&bundle(), &bundle());
  EXPECT_EQ(mainBundle().path(), std::filesystem::read_symlink("/proc/self/exe").parent_path());
  EXPECT_EQ(&mainBundle(), &mainBundle());
}

}  // namespace
}  // namespace zk
