#pragma once

#include <ZKStrings/tools/project/CatalogueSettings.h>

#include <string>

namespace zk::tools {

/// Writes a new catalogue to `directory`, which is created if needed: two texts, one of them counted, their English
/// table, the settings, and a README that explains the next steps. Throws `CommandFailed`, and writes nothing, if there is
/// a catalogue already or a file cannot be written; `std::invalid_argument` if `name` cannot name a catalogue.
void initCatalogue(const std::string& directory, const CatalogueName& name);

}  // namespace zk::tools
