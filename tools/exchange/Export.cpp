#include <ZKStrings/tools/exchange/Export.h>
#include <ZKStrings/tools/exchange/TranslatorNotes.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Languages.h>

#include <stdexcept>
#include <utility>

namespace zk::tools {

Translations translationsOf(const std::string& root, const std::string& language, bool onlyLacking) {
  if (language == kBase)
    throw std::invalid_argument("the English texts are not translated; name the language to translate into");
  const Catalogue catalogue = Catalogue::read(root);
  const EnglishTexts english(catalogue, Table::readWellFormed(root, kBase));
  const Table table = Table::readWellFormed(root, language);
  Translations translations{language, {}, CatalogueSettings::read(root).name.name};
  for (const EnglishText& text : english.all()) {
    const TableEntry* const entry = table.find(text.key);
    const TranslationState state = stateOf(language, entry, text);
    const bool isLacking = state == TranslationState::missing || state == TranslationState::untranslated;
    if (onlyLacking && !isLacking) continue;
    translations.units.push_back(
        {text.key, text.text, isLacking ? "" : entry->text, state, translatorNotes(text)});
  }
  return translations;
}

}  // namespace zk::tools
