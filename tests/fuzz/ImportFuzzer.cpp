#include <ZKStrings/tests/fuzz/Fuzzing.h>
#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/exchange/Exchange.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/project/Table.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Imports files of translation programs. The first part of the input is the file name's extension, which names the
/// format.

namespace zk::fuzzing {

namespace {

using namespace zk::tools;
using testing::TemporaryDirectory;
using testing::TemporaryProject;

/// Returns whether `work` accepts its input. It must end in time.
template <class Work>
bool succeeds(std::size_t bytes, Work work) {
  const TimeLimit limit(bytes);
  try {
    work();
  } catch (const CommandFailed& failed) {
    require(!failed.diagnostics.empty() && !failed.diagnostics[0].message.empty(),
            "refused without a reason");
    return false;
  }
  return true;
}

void importInto(const TemporaryProject& project, const Translations& translations, std::size_t bytes) {
  const std::string table = TemporaryProject::table("de");
  const std::string before = "\"About\" = \"Info\";\n/* state: needs-review */\n\"Coins\" = \"Coins\";\n";
  project.write(table, before);
  const auto import = [&](Import& done) {
    return succeeds(bytes, [&] { done = importTranslations(project.root(), translations, "de.xlf", false); });
  };
  Import done;
  if (!import(done)) return require(project.read(table) == before, "refused, but the table is changed");
  const std::string after = project.read(table);
  require(Table::read(project.root(), "de").diagnostics.empty(), "the table is broken:\n" + after);
  Import again;
  require(import(again) && again.refused == done.refused, "a second import fails");
  require(project.read(table) == after, "a second import changes the table again:\n" + after);
}

std::size_t sizeOf(const Translations& translations) {
  std::size_t size = 0;
  for (const TranslationUnit& unit : translations.units)
    size += unit.key.size() + unit.source.size() + unit.target.size();
  return size;
}

/// Whether an export can have such a unit: it has a key and no carriage returns, and if it needs review, its target is not
/// the English text.
bool isExported(const TranslationUnit& unit) {
  const bool isBegun = unit.state == TranslationState::translated || unit.target != unit.source;
  return !unit.key.empty() && isBegun &&
         (unit.key + unit.source + unit.target).find('\r') == std::string::npos;
}

bool areSame(const std::vector<TranslationUnit>& sent, const std::vector<TranslationUnit>& back) {
  return std::equal(sent.begin(), sent.end(), back.begin(), back.end(),
                    [](const TranslationUnit& one, const TranslationUnit& other) {
                      return one.key == other.key && one.source == other.source && one.target == other.target;
                    });
}

/// Each format must read what it writes.
void sendAround(Translations translations, const TemporaryDirectory& directory) {
  translations.language = "de";
  std::erase_if(translations.units, [](const TranslationUnit& unit) { return !isExported(unit); });
  for (const auto& [format, name] : {std::pair{ExchangeFormat::xliff12, "a.xlf"},
                                     {ExchangeFormat::xliff20, "a.xlf"},
                                     {ExchangeFormat::po, "a.po"},
                                     {ExchangeFormat::csv, "a.csv"}}) {
    std::string bytes;
    if (!succeeds(sizeOf(translations), [&, kind = format] { bytes = written(translations, kind); }))
      continue;
    Translations back;
    const std::string file = directory.write(name, bytes);
    require(succeeds(bytes.size(), [&] { back = readTranslations(file); }),
            "it cannot be read again:\n" + bytes);
    require(areSame(translations.units, back.units), "it is read as something else:\n" + bytes);
  }
}

void tryTranslations(const std::string& ending, std::string_view bytes) {
  static const TemporaryProject project;
  static const TemporaryDirectory directory;
  const std::string file = directory.write("de." + ending, bytes);
  Translations translations;
  if (!succeeds(bytes.size(), [&] { translations = readTranslations(file); })) return;
  sendAround(translations, directory);
  translations.language = "de";
  importInto(project, translations, bytes.size());
}

}  // namespace

void test(std::string_view input) {
  const std::vector<std::string> parts = partsOf(input, 2);
  for (const char* ending : {"xlf", "po", "csv", "tsv"}) {
    if (parts[0] == ending) tryTranslations(ending, parts[1]);
  }
}

}  // namespace zk::fuzzing
