#pragma once

#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/check/TextRules.h>

#include <span>

namespace zk::tools {

/// The rules for the language of a text: the glossary's terms, words and typography.
[[nodiscard]] std::span<const RuleFor<Translation>> languageRules();

}  // namespace zk::tools
