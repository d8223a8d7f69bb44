#pragma once

#include <ZKStrings/tools/command/TranslationCommandLine.h>

namespace zk::tools {

/// These add the commands that hand texts to translators' programs and take them back, as those of
/// TranslationCommandLine.h do.

void addExportCommand(CLI::App& app, const RootFinder& inRoot);
/// `status`, which must outlive the parsing, becomes 1 when a text of the file is refused.
void addImportCommand(CLI::App& app, const RootFinder& inRoot, int& status);

}  // namespace zk::tools
