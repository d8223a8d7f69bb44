#include <ZKStrings/tools/check/EndPunctuation.h>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

TEST(EndPunctuation, IsFoundInAllScriptsAndBeforeClosingMarks) {
  struct Case {
    const char* text;
    Ending ending;
    const char* language = "de";
  };
  constexpr Case kCases[] = {
      {"", Ending::none},
      {"Ja", Ending::none},
      {"%{email}", Ending::none},
      {"Q%{level}.", Ending::stop},
      {"完了。", Ending::stop, "ja"},
      {"पूरा हुआ।", Ending::stop, "hi"},
      {"ختم۔", Ending::stop, "ur"},
      {"ավարտ։", Ending::stop, "hy"},
      {"Fertig...", Ending::ellipsis},
      {"Fertig…", Ending::ellipsis},
      {"稍候……", Ending::ellipsis, "zh"},
      {"Prêt\u202F?", Ending::question, "fr"},
      {"متى؟", Ending::question, "ar"},
      {"哪里？", Ending::question, "zh"},
      {"Πού;", Ending::question, "el"},
      {"Πού\u037E", Ending::question, "el"},
      {"Wo;", Ending::semicolon},
      {"نعم،", Ending::comma, "ar"},
      {"好，", Ending::comma, "zh"},
      {"Code\u00A0: ", Ending::colon, "fr"},
      {"代码：", Ending::colon, "zh"},
      {"<b>Los!</b>", Ending::exclamation},
      {"*Los!*", Ending::exclamation},
      {"„Los!“", Ending::exclamation},
      {"«\u00A0Allez\u00A0!\u00A0»", Ending::exclamation, "fr"},
      {"（走！）", Ending::exclamation, "zh"},
      {"Von ZK! ❤️", Ending::exclamation},
      {"Los!👍🏽🇩🇪", Ending::exclamation},
      {"Los‼️", Ending::exclamation},
      {"\u200Fيلا!\u200F", Ending::exclamation, "ar"},
      {"<b>AGB</b>,", Ending::comma},
      {"3.", Ending::none},
      {"Platz 3.", Ending::stop},
      {"\xFF!", Ending::exclamation},
      {"!\xFF", Ending::none},
  };
  for (const auto& [text, ending, language] : kCases) {
    EXPECT_EQ(nameOf(endingOf(text, language)), nameOf(ending)) << text;
  }
}

}  // namespace
