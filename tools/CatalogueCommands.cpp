#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/tools/AccessorGenerator.h>
#include <ZKStrings/tools/Catalogue.h>
#include <ZKStrings/tools/CatalogueCommands.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/Table.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace zk::tools {

namespace {

Table readBase(const std::string& root) {
  Table base = Table::read(root, kBase);
  if (!base.faults.empty()) throw CommandFailed{std::move(base.faults)};
  return base;
}

void writeAccessors(const std::string& root, const Catalogue& catalogue, const Table& base) {
  const Accessors accessors = generateAccessors(catalogue, base);
  writeFile(root, Accessors::kHeaderFile, accessors.header);
  writeFile(root, Accessors::kSourceFile, accessors.source);
}

/// The English table's text with the lines of the new `entry` in it, behind those of the looked-up key before
/// it.
std::string withNewLines(const std::string& text, const Table& base, const Catalogue& catalogue,
                         const Entry& entry) {
  std::size_t linesBefore = base.entries.empty() ? linesOf(text).size() : base.entries.front().keyAt.line - 1;
  std::string added;
  for (const auto& key : catalogue.lookedUpKeys()) {
    if (key.entry == &entry) added += tableLine(key.key, entry.text);
    const TableEntry* const present = added.empty() ? base.find(key.key) : nullptr;
    if (present) linesBefore = present->lastLine;
  }
  std::size_t offset = 0;
  for (; linesBefore > 0; --linesBefore) offset = std::min(text.find('\n', offset), text.size() - 1) + 1;
  return std::string(text).insert(offset, added);
}

}  // namespace

void generate(const std::string& root) {
  writeAccessors(root, Catalogue::read(root), readBase(root));
}

std::string addEntry(const std::string& root, const std::string& text, bool plural) {
  Catalogue catalogue = Catalogue::read(root);
  Entry entry{keyForText(text), text, plural};
  const std::size_t place = catalogue.placeFor(entry.key, plural);
  entry.line = place + 2;
  const std::string key = entry.key;
  catalogue.insert(place, std::move(entry));
  const std::string json = catalogue.toJson();
  static_cast<void>(Catalogue::parse(json, Catalogue::kFile));  // throws when the new entry breaks a rule

  const std::string table =
      withNewLines(readFile(root, tablePath(kBase)), readBase(root), catalogue, catalogue.entries()[place]);
  writeFile(root, Catalogue::kFile, json);
  writeFile(root, tablePath(kBase), table);
  writeAccessors(root, catalogue, Table::parse(table, tablePath(kBase)));
  return key;
}

}  // namespace zk::tools
