// Tests the module with damaged resources: it must return the documented result, and never hang, crash or leak.

#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk {
namespace {

namespace fs = std::filesystem;
using testing::TemporaryDirectory;

void makeNode(const std::string& path, mode_t type) {
  fs::remove_all(path);
  ASSERT_EQ(mknod(path.c_str(), type | 0644, 0), 0) << path;
}

void makeLink(const std::string& path, const std::string& target) {
  fs::remove_all(path);
  fs::create_symlink(target, path);
}

void makeFile(const std::string& path, std::string_view bytes) {
  fs::remove_all(path);
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

constexpr unsigned kSecondsForAll = 120;
constexpr std::size_t kMany = 64 << 20;

/// Adds many blanks at the beginning of the file, or many files to the directory.
void makeEnormous(const std::string& path) {
  if (!fs::is_directory(path)) return makeFile(path, std::string(kMany, ' ') + contents(path));
  for (int i = 0; i < 2000; ++i) std::ofstream(path + "/" + std::to_string(i) + ".strings");
}

constexpr const char* kStops = "the process stops";

/// What the module returns with one damaged resource.
struct Result {
  const char* table;      // the text if the table of the first language is damaged
  const char* language;   // the text if the directory of the first language is damaged
  const char* base;       // the text in an unknown language if Base.lproj is damaged
  std::size_t countries;  // if their file is damaged
};
constexpr Result kUndamaged = {"deutsch", "deutsch", "base", 2};
constexpr Result kUnreadable = {"value", "français", kStops, 0};
constexpr Result kWithoutTable = {"value", "value", "value", 0};

void moveBehindLink(const std::string& path) {
  fs::rename(path, path + ".real");
  makeLink(path, path + ".real");
}

void makeZeros(const std::string& path) {
  makeFile(path, "");
  fs::resize_file(path, kMany);
}

void cutShort(const std::string& path) {
  const std::string whole = fs::is_directory(path) ? "" : contents(path);
  makeFile(path, whole.substr(0, whole.size() / 2));
}

void makeEmptyDirectory(const std::string& path) {
  fs::remove_all(path);
  fs::create_directory(path);
}

using Path = const std::string&;

/// A kind of damage, and the documented result for each resource that has it.
struct Shape {
  const char* name;
  void (*change)(Path path);
  const Result& result = kUnreadable;
};

const Shape kShapes[] = {
    {.name = "AsItShouldBe", .change = [](Path) {}, .result = kUndamaged},
    {.name = "LinkToWhatItShouldBe", .change = moveBehindLink, .result = kUndamaged},
    {.name = "Enormous", .change = makeEnormous, .result = kUndamaged},
    {.name = "Missing", .change = [](Path path) { fs::remove_all(path); }},
    {.name = "EmptyFile", .change = [](Path path) { makeFile(path, ""); }},
    {.name = "OneByte", .change = [](Path path) { makeFile(path, "\""); }},
    {.name = "Zeros", .change = makeZeros},
    {.name = "CutShort", .change = cutShort},
    {.name = "EmptyDirectory", .change = makeEmptyDirectory, .result = kWithoutTable},
    {.name = "Fifo", .change = [](Path path) { makeNode(path, S_IFIFO); }},
    {.name = "Socket", .change = [](Path path) { makeNode(path, S_IFSOCK); }},
    {.name = "DanglingLink", .change = [](Path path) { makeLink(path, "nothing"); }},
    {.name = "LinkToItself", .change = [](Path path) { makeLink(path, path); }},
    {.name = "WithoutPermission", .change = [](Path path) { chmod(path.c_str(), 0); }},
};

/// A correct resource directory, except for one path in it. Everybody may read it.
class Resources {
 public:
  Resources() : Resources("", [](Path) {}) {}
  Resources(Path name, void (*change)(Path)) : shaped_(path() + "/" + name) {
    directory_.write("Base.lproj/Localizable.strings", "\"a\" = \"base\";");
    directory_.write("de.lproj/Localizable.strings", "/* a */ \"a\" = \"deutsch\"; \"b\" = \"b\";");
    directory_.write("fr.lproj/Localizable.strings", "\"a\" = \"français\";");
    directory_.write("countries.json", R"([{"name": "Austria", "phoneCode": 43, "iso": "AT"},)"
                                       R"( {"name": "Belgium", "phoneCode": 32, "iso": "BE"}])");
    chmod(path().c_str(), 0755);
    change(shaped_);
  }
  Resources(const Resources&) = delete;
  Resources& operator=(const Resources&) = delete;
  ~Resources() { chmod(shaped_.c_str(), 0755); }  // to be removed

  [[nodiscard]] const std::string& path() const { return directory_.path(); }

  [[nodiscard]] std::string text(const SharedArray<std::string>& languages) const {
    Current::language->preferredLanguages = languages;
    return localizedString(Bundle::initWithPath(path()), "a", "value", std::nullopt, {});
  }

 private:
  TemporaryDirectory directory_;
  std::string shaped_;
};

std::ptrdiff_t openDescriptors() {
  return std::distance(fs::directory_iterator("/proc/self/fd"), {});
}

/// Removes root's permissions from the process while this object exists. False if that is impossible.
class OrdinaryUser {
 public:
  OrdinaryUser() = default;
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() { isOne_ = seteuid(getuid()) == 0; }
  explicit operator bool() const { return isOne_; }

 private:
  static constexpr uid_t kNobody = 65534;
  bool isOne_ = getuid() != 0 || seteuid(kNobody) == 0;
};

class FilesDeathTest : public ::testing::TestWithParam<Shape> {
 protected:
  void SetUp() override {
    alarm(kSecondsForAll);  // ends a test that hangs
    Current::language = Language{};
  }
  void TearDown() override { alarm(0); }
};

TEST_P(FilesDeathTest, HaveTheDocumentedResult) {
  const auto& [name, change, result] = GetParam();
  const Resources ofTable("de.lproj/Localizable.strings", change);
  const Resources ofLanguage("de.lproj", change);
  const Resources ofBase("Base.lproj", change);
  const Resources ofCountries("countries.json", change);
  const OrdinaryUser user;
  std::error_code unreachable;
  if (!user || !fs::exists(ofTable.path() + "/de.lproj", unreachable))
    GTEST_SKIP() << "needs to be an ordinary user here";
  const std::ptrdiff_t before = openDescriptors();
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(ofTable.text({"de-DE", "fr-FR"}), result.table);
    EXPECT_EQ(ofLanguage.text({"de-DE", "fr-FR"}), result.language);
    EXPECT_EQ(countriesIn(*Bundle::initWithPath(ofCountries.path())).size(), result.countries);
    if (result.base == kStops) {
      EXPECT_DEATH(static_cast<void>(ofBase.text({"xx"})), "^$");
    } else {
      EXPECT_EQ(ofBase.text({"xx"}), result.base);
    }
  }
  const bool isOpened = Bundle::initWithPath(ofLanguage.path() + "/de.lproj") != nullptr;
  EXPECT_EQ(isOpened, std::string_view(result.language) != "français");
  EXPECT_EQ(openDescriptors(), before);
}

INSTANTIATE_TEST_SUITE_P(Resource, FilesDeathTest, ::testing::ValuesIn(kShapes),
                         [](const auto& shape) { return shape.param.name; });

// A file that is read while it is written has its old contents, its new contents or none. If it is replaced as a
// whole, it always has contents.
TEST(Files, MayChangeWhileTheyAreRead) {
  alarm(kSecondsForAll);
  Current::language = Language{};
  for (const bool isReplaced : {false, true}) {
    const Resources resources;
    const auto writeOne = [&](const std::string& name, const std::string& bytes) {
      const std::string path = resources.path() + "/" + name;
      std::ofstream(isReplaced ? path + ".new" : path, std::ios::binary) << bytes;
      if (isReplaced) fs::rename(path + ".new", path);
    };
    const std::string one = R"({"name": "Austria", "phoneCode": 43, "iso": "AT"})";
    std::string many = one;
    for (int i = 1; i < 1000; ++i) many += "," + one;
    const auto write = [&](int round) {
      const bool isLong = round % 2 == 0;
      writeOne("de.lproj/Localizable.strings",
               isLong ? "\"a\" = \"long\";" + std::string(100000, '\n') + "\"b\" = \"b\";"
                      : "\"a\" = \"short\"; \"b\" = \"b\";");
      writeOne("countries.json", "[" + (isLong ? many : one) + "]");
    };
    write(0);
    std::atomic<bool> done = false;
    std::thread writer([&] {
      for (int round = 0; !done; ++round) write(round);
    });
    for (int round = 0; round < 300; ++round) {
      // Under another name, the directory is opened again.
      const std::string name = resources.path() + "/" + std::to_string(round);
      fs::create_directory_symlink(resources.path() + "/de.lproj", name);
      const std::string text(Bundle::initWithPath(name)->localizedStringForKey("a", "nothing"));
      EXPECT_TRUE(text == "long" || text == "short" || (!isReplaced && text == "nothing")) << text;
      const std::size_t found = countriesIn(*Bundle::initWithPath(resources.path())).size();
      EXPECT_TRUE(found == 1 || found == 1000 || (!isReplaced && found == 0)) << found;
    }
    done = true;
    writer.join();
  }
  alarm(0);
}

}  // namespace
}  // namespace zk
