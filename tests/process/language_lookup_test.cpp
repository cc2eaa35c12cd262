#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

/// A language file with one text and label, whose key is K.
std::string File(const std::string& text) {
  return "Name " + text + "\n\nKey K\nValue " + text + "\nButton K\nLabel " + text + "\n";
}

std::string Property(const std::string& text) { return "K=" + text + "\n"; }

std::string NoFiles(const std::string& displayName) {
  return "No \"" + displayName + "\" files found, trying EN.\n";
}

struct LookupCase {
  const char* name;
  std::map<std::string, std::string> files;  // of "product/resources"
  const char* steps;                         // see Words
  std::string output;
  std::string log = "(no file)";  // "$" is "product/resources"
};

void PrintTo(const LookupCase& c, std::ostream* os) { *os << c.name; }

/// Runs a host in "product/bin".
class LanguageOfHost : public testing::TestWithParam<LookupCase> {
 protected:
  /// The words of steps for the host. A lone "-" is an empty word, "$" at the beginning of one is
  /// "product/resources", and "=" makes a language file of it.
  std::vector<std::string> Words(const std::string& steps) const {
    std::istringstream stream(steps);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
      if (word == "-") {
        word.clear();
      } else if (word[0] == '$') {
        word.replace(0, 1, Resources());
      } else if (word[0] == '=') {
        word = File(word.substr(1));
      }
      words.push_back(word);
    }
    return words;
  }

  std::string Resources() const { return tree_.Path("product/resources") + "/"; }

  HostTree tree_;
};

TEST_P(LanguageOfHost, IsAnswered) {
  const LookupCase& c = GetParam();
  tree_.MakeDirectory("product/resources");
  for (const auto& [path, bytes] : c.files) tree_.Write("product/resources/" + path, bytes);
  const HostRun run = tree_.RunHostIn("product/bin", Words(c.steps));
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(c.output, run.output);
  EXPECT_EQ("", run.errors);
  std::string log = c.log;
  if (log[0] == '$') log.replace(0, 1, tree_.SystemPath("product") + "/resources/");
  EXPECT_EQ(log, tree_.Read("product/log/translate.log"));
}

const char* const kLang = "FR/agent.lang";
const std::string kOld = File("old");
const std::string kEnglish = File("english");

const LookupCase kProperties[] = {
    {"BundleBeforeLanguageFile",
     {{"agent_fr.properties", Property("property")}, {kLang, kOld}},
     "text agent fr K  language agent fr - K",
     "property\nproperty\n"},
    {"FallbackOfTheBundleBeforeLanguageFile",
     {{"agent.properties", Property("property")}, {kLang, kOld}, {"FR-CA/agent.lang", kOld}},
     "text agent fr-CA K  language agent fr CA K",
     "property\nproperty\n"},
    {"BundleEvenWithoutTheText",
     {{"agent_fr.properties", "A=a\n"}, {kLang, kOld}},
     "text agent fr K",
     "(null)\n",
     "$agent_fr.properties key not found: K\n"},
    {"LanguageFileWhenTheBundleHasNoSuchLocale",
     {{"agent_de.properties", Property("property")}, {kLang, kOld}},
     "text agent fr K  text agent de K",
     "old\nproperty\n"},
    {"LanguageFileWhenTheBundlesNameHasAnotherCase",
     {{"Agent.properties", Property("property")}, {kLang, kOld}},
     "text agent fr K",
     "old\n"},
    {"BundleOfLanguageAndRegion",
     {{"agent_fr_CA.properties", Property("canada")}, {"agent_fr.properties", Property("fr")}},
     "language agent fr CA K  language agent fr BE K  language agent fr (null) K "
     "text agent fr_CA K",
     "canada\nfr\nfr\ncanada\n"},
    {"BundleOfEnglishForNoLanguage",
     {{"agent_en_US.properties", Property("us")}, {"agent_en.properties", Property("en")}},
     "language agent (null) US K  language agent - (null) K",
     "us\nen\n"},
};

