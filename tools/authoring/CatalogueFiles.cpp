#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace zk::tools {

namespace {

/// The accessors' files that belong to the catalogue and its English table.
std::vector<FileChange> accessorFiles(const CatalogueName& name, const Catalogue& catalogue,
                                      const Table& base) {
  for (const TableEntry& entry : base.entries) {
    if (hasCarriageReturnOrNul(entry.text)) fail(base.file, entry.textAt, kNoCarriageReturn);
  }
  Accessors accessors = generateAccessors(catalogue, base, name);
  return {{name.headerFile(), std::move(accessors.header)}, {name.sourceFile(), std::move(accessors.source)}};
}

/// Those of the project at `root`, with the catalogue and the English table that it has.
std::vector<FileChange> accessorFilesOf(const std::string& root) {
  return accessorFiles(CatalogueSettings::read(root).name, Catalogue::read(root),
                       Table::readWellFormed(root, kBase));
}

/// Whether the project at `root` keeps its accessors beside the catalogue: the module does; another may leave
/// them to its build.
bool keepsAccessors(const std::string& root, const CatalogueName& name) {
  std::error_code failure;
  return name.isModule() || std::filesystem::exists(std::filesystem::path(root) / name.headerFile(), failure);
}

/// The catalogue as its file holds it. Throws `CommandFailed` when it breaks a rule.
std::string checkedJson(const Catalogue& catalogue) {
  std::string json = catalogue.toJson();
  static_cast<void>(Catalogue::parse(json, Catalogue::kFile));
  return json;
}

}  // namespace

void writeCatalogue(const std::string& root, const Catalogue& catalogue, const std::string& base,
                    std::vector<FileChange> translations) {
  const CatalogueName name = CatalogueSettings::read(root).name;
  std::vector<FileChange> changes = std::move(translations);
  changes.push_back({tablePath(kBase), base});
  if (keepsAccessors(root, name))
    std::ranges::move(accessorFiles(name, catalogue, Table::parse(base, tablePath(kBase))),
                      std::back_inserter(changes));
  changes.push_back({Catalogue::kFile, checkedJson(catalogue)});  // last, so a killed command can be repeated
  writeFiles(root, changes);
}

void generate(const std::string& root) {
  writeFiles(root, accessorFilesOf(root));
}

void generateInto(const std::string& output, const std::string& root) {
  std::vector<FileChange> files;
  try {
    files = accessorFilesOf(root);
  } catch (CommandFailed& failed) {
    for (Diagnostic& diagnostic : failed.diagnostics)
      diagnostic.file = (std::filesystem::path(root) / diagnostic.file).string();
    throw;
  }
  for (FileChange& file : files) file.path = std::filesystem::path(file.path).filename();
  writeFiles(output, files);
}

}  // namespace zk::tools
