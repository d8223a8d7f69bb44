#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/support/Fault.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;

/// The line of the first fault in `json`; empty when there is none.
std::string faultIn(const std::string& json) {
  try {
    (void)Glossary::parse(json);
  } catch (const CommandFailed& failed) {
    return formatted(failed.faults.front(), false);
  }
  return "";
}

TEST(Glossary, TellsTheFirstFaultWithItsPlace) {
  struct Case {
    const char* json;
    const char* place;
    const char* says;
  };
  constexpr Case kCases[] = {
      {"", "1:1", "not JSON"},
      {"{\n  \"terms\": [\n}", "3:1", "not JSON"},
      {"{\"\xFF\": 1}", "1:3", "not JSON"},
      {"{\"terms\": 1e999}", "1:1", "out of range"},
      {"[]", "1:1", "write an object"},
      {"{\n  \"words\": []\n}", "2:12", "\"words\" is unknown; there are terms, languages"},
      {"{\"terms\": {}}", "1:11", "write an array"},
      {"{\"terms\": 12}", "1:11", "write an array"},
      {"{\"terms\": [\"Badge\"]}", "1:12", "write an object"},
      {"{\"terms\": [\n {\"concept\": \"A\"}]}", "2:2", "no English words"},
      {"{\"terms\": [\n {\"english\": [\"a\"]}]}", "2:2", "no concept"},
      {R"({"terms": [{"concept": "A", "english": ["a"]}, {"concept": ""}]})", "1:60", "write a text"},
      {R"({"terms": [{"concept": "A", "english": ["a", ["b"]]}]})", "1:46", "write a text"},
      {R"({"terms": [{"concept": "A", "english": [], "stems": {"de": ["ä", null]}}]})", "1:66",
       "write a text"},
      {R"({"terms": [{"concept": "A", "english": ["a"], "stem": {}}]})", "1:55", "\"stem\" is unknown"},
      {R"({"languages": {"de": {}, "fr": []}})", "1:32", "write an object"},
      {R"({"languages": {"a/b~": {"wrongAddress": "Sie"}}})", "1:41", "write an array"},
  };
  for (const auto& [json, place, says] : kCases) {
    const std::string line = faultIn(json);
    EXPECT_TRUE(line.starts_with(std::string("resources/glossary.json:") + place + ": error: ") &&
                line.find(says) != std::string::npos)
        << json << "\n"
        << line;
  }
  EXPECT_EQ(faultIn("{}"), "");
  EXPECT_EQ(faultIn(std::string(100'000, '[')).substr(0, 32), "resources/glossary.json:1:100001");
}

TEST(Glossary, IsEmptyWithoutAFile) {
  const TemporaryProject project;
  EXPECT_TRUE(Glossary::read(project.root()).terms.empty());
  EXPECT_EQ(Glossary::read(project.root()).styleOf("de").quotationMarks, "");
}

}  // namespace
