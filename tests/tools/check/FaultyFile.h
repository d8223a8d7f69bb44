#pragma once

#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/check/Glossary.h>

#include <string>
#include <utility>

#include <fmt/format.h>

/// Projects that are right but for one file, and what `check` finds in them.
namespace zk::testing {

struct File {
  std::string path;
  std::string content;
};

inline File table(const char* language, std::string content) {
  return {TemporaryProject::table(language), std::move(content)};
}

inline File de(std::string content) {
  return table("de", std::move(content));
}

/// The English table as that of another language, without the line of `key`.
inline File englishWithout(const std::string& key) {
  std::string lines = TemporaryProject().read(TemporaryProject::table("Base"));
  const std::size_t line = lines.find("\"" + key + "\"");
  if (line != std::string::npos) lines.erase(line, lines.find('\n', line) + 1 - line);
  return table("ja", lines);
}

inline constexpr std::string_view kGlossary = R"~({
  "terms": [
    {"concept": "Badge", "english": ["badge*"], "stems": {"fr": ["badge", "vies bonus"]}},
    {"concept": "Referral", "english": ["referral", "tap"], "except": ["tap it"], "stems":
      {"fr": ["parrain"]}}
  ],
  "languages": {
    "fr": {
      "quotationMarks": "«»", "wrongAddress": ["votre", "s il vous"], "doubledWords": ["nous"],
      "noBreakBefore": ["!", "?", ":", "»", "pt."], "noBreakBehind": ["«"]},
    "sv": {"wrongAddress": ["Er"]},
    "uk": {"loanWords": ["about"]},
    "vi": {"doubledWords": ["*"]},
    "zh": {"wrongAddress": ["*您*"]}
  }
})~";

/// What is wrong in a project that is right but for `file`; keys may be missing, unless that is the matter.
inline tools::Faults faultsWith(const File& file, const std::string& rule = "") {
  const TemporaryProject project;
  project.write(tools::Glossary::kFile, kGlossary);
  project.write(file.path, file.content);
  tools::CheckOptions options;
  options.notes = rule == "same-text" || rule == "long-text" || rule == "brackets";
  for (const char* const gap : {"missing-key", "untranslated"}) {
    if (rule != gap) options.off.emplace_back(gap);
  }
  return tools::check(project.root(), options).faults;
}

inline std::string linesOf(const tools::Faults& faults) {
  std::string lines;
  for (const tools::Fault& fault : faults) lines += tools::formatted(fault, false) + "\n";
  return lines;
}

}  // namespace zk::testing
