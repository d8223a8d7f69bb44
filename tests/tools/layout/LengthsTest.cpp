#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/layout/Lengths.h>
#include <ZKStrings/tools/support/Fault.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;

TEST(Lengths, ListsTheWidestTextsFirst) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), R"~("About" = "Über";
"Coins" = "Münzen, Münzen";
"Kick_username" = "%{username}!";
"badgeCount_Badges_one" = "Genau ein Abzeichen";
)~");
  project.write(TemporaryProject::table("ja"), R"~("About" = "このアプリ";)~");
  project.write(TemporaryProject::table("fr"), R"~("About" = "un texte que personne ne lit")~");
  EXPECT_EQ(formatted(widestTranslations(project.root(), {}, 4)),
            " times    columns  characters  language  key\n"
            "   2.8     5 > 14      5 > 14  de        Coins\n"
            "   2.7     7 > 19      7 > 19  de        badgeCount_Badges_one\n"
            "   2.0     5 > 10       5 > 5  ja        About\n"
            "   0.8      5 > 4       5 > 4  de        About\n");
  EXPECT_EQ(widestTranslations(project.root(), {"ja"}, 1).front().key, "About");
  EXPECT_EQ(widestTranslations(project.root(), {"de"}, 1000).size(), 4u);
  EXPECT_TRUE(widestTranslations(project.root(), {}, 0).empty());
}

TEST(Lengths, AreOfTheTextsWithTheirValues) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), R"~("Kick_username" = "%{username}, %{username}!";)~");
  for (const Length& length : widestTranslations(project.root(), {"de"}, 1)) {
    EXPECT_EQ(length.english.characters, std::string("Kick kim?").size());
    EXPECT_EQ(length.translation.characters, std::string("kim, kim!").size());
  }
}

TEST(Lengths, NeedTheEnglishFolder) {
  const TemporaryProject project;
  std::filesystem::remove_all(project.root() + "/resources/Base.lproj");
  EXPECT_THROW(static_cast<void>(widestTranslations(project.root(), {}, 1)), CommandFailed);
}

}  // namespace
