// Tests the module with damaged resources: it must return the documented result, and never hang, crash or leak.

#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <algorithm>
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
#include <utility>

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

/// A kind of damage, and the documented result for each resource that has it.
struct Shape {
  const char* name;
  void (*change)(const std::string& path);
  const char* table = "value";        // the text if the table of the first language is damaged
  const char* language = "français";  // the text if the directory of the first language is damaged
  const char* base = kStops;          // the text in an unknown language if Base.lproj is damaged
  std::size_t countries = 0;
};

const Shape kShapes[] = {
    {.name = "what it should be",
     .change = [](const std::string&) {},
     .table = "deutsch",
     .language = "deutsch",
     .base = "base",
     .countries = 2},
    {.name = "a link to what it should be",
     .change =
         [](const std::string& path) {
           fs::rename(path, path + ".real");
           makeLink(path, path + ".real");
         },
     .table = "deutsch",
     .language = "deutsch",
     .base = "base",
     .countries = 2},
    {.name = "enormous",
     .change = makeEnormous,
     .table = "deutsch",
     .language = "deutsch",
     .base = "base",
     .countries = 2},
    {.name = "missing", .change = [](const std::string& path) { fs::remove_all(path); }},
    {.name = "an empty file", .change = [](const std::string& path) { makeFile(path, ""); }},
    {.name = "one byte", .change = [](const std::string& path) { makeFile(path, "\""); }},
    {.name = "64 MB of zeros",
     .change =
         [](const std::string& path) {
           makeFile(path, "");
           fs::resize_file(path, kMany);
         }},
    {.name = "a file cut short",
     .change =
         [](const std::string& path) {
           const std::string whole = fs::is_directory(path) ? "" : contents(path);
           makeFile(path, whole.substr(0, whole.size() / 2));
         }},
    {.name = "an empty directory",
     .change =
         [](const std::string& path) {
           fs::remove_all(path);
           fs::create_directory(path);
         },
     .language = "value",
     .base = "value"},
    {.name = "a FIFO", .change = [](const std::string& path) { makeNode(path, S_IFIFO); }},
    {.name = "a socket", .change = [](const std::string& path) { makeNode(path, S_IFSOCK); }},
    {.name = "a dangling link", .change = [](const std::string& path) { makeLink(path, "nothing"); }},
    {.name = "a link to itself", .change = [](const std::string& path) { makeLink(path, path); }},
    {.name = "unreadable", .change = [](const std::string& path) { chmod(path.c_str(), 0); }},
};

/// A correct resource directory, except for one path in it. Everybody may read it.
class Resources {
 public:
  Resources() : Resources("", [](const std::string&) {}) {}
  Resources(const std::string& name, void (*change)(const std::string&)) : shaped_(path() + "/" + name) {
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

  [[nodiscard]] std::string text(const char* identifier) const {
    Current::language->preferredLanguages = {identifier, "fr-FR"};
    return localizedString(Bundle::initWithPath(path()), "a", "value", std::nullopt, {});
  }

  [[nodiscard]] std::string english() const {
    Current::language->preferredLanguages = {"xx"};
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
  OrdinaryUser() : was_(geteuid()) {
    constexpr uid_t kNobody = 65534;
    isOne_ = was_ != 0 || seteuid(kNobody) == 0;
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() { isOne_ = seteuid(was_) == 0; }
  explicit operator bool() const { return isOne_; }

 private:
  uid_t was_;
  bool isOne_;
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
  const Shape& shape = GetParam();
  const Resources ofTable("de.lproj/Localizable.strings", shape.change);
  const Resources ofLanguage("de.lproj", shape.change);
  const Resources ofBase("Base.lproj", shape.change);
  const Resources ofCountries("countries.json", shape.change);
  const OrdinaryUser user;
  std::error_code unreachable;
  if (!user || !fs::exists(ofTable.path() + "/de.lproj", unreachable))
    GTEST_SKIP() << "needs to be an ordinary user here";
  const std::ptrdiff_t before = openDescriptors();
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(ofTable.text("de-DE"), shape.table);
    EXPECT_EQ(ofLanguage.text("de-DE"), shape.language);
    EXPECT_EQ(countriesIn(*Bundle::initWithPath(ofCountries.path())).size(), shape.countries);
    if (shape.base == kStops) {
      EXPECT_DEATH(static_cast<void>(ofBase.english()), "^$");
    } else {
      EXPECT_EQ(ofBase.english(), shape.base);
    }
  }
  const bool isOpened = Bundle::initWithPath(ofLanguage.path() + "/de.lproj") != nullptr;
  EXPECT_EQ(isOpened, std::string_view(shape.language) != "français");
  EXPECT_EQ(openDescriptors(), before);
}

std::string nameOf(const ::testing::TestParamInfo<Shape>& info) {
  std::string name = info.param.name;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Resource, FilesDeathTest, ::testing::ValuesIn(kShapes), nameOf);

/// Replaces the contents of the file with `bytes`.
using Replace = void (*)(const std::string& path, const std::string& bytes);

// A file that is read while it is written has its old contents, its new contents or none. If it is replaced as a
// whole, it always has contents.
TEST(Files, MayChangeWhileTheyAreRead) {
  const std::pair<Replace, bool> ways[] = {
      {[](const std::string& path, const std::string& bytes) {
         std::ofstream(path, std::ios::binary) << bytes;
       },
       true},
      {[](const std::string& path, const std::string& bytes) {
         makeFile(path + ".new", bytes);
         fs::rename(path + ".new", path);
       },
       false},
  };
  alarm(kSecondsForAll);
  Current::language = Language{};
  for (const auto& [replace, mayBeNothing] : ways) {
    const Resources resources;
    const std::string table = resources.path() + "/de.lproj/Localizable.strings";
    const std::string countries = resources.path() + "/countries.json";
    const std::string more = "\"a\" = \"long\";" + std::string(100000, '\n') + "\"b\" = \"b\";";
    const std::string fewer = "\"a\" = \"short\"; \"b\" = \"b\";";
    const std::string one = R"({"name": "Austria", "phoneCode": 43, "iso": "AT"})";
    std::string many = one;
    for (int i = 1; i < 1000; ++i) many += "," + one;
    const auto write = [&, &write = replace](int round) {
      write(table, round % 2 == 0 ? more : fewer);
      write(countries, "[" + (round % 2 == 0 ? many : one) + "]");
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
      EXPECT_TRUE(text == "long" || text == "short" || (mayBeNothing && text == "nothing")) << text;
      const std::size_t found = countriesIn(*Bundle::initWithPath(resources.path())).size();
      EXPECT_TRUE(found == 1 || found == 1000 || (mayBeNothing && found == 0)) << found;
    }
    done = true;
    writer.join();
  }
  alarm(0);
}

}  // namespace
}  // namespace zk
