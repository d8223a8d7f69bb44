#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <bit>
#include <filesystem>
#include <future>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

using namespace std::string_view_literals;
using testing::TemporaryDirectory;

TEST(Bundle, ListsItsDirectoryByExactNames) {
  const TemporaryDirectory directory;
  for (const char* file :
       {"de.lproj/Localizable.strings", "fr.lproj", "countries.json", ".lproj/x", "a.b.lproj/x"})
    directory.write(file, "");
  const Bundle* const bundle = Bundle::initWithPath(directory.path());
  ASSERT_TRUE(bundle && bundle->pathForResource("de", "lproj"));
  EXPECT_EQ(bundle->pathForResource("de", "lproj")->string(), directory.path() + "/de.lproj");
  EXPECT_EQ(bundle->URLForResource("countries", "json"), directory.path() + "/countries.json");
  EXPECT_EQ(bundle->URLForResource("fr", "lproj"), directory.path() + "/fr.lproj");
  using Name = std::pair<std::string_view, std::string_view>;
  for (const auto& [name, type] :
       {Name("fr", "lproj"), Name("DE", "lproj"), Name("", "lproj"), Name("d", "lproj"), Name("de", ""),
        Name("de.lproj", ""), Name("a", "b.lproj"), Name("../x", "lproj"),
        Name("de.lproj/Localizable", "strings"), Name("de\0"sv, "lproj"), Name(".", ".")})
    EXPECT_EQ(bundle->pathForResource(name, type), nullptr) << name << " " << type;
}

TEST(Bundle, TellsNamesWithTheSameHashApart) {
  const std::string name = "Badges_and_coins", other = "AtGzMlWNnFiLNmWI";
  if constexpr (std::endian::native == std::endian::little) {
    ASSERT_EQ(wordOf(name), wordOf(other));
  }
  const TemporaryDirectory directory;
  directory.write(name + ".lproj/x", "");
  directory.write("a." + name + "/x", "");
  const Bundle& bundle = *Bundle::initWithPath(directory.path());
  EXPECT_NE(bundle.pathForResource(name, "lproj"), nullptr);
  EXPECT_NE(bundle.pathForResource("a", name), nullptr);
  EXPECT_EQ(bundle.pathForResource(other, "lproj"), nullptr);
  EXPECT_EQ(bundle.pathForResource("a", other), nullptr);
}

TEST(Bundle, LooksForAFileOnEveryCall) {
  const TemporaryDirectory directory;
  directory.write("inner/countries.json", "[]");
  const Bundle& bundle = *Bundle::initWithPath(directory.path() + "/inner");
  const Bundle& outer = *Bundle::initWithPath(directory.path());
  EXPECT_EQ(outer.URLForResource("countries", "json"), std::nullopt);
  directory.write("countries.json", "[]");
  EXPECT_EQ(outer.URLForResource("countries", "json"), directory.path() + "/countries.json");
  std::filesystem::remove(directory.path() + "/inner/countries.json");
  using Name = std::pair<std::string_view, std::string_view>;
  for (const auto& [name, extension] :
       {Name("countries", "json"), Name("../countries", "json"), Name(".", ""), Name("", "json"),
        Name("/", "/../countries.json"), Name("countries", "json\0"sv)})
    EXPECT_EQ(bundle.URLForResource(name, extension), std::nullopt) << name << " " << extension;
  EXPECT_EQ(Bundle::withoutResources("").URLForResource("tmp", ""), std::nullopt);
}

TEST(Bundle, OpensADirectoryOnceAndNothingElse) {
  const TemporaryDirectory directory;
  EXPECT_EQ(Bundle::initWithPath(directory.write("file", "")), nullptr);
  EXPECT_EQ(Bundle::initWithPath(directory.path() + "/missing"), nullptr);
  EXPECT_EQ(Bundle::initWithPath(directory.path()), Bundle::initWithPath(directory.path()));
}

TEST(Bundle, OfCodeHasTheResourcesNextToIt) {
  EXPECT_NE(bundle().pathForResource("Base", "lproj"), nullptr);
  EXPECT_EQ(&bundle(), &bundle());
  EXPECT_EQ(&mainBundle(), &mainBundle());
  // This type belongs to the standard library, which has none of our resources next to it, unless it is part of this
  // program, as in a static program.
  std::error_code failure;
  const std::string own = fileHolding(typeid(TemporaryDirectory).name(), failure);
  const bool isPart = fileHolding(typeid(int).name(), failure) == own;
  const Bundle& none = Bundle::bundleForClass(typeid(int));
  EXPECT_EQ(&none, &Bundle::bundleForClass(typeid(int)));
  EXPECT_EQ(none.path(), isPart ? bundle().path() : "");
  EXPECT_EQ(none.pathForResource("Base", "lproj") != nullptr, isPart);
  // The name of other resources must be a single name.
  for (const char* name : {"", ".", "..", "a/b", "../share/ZKStrings", "nothing there"})
    EXPECT_EQ(Bundle::bundleForClass(typeid(TemporaryDirectory), name).path(), "") << name;
  EXPECT_NE(Bundle::bundleForClass(typeid(TemporaryDirectory), "ZKStrings").path(), "");
}

TEST(Bundle, ReturnsTheValueOrElseTheKeyForAMissingText) {
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
  std::vector<std::future<const char*>> threads(8);
  for (auto& thread : threads)
    thread = std::async(std::launch::async, [&] { return bundle.localizedStringForKey("a", "").data(); });
  std::set<const char*> found;
  for (auto& thread : threads) found.insert(thread.get());
  EXPECT_EQ(found.size(), 1u);
}

}  // namespace
}  // namespace zk