const LookupCase kRequests[] = {
    {"NoNameAnswersNothing",
     {{"EN/(Common).lang", kEnglish}, {"EN/.lang", kEnglish}, {".properties", Property("p")}},
     "info (null) en  info - en  info (null) (null)  language (null) en - K "
     "language - en - K  language (null) (null) (null) K",
     "(null)\n(null)\n(null)\n(null)\n(null)\n(null)\n"},
    {"NoLocaleAsksForEnglish",
     {{"EN/agent.lang", kEnglish}},
     "text agent - K  text agent (null) K  info agent -  info agent (null) "
     "id agent -  id agent (null)  id agent EN",
     "english\nenglish\nagent|EN|\nagent|EN|\n1\n1\n1\n"},
    {"NoLanguageAsksForEnglish",
     {{"EN/agent.lang", kEnglish}, {"EN-US/agent.lang", File("american")}},
     "language agent (null) (null) K  language agent - - K "
     "language agent (null) us K  language agent - US K",
     "english\nenglish\namerican\namerican\n"},
    {"LanguageAndRegionApart",
     {{kLang, kOld}, {"FR-CA/agent.lang", File("canadian")}},
     "language agent fr (null) K  language agent fr - K "
     "language agent Fr cA K  language agent fr BE K",
     "old\nold\ncanadian\nold\n"},
    {"LanguageIsNotSplit",
     {{"FR-CA/agent.lang", File("canadian")}},
     "language agent fr-ca - K",
     "canadian\n"},
    {"AllOperations",
     {{"FR/(Common).lang",
       "Name n\nImages i\nCharset c\nPrompt Suffix :\nDirection RTL\n"
       "Directory help /docs\n\nButton Ok\nLabel D'accord\n"},
      {kLang, "Name m\n\nKey USER\nValue Nom\n"}},
     "header agent fr-CA  prompt agent fr-CA user (null)  prompt agent fr-CA absent default "
     "label agent fr-CA OK  directory agent fr-CA Help  text agent fr-CA User",
     "agent|FR|CA|m|c|i|RTL|:|\ntrue Nom:\nfalse default:\nD'accord\n/docs\nNom\n",
     "FR-CA (agent) key not found: absent\n"},
    {"OneTranslatorForAllSpellings",
     {{kLang, kOld}},
     "keep agent fr-CA  same agent FR_ca  same AGENT fr-ca  same agent fr  id agent fr-CA",
     "true\ntrue\nfalse\n1\n"},
};

const LookupCase kFallback[] = {
    {"EnglishWithItsLineEachTime",
     {{"EN/agent.lang", kEnglish}},
     "text agent de K  text agent de K  language agent de - K",
     "english\nenglish\nenglish\n",
     NoFiles("DE (agent)") + NoFiles("DE (agent)") + NoFiles("DE (agent)")},
    {"EnglishWithoutTheRegion",
     {{"EN/agent.lang", kEnglish}, {"EN-US/agent.lang", File("american")}},
     "text agent de-us K  header agent de-us",
     "english\nagent|EN||english|ISO-8859-1|(null)||(null)|\n",
     NoFiles("DE-us (agent)") + NoFiles("DE-us (agent)")},
    {"EmptyEnglishWhenThereIsNone",
     {},
     "header agent de  text agent de K  label agent en K  prompt agent en K default "
     "id agent en-GB",
     "agent|EN||(null)|ISO-8859-1|(null)||(null)|\n(null)\n(null)\nfalse default\n4\n",
     NoFiles("DE (agent)") + NoFiles("DE (agent)")},
    {"EachAttemptCountsAnIdentifier",
     {{"EN/agent.lang", kEnglish}, {kLang, kOld}},
     "id agent de  id agent de  id agent fr  id agent de  id agent en",
     "2\n2\n4\n2\n2\n",
     NoFiles("DE (agent)") + NoFiles("DE (agent)") + NoFiles("DE (agent)")},
    {"UntilTheLanguageHasFiles",
     {{kLang, kOld}, {"EN/other.lang", kEnglish}},
     "text other fr K  write $FR/other.lang =new  text other fr K  text other fr ABSENT",
     "english\nnew\n(null)\n",
     NoFiles("FR (other)") + "FR (other) key not found: ABSENT\n"},
};

