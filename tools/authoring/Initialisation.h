#pragma once

#include <ZKStrings/tools/project/CatalogueSettings.h>

#include <string>

namespace zk::tools {

/// Writes a catalogue of one's own below `directory`, which is made if need be: two texts, one of them
/// counted, their English table, its name, and a README that says how to go on. Throws `CommandFailed`,
/// having written nothing, when there is a catalogue already or a file cannot be written, and
/// `std::invalid_argument` when `name` cannot name one.
void initCatalogue(const std::string& directory, const CatalogueName& name);

}  // namespace zk::tools
