#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Files.h>

#include <string>
#include <vector>

namespace zk::tools {

/// Makes the accessors of the project at `root` anew, in its folder catalogue/. Throws `CommandFailed` when
/// the catalogue or the English table is wrong.
void generate(const std::string& root);

/// The same, in the directory `output`, for a build that keeps them there. The diagnostics that it throws name
/// their files with `root`, so that they are found from the build's folder.
void generateInto(const std::string& output, const std::string& root);

/// Writes the catalogue of the project at `root` and what changes with it, all or nothing: the English table,
/// whose bytes are `base`, `translations`, and the accessors, where the project keeps them. Throws
/// `CommandFailed` when one of them breaks a rule or cannot be written.
void writeCatalogue(const std::string& root, const Catalogue& catalogue, const std::string& base,
                    std::vector<FileChange> translations = {});

}  // namespace zk::tools