const LookupCase kChanges[] = {
    {"AChangedFileIsReadAgain",
     {{kLang, kOld}},
     "touch $FR/agent.lang 1000  text agent fr K  id agent fr  keep agent fr "
     "write $FR/agent.lang =new  touch $FR/agent.lang 2000  text agent fr K  id agent fr "
     "same agent fr  kept K  id agent fr",
     "old\n1\nnew\n2\nfalse\nold\n2\n"},
    {"AnUnchangedFileIsNot",
     {{kLang, kOld}},
     "touch $FR/agent.lang 1000  text agent fr K "
     "write $FR/agent.lang =new  touch $FR/agent.lang 1000  text agent fr K  id agent fr",
     "old\nold\n1\n"},
    {"ADeletedFileIsNoticedWithoutEnglish",
     {{kLang, kOld}, {"EN/agent.lang", kEnglish}},
     "keep agent fr  remove $FR/agent.lang  info agent fr  text agent fr K  id agent fr  kept K "
     "write $FR/agent.lang =new  text agent fr K  free  text agent fr K",
     "agent|FR|\n(null)\n2\nold\n(null)\nnew\n",
     NoFiles("FR (agent)")},
    {"ANewFileIsNotNoticed",
     {{kLang, kOld}, {"FR-CA/other.lang", kOld}},
     "text agent fr-CA K  write $FR-CA/agent.lang =new  text agent fr-CA K  id agent fr-CA "
     "touch $FR/agent.lang 2000  text agent fr-CA K",
     "old\nold\n1\nnew\n"},
    {"FreeCacheLeavesHeldTranslators",
     {{kLang, kOld}},
     "keep agent fr  free  kept K  same agent fr  id agent fr  free  free  kept K  id agent fr",
     "old\nfalse\n2\nold\n3\n"},
    {"FreeCacheLeavesBundles",
     {{"agent_fr.properties", Property("property")}},
     "keep agent fr  free  same agent fr  free  kept K",
     "true\nproperty\n"},
    {"FreeCacheMayComeFirst", {{kLang, kOld}}, "free  text agent fr K", "old\n"},
    {"MissesAreLoggedAgainAfterAReload",
     {{kLang, kOld}},
     "text agent fr A  text agent FR a  free  text agent fr a",
     "(null)\n(null)\n(null)\n",
     "FR (agent) key not found: A\nFR (agent) key not found: a\n"},
};

// Without the check, each of these would read a file of the tree outside the language directory.
const LookupCase kOutside[] = {
    {"ByName",
     {{"../secret.lang", kOld}, {"FR/x/y", ""}, {"EN/x/y", ""}},
     "text ../../secret fr K  text x/../../../secret fr K",
     "(null)\n(null)\n",
     NoFiles("FR (../../secret)") + NoFiles("FR (x/../../../secret)")},
    {"ByNameWithBackslashes",
     {{"FR/..\\..\\secret.lang", kOld}, {"EN/..\\..\\secret.lang", kOld}},
     "text ..\\..\\secret fr K",
     "(null)\n",
     NoFiles("FR (..\\..\\secret)")},
    {"ByLanguage",
     {{"../(Common).lang", kOld}, {"../agent.lang", kOld}},
     "language agent .. - K  text agent .. K",
     "(null)\n(null)\n",
     NoFiles(".. (agent)") + NoFiles(".. (agent)")},
    {"ByLanguageThroughAnotherDirectory",
     {{"../X/agent.lang", kOld}, {"FR/y.lang", kOld}},
     "language agent fr/../../x - K",
     "(null)\n",
     NoFiles("FR/../../X (agent)")},
    {"ByRegion",
     {{"../X/agent.lang", kOld}, {"FR-/y.lang", kOld}, {kLang, File("inside")}},
     "language agent fr /../../x K  text agent fr--/../../x K",
     "inside\ninside\n"},
    {"NorBackToAnotherLanguage",
     {{"FR/sub/agent.lang", kOld}, {"DE/agent.lang", kOld}},
     "text sub/agent fr K  text ../DE/agent fr K  text sub/../agent fr K",
     "old\n(null)\n(null)\n",
     NoFiles("FR (../DE/agent)") + NoFiles("FR (sub/../agent)")},
};

std::string NameOf(const testing::TestParamInfo<LookupCase>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Properties, LanguageOfHost, testing::ValuesIn(kProperties), NameOf);
INSTANTIATE_TEST_SUITE_P(Requests, LanguageOfHost, testing::ValuesIn(kRequests), NameOf);
INSTANTIATE_TEST_SUITE_P(Fallback, LanguageOfHost, testing::ValuesIn(kFallback), NameOf);
INSTANTIATE_TEST_SUITE_P(Changes, LanguageOfHost, testing::ValuesIn(kChanges), NameOf);
INSTANTIATE_TEST_SUITE_P(Outside, LanguageOfHost, testing::ValuesIn(kOutside), NameOf);

}  // namespace
