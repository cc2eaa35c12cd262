// docs/properties-files.md: what it shows is read from it and run.

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "bundles/bundle_file_name.h"
#include "bundles/properties_reader.h"
#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "docs/markdown_parts.h"
#include "platform/directories.h"
#include "support/problem_list.h"
#include "support/temp_tree.h"

namespace {

using Texts = std::map<std::string, std::string>;

class PropertiesDocument : public testing::Test {
 protected:
  /// The texts of a file without problems.
  static Texts Read(const std::string& bytes) {
    std::istringstream stream(bytes);
    kx::PropertyTable table;
    ProblemList problems;
    kx::ReadPropertiesStream("agent.properties", stream, table, problems);
    EXPECT_EQ(std::vector<std::string>{}, problems.Lines()) << bytes;
    Texts texts;
    table.ForEach([&texts](const char* key, const char* text) { texts.emplace(key, text); });
    return texts;
  }

  const MarkdownParts document_{"properties-files.md"};
};

std::string OneSpan(const Spans& spans) { return spans.empty() ? "" : spans.front(); }

TEST_F(PropertiesDocument, NamesAreSplitAsListed) {
  for (const auto& row : document_.Table("File | Bundle | Locale")) {
    const std::string file = OneSpan(row.at(0));
    const auto parts = kx::SplitBundleFileName(file);
    ASSERT_TRUE(parts.has_value()) << file;
    EXPECT_EQ(OneSpan(row.at(1)), parts->bundle) << file;
    EXPECT_EQ(OneSpan(row.at(2)), parts->locale) << file;
  }
}

/// Answers "file" or "default", or nothing where neither does.
std::string WhoAnswers(const XlateManager& manager, const std::string& locale) {
  CKxXlate* const translator = kx::GetPropertiesBundle(&manager, "agent", locale.c_str());
  if (translator == nullptr) return "";
  const std::string text = translator->GetText("K");
  translator->Release();
  return text;
}

TEST_F(PropertiesDocument, FilesAreFoundByTheSpellingsListedAndByNoOthers) {
  for (const auto& row : document_.Table("File | Is found by | Is not found by")) {
    TempTree tree;
    tree.Write("agent.properties", "K=default\n");
    tree.Write(OneSpan(row.at(0)), "K=file\n");
    XlateManager manager(tree.Path());
    ASSERT_EQ(0, KxTraverseDirectory(manager.Root().c_str(), &manager));
    ASSERT_FALSE(row.at(1).empty());
    for (const std::string& locale : row.at(1)) EXPECT_EQ("file", WhoAnswers(manager, locale));
    for (const std::string& locale : row.at(2)) EXPECT_EQ("default", WhoAnswers(manager, locale));
  }
}

TEST_F(PropertiesDocument, FileShownIsReadAsItSays) {
  EXPECT_EQ((Texts{{"LOGIN_PROMPT", "User name"},
                   {"PATH", "C:\\data\\logs"},
                   {"LONG_TEXT", "This text goes on in the next line."},
                   {"INDENTED", "  two blanks are kept by a backslash before the first"}}),
            Read(document_.Block("Lines")));
}

TEST_F(PropertiesDocument, BackslashesAtTheEndAreReadAsListed) {
  for (const auto& row : document_.Table("Lines | Read as")) {
    std::string bytes;
    for (const std::string& line : row.at(0)) bytes += line + '\n';
    Texts expected;
    for (const std::string& text : row.at(1)) {
      const std::size_t end = text.find('=');
      ASSERT_NE(std::string::npos, end) << text;
      expected[text.substr(0, end)] = text.substr(end + 1);
    }
    EXPECT_EQ(expected, Read(bytes)) << bytes;
  }
}

// Otherwise the rows would show nothing.
TEST_F(PropertiesDocument, LinesListedEndInABackslashAndABlank) {
  for (const auto& row : document_.Table("Lines | Read as")) {
    const std::string line = OneSpan(row.at(0));
    ASSERT_LT(2U, line.size());
    EXPECT_EQ("\\ ", line.substr(line.size() - 2));
  }
}

TEST_F(PropertiesDocument, AnEmptyLineKeepsABlankAtTheEndOfAValue) {
  EXPECT_EQ(
      (Texts{{"PROMPT", "Password: "},
             {"NEXT", "The empty line belongs to PROMPT. It ends the value, blank and all."}}),
      Read(document_.Block("Lines", 1)));
}

}  // namespace
