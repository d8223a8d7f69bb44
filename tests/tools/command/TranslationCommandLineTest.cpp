#include <ZKStrings/tests/tools/CommandLine.h>

#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace zk::testing;

TEST(TranslationCommandLine, EndsWithAStatusThatTellsTheGravestFault) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"*Info\";\n");
  project.write(TemporaryProject::table("fr"), "\"About\" = \"%{info}\";\n");
  project.write(TemporaryProject::table("nl"), "\"About\" = \"About\";\n");
  project.write(TemporaryProject::table("ja"), "");
  project.write(TemporaryProject::table("it"), "/* state: needs-review */\n\"About\" = \"Info\";");
  project.write(TemporaryProject::table("pl"), "\n/*");
  struct Case {
    const char* arguments;
    int status;
  };
  constexpr Case kCases[] = {
      {"check de --off missing-key", 0},
      {"check de --off missing-key --strict", 1},
      {"check --strict --off missing-key --off marks de", 0},
      {"check de fr --off missing-key", 1},
      {"check fr --off missing-key --off unknown-placeholder --strict", 0},
      {"check nl --off missing-key --notes --strict", 0},
      {"check xx", 1},
      {"check german", 0},
      {"check resources/de.lproj/Localizable.strings", 0},
      {"chekc", 2},
      {"key", 2},
      {"--version", 0},
      {"check --off no-such-rule", 2},
      {"check --format xml", 2},
      {"check --rules", 0},
      {"check ja", 0},
      {"check ja --strict", 0},
      {"check ja --complete", 1},
      {"check Base --complete --strict", 0},
      {"check de --off missing-key --complete", 0},
      {"check it --strict", 0},
      {"check it --off missing-key --complete", 1},
      {"check it --off missing-key --off needs-review --complete", 0},
      {"check pl", 1},
      {"coverage", 0},
      {"coverage --format json", 0},
      {"template", 2},
      {"template en", 1},
      {"template sv", 0},
      {"template sv", 1},
      {"check sv --strict", 0},
      {"check sv --complete", 1},
      {"update sv --prune", 0},
      {"update xx", 1},
      {"update da", 1},
      {"update", 2},
      {"--help", 0},
  };
  for (const auto& [arguments, status] : kCases) {
    const Answer answer = answerTo(project, arguments);
    EXPECT_EQ(answer.status, status) << arguments << "\n" << answer.output;
  }
}

TEST(TranslationCommandLine, AnswersPlainlyInAPipe) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"*Info\";\n");
  EXPECT_EQ(
      answerTo(project, "check de --off missing-key").output,
      "resources/de.lproj/Localizable.strings:1:12: warning: the * marks do not pair up; open and close each "
      "part [marks]\n");
}

TEST(TranslationCommandLine, TellsGapsInOneShortLine) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"Info\";\n");
  const std::string table = TemporaryProject::table("de");
  EXPECT_EQ(answerTo(project, "check de").output,
            table + ":1:1: gap: 24 texts missing; zkstrings update de lists them [missing-key]\n");
  EXPECT_EQ(answerTo(project, "update de").output, table + ": added 24 texts to translate\n");
  EXPECT_EQ(answerTo(project, "update de").output, table + ": up to date, nothing changed\n");
  EXPECT_EQ(
      answerTo(project, "check de").output,
      table +
          ":4:16: gap: 23 texts untranslated, from here on; zkstrings update de marks them [untranslated]\n");
}

TEST(TranslationCommandLine, WhatItSaysOfItselfFitsATerminal) {
  const TemporaryProject project;
  for (const char* const arguments :
       {"--help", "check --help", "coverage --help", "template --help", "update --help", "add --help",
        "change --help", "check --rules", "coverage"}) {
    const Answer answer = answerTo(project, arguments);
    EXPECT_EQ(answer.status, 0) << arguments;
    for (const std::string_view line : zk::tools::linesOf(answer.output)) {
      EXPECT_LE(line.size(), 80u) << arguments << ": " << line;
    }
  }
}

TEST(TranslationCommandLine, EndsWithOneLineOnATerminal) {
  const TemporaryProject project;
  const std::string terminal =
      "export LC_ALL=C; script --quiet --command '" + inShell(project, "check") + "' /dev/null";
  EXPECT_EQ(outputOf(terminal).output, "1 table, 1 country: nothing to mend\r\n");
}

TEST(TranslationCommandLine, AnswersInJsonWhateverTheBytes) {
  const TemporaryProject project;
  EXPECT_EQ(nlohmann::json::parse(answerTo(project, "check --format json").output), nlohmann::json::array());
  project.write(TemporaryProject::table("de"), "\"Ab\xFF\" = \"\";\n");
  const auto faults = nlohmann::json::parse(answerTo(project, "check de --format json").output);
  ASSERT_EQ(faults.size(), 3u) << faults;
  const auto& encoding = faults[1];
  EXPECT_EQ(encoding["file"], "resources/de.lproj/Localizable.strings");
  EXPECT_EQ(encoding["line"], 1);
  EXPECT_EQ(encoding["column"], 4);
  EXPECT_EQ(encoding["severity"], "error");
  EXPECT_EQ(encoding["rule"], "encoding");
  EXPECT_FALSE(encoding["message"].empty());
}

}  // namespace
