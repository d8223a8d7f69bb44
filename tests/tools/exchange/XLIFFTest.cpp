#include <ZKStrings/tests/tools/exchange/ReadBack.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>

#include <string>
#include <string_view>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::unitIn;

TEST(XLIFF, ProtectsCodes) {
  const Translations sent{
      "de",
      {{"k", "%{a}<b>x</b>", "<b>y</b>%{a}", TranslationState::translated, {}}},
  };
  const std::string old = written(sent, ExchangeFormat::xliff12);
  EXPECT_NE(old.find("<ph id=\"2\">&lt;b&gt;</ph>y<ph id=\"3\">&lt;/b&gt;</ph><ph id=\"1\">%{a}</ph>"),
            std::string::npos)
      << old;
  const std::string current = written(sent, ExchangeFormat::xliff20);
  EXPECT_NE(current.find("<pc id=\"2\" dataRefStart=\"d2\" dataRefEnd=\"d3\">y</pc>"
                         "<ph id=\"1\" dataRef=\"d1\" disp=\"%{a}\"/>"),
            std::string::npos)
      << current;
}

TEST(XLIFF, IsTakenFromOtherPrograms) {
  struct Case {
    const char* unit;
    const char* read;
  };
  constexpr Case kOld[] = {
      {"<trans-unit id='k'><source>A</source><target>B</target></trans-unit>", "k|A|B|translated"},
      {"<trans-unit id='7' resname='k'><source>A</source><target>B</target></trans-unit>",
       "k|A|B|translated"},
      {"<trans-unit id='k' approved='no'><source>A</source><target>B</target></trans-unit>",
       "k|A|B|needs-review"},
      {"<trans-unit id='k' approved='no'><source>A</source><target state='final'>B</target></trans-unit>",
       "k|A|B|translated"},
      {"<trans-unit id='k'><source>A</source><target state='needs-l10n'>B</target></trans-unit>",
       "k|A|B|needs-review"},
      {"<trans-unit id='k'><source>A</source><target state='new'>A</target></trans-unit>",
       "k|A||needs-review"},
      {"<trans-unit id='k'><source>A</source><target/></trans-unit>", "k|A||translated"},
      {"<trans-unit id='k'><source>A</source><alt-trans><target>B</target></alt-trans></trans-unit>",
       "k|A||translated"},
      {"<group><trans-unit id='k'><source>A</source><seg-source><mrk mtype='seg'>A</mrk></seg-source>"
       "<target><mrk mtype='seg'>B</mrk> <mrk mtype='seg'>C</mrk></target></trans-unit></group>",
       "k|A|B C|translated"},
      {"<trans-unit id='k'><source><x id='1' equiv-text='%{a}'/>A</source><target>B<x id='1'/></target>"
       "</trans-unit>",
       "k|%{a}A|B%{a}|translated"},
      {"<trans-unit id='k'><source><bpt id='1'>&lt;b></bpt>A<ept id='2'>&lt;/b></ept></source>"
       "<target><![CDATA[<b>B</b>]]></target></trans-unit>",
       "k|<b>A</b>|<b>B</b>|translated"},
      {"<trans-unit id='_msg1'><source>A<ph id='p' ctype='x-ch-lf'>\\n</ph>B</source><target>C</target>"
       "<context-group><context context-type='x-gettext-msgctxt'>k</context></context-group></trans-unit>",
       "k|A\nB|C|translated"},
      {"<trans-unit id='5'><source>A</source><target>B</target><context-group>"
       "<context context-type='sourcefile'>k</context></context-group></trans-unit>",
       "k|A|B|translated"},
      {"<trans-unit id='5'><source>About</source><target>B</target></trans-unit>",
       "About|About|B|translated"},
      {"<x:trans-unit id='k'><x:source>A</x:source><x:target>B</x:target></x:trans-unit>",
       "k|A|B|translated"},
  };
  for (const auto& [unit, read] : kOld) {
    const std::string document = fmt::format(
        "<?xml version='1.0'?>\n<xliff version='1.2'><file "
        "target-language='de'><body>{}</body></file></xliff>",
        unit);
    EXPECT_EQ(unitIn(document, "a.xlf"), read) << unit;
  }
  constexpr Case kCurrent[] = {
      {"<unit id='k'><segment><source>A</source><target>B</target></segment></unit>", "k|A|B|translated"},
      {"<unit id='u1' name='k'><segment "
       "state='initial'><source>A</source><target>B</target></segment></unit>",
       "k|A|B|needs-review"},
      {"<unit id='k'><segment><source>A.</source><target>B.</target></segment><ignorable><source> </source>"
       "</ignorable><segment><source>C</source><target>D</target></segment></unit>",
       "k|A. C|B. D|translated"},
      {"<unit id='k'><segment><source>A.</source><target>B.</target></segment>"
       "<segment><source>C</source></segment></unit>",
       "k|A.C||translated"},
      {"<unit id='k'><originalData><data id='d1'>&lt;b></data><data id='d2'>&lt;/b></data></originalData>"
       "<segment><source><sc id='1' dataRef='d1'/>A<ec startRef='1' dataRef='d2'/></source>"
       "<target><pc id='1' dataRefStart='d1' dataRefEnd='d2'>B</pc></target></segment></unit>",
       "k|<b>A</b>|<b>B</b>|translated"},
  };
  for (const auto& [unit, read] : kCurrent) {
    const std::string document =
        fmt::format("<xliff version='2.1' trgLang='de'><file id='f'>{}</file></xliff>", unit);
    EXPECT_EQ(unitIn(document, "a.xml"), read) << unit;
  }
}

}  // namespace
