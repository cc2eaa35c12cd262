#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include "bundles/properties_reader.h"
#include "support/problem_list.h"

namespace {

constexpr std::size_t kFewestKeys = 50;

const char* const kBundles[] = {"agent", "console", "policy"};
const char* const kLocales[] = {"en", "fr", "fr_CA", "de", "ja", "zh_Hant_TW", "ar"};

class ExampleCatalogue : public testing::TestWithParam<std::tuple<const char*, const char*>> {
 protected:
  /// The keys of a file that must be without problems.
  std::set<std::string> KeysOf(const std::string& bundle, const std::string& locale) {
    const std::string path =
        KXXLATE_EXAMPLE_CATALOGUES "/resources/" + bundle + '_' + locale + ".properties";
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << path;
    kx::PropertyTable table;
    ProblemList problems;
    kx::ReadPropertiesStream(path.c_str(), stream, table, problems);
    EXPECT_THAT(problems.Lines(), testing::IsEmpty());
    std::set<std::string> keys;
    table.ForEach([&keys](const char* key, const char* text) {
      EXPECT_STRNE("", text) << key;
      keys.insert(key);
    });
    return keys;
  }
};

// There is no fallback by key: a text that a locale lacks shows nothing.
TEST_P(ExampleCatalogue, IsCompleteAndWithoutProblems) {
  const auto& [bundle, locale] = GetParam();
  const std::set<std::string> english = KeysOf(bundle, "en");
  EXPECT_GE(english.size(), kFewestKeys);
  EXPECT_EQ(english, KeysOf(bundle, locale));
}

INSTANTIATE_TEST_SUITE_P(AllFiles, ExampleCatalogue,
                         testing::Combine(testing::ValuesIn(kBundles), testing::ValuesIn(kLocales)),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param)) + '_' +
                                  std::get<1>(row.param);
                         });

}  // namespace
