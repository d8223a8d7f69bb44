#include <ZKStrings/tests/tools/CommandLine.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using zk::testing::Answer;
using zk::testing::TemporaryProject;

/// What the built command answers to `arguments`, in the project's folder.
Answer answerInside(const TemporaryProject& project, const std::string& arguments) {
  return zk::testing::outputOf("cd \"$ZK_ROOT\" && " + zk::testing::inShell(project, arguments) + " 2>&1");
}

TEST(ExchangeCommandLine, EndsWithAStatusThatTellsWhetherAllWasTaken) {
  const TemporaryProject project;
  const std::string table = TemporaryProject::table("de");
  project.write(table, "\"About\" = \"Info\";\n");
  project.write("unknown.csv", "key,en,de\nAbuot,About,Info\n");
  project.write("wrong.csv", "key,en,de\nAbout,About,%{info}\n");
  project.write("changed.csv", "key,en,de\nAbout,About us,Info\n");
  project.write("nameless.po", "msgid \"About\"\nmsgstr \"Info\"\n");
  project.write("broken.xlf", "<xliff");
  struct Case {
    const char* arguments;
    int status;
  };
  constexpr Case kCases[] = {
      {"export de", 0},
      {"export German --missing --format po", 0},
      {"export de --xliff 2.0 -o out/de.xlf", 0},
      {"export de --xliff 2.0 --format csv", 2},
      {"export de --format doc", 2},
      {"export", 2},
      {"export Base", 1},
      {"export fr", 1},
      {"export de -o /proc/none/de.po", 1},
      {"import out/de.xlf", 0},
      {"import unknown.csv", 1},
      {"import wrong.csv", 1},
      {"import changed.csv", 1},
      {"import changed.csv --force", 0},
      {"import nameless.po", 1},
      {"import nameless.po --language de", 0},
      {"import nameless.po --language fr", 1},
      {"import broken.xlf", 1},
      {"import none.xlf", 1},
      {"import", 2},
  };
  for (const auto& [arguments, status] : kCases) {
    const Answer answer = answerInside(project, arguments);
    EXPECT_EQ(answer.status, status) << arguments << "\n" << answer.output;
    EXPECT_NE(project.read(table).find("\"About\" = \"Info\";\n"), std::string::npos) << arguments;
  }
}

TEST(ExchangeCommandLine, TellsWhatItDid) {
  const TemporaryProject project;
  const std::string table = TemporaryProject::table("de");
  project.write(table, "\"About\" = \"Info\";\n\"Coins\" = \"Münzen\";\n");
  EXPECT_EQ(answerInside(project, "export de -o de.csv --missing").output, "Wrote de.csv with 23 texts.\n");
  EXPECT_TRUE(project.read("de.csv").starts_with("\xEF\xBB\xBFkey,en,de,state,notes\r\n"));
  project.write("de.csv",
                "key,en,de\nAbout,About,Über uns\nCoins,Coins,Münzen\nTop_10,Top 10,Top 10\nX,X,Y\n");
  EXPECT_EQ(answerInside(project, "import de.csv").output,
            "de.csv:5:1: warning: nothing looks up the key \"X\"; the text was left out\n" + table +
                ": 1 added, 1 changed, 1 as before, 1 refused\n");
  EXPECT_EQ(project.read(table),
            "\"About\" = \"Über uns\";\n\"Coins\" = \"Münzen\";\n\"Top_10\" = \"Top 10\";\n");
}

}  // namespace
