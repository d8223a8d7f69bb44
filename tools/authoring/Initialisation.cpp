#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>

#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr const char* kEntries = R"([
  {"key": "Hello_name", "text": "Hello, %{name}!"},
  {"key": "messages_new_messages", "text": "%{messages} new messages", )"
                                 R"("plural": {"zero": "No new messages", "one": "%{messages} new message"}}
]
)";

constexpr const char* kEnglish = R"(/* English, the language that all others are translated from. */

"Hello_name" = "Hello, %{name}!";
"messages_new_messages_zero" = "No new messages";
"messages_new_messages_one" = "%{messages} new message";
"messages_new_messages_two" = "%{messages} new messages";
"messages_new_messages_few" = "%{messages} new messages";
"messages_new_messages_many" = "%{messages} new messages";
)";

constexpr const char* kReadme = R"(# {name}

The texts of the program. `catalogue/entries.json` has the English texts; `resources/` has a table for each language.

    zkstrings add 'Bye, %{{name}}!'                            adds a text: {call}Bye_name(name)
    zkstrings add --count '%{{n}} stars' --one '%{{n}} star'     adds a text with plural forms
    zkstrings template de                                    creates the table of a language, here German
    zkstrings check                                          reports errors and gaps in the tables
    zkstrings generate                                       updates everything after an edit of entries.json or a merge

In CMake, `zk_add_catalogue(TARGET {target} ROOT <this folder>)` creates a library with the functions.
)";

std::string readmeFor(const CatalogueName& name) {
  const std::string scope = name.nameSpace.empty() ? "" : name.nameSpace + "::";
  return fmt::format(fmt::runtime(kReadme), fmt::arg("name", name.name),
                     fmt::arg("target", lowerCased(name.name)), fmt::arg("call", scope + name.name + "::"));
}

}  // namespace

void initCatalogue(const std::string& directory, const CatalogueName& name) {
  if (name.name == CatalogueName::kModule)
    throw std::invalid_argument(fmt::format("the name {} is the module's own; choose another", name.name));
  if (const std::string error = name.error(); !error.empty()) throw std::invalid_argument(error);
  const std::string settings =
      fmt::format("{{\"name\": \"{}\", \"namespace\": \"{}\"}}\n", name.name, name.nameSpace);
  const std::vector<FileChange> files = {{CatalogueSettings::kFile, settings},
                                         {tablePath(kBase), kEnglish},
                                         {"README.md", readmeFor(name)},
                                         {Catalogue::kFile, kEntries}};
  lockProject(directory);
  for (const FileChange& file : files) {
    const std::string path = pathBelow(directory, file.path);
    // A command that was killed leaves files with these contents.
    if (pathExists(path) && contentsOfFile(path) != file.bytes)
      fail(path, "the file exists already; use another folder for a new catalogue");
  }
  writeFiles(directory, files);
}

}  // namespace zk::tools
