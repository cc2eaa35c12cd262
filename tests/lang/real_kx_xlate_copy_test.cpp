// What the operations that copy write into their caller's buffer.

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

#include "lang/language_tree.h"
#include "support/guarded_buffer.h"

namespace {

constexpr KxSize kHugeSize = std::numeric_limits<KxSize>::max();

class LanguageCopy : public LanguageTree {};

enum class Form { kDirectory, kText, kLabel, kPrompt };

bool Copy(CRealKxXlate& translator, Form form, char* dst, KxSize size, const char* key,
          const char* dflt) {
  switch (form) {
    case Form::kDirectory: return translator.GetDirectory(dst, size, key);
    case Form::kText: return translator.GetText(dst, size, key, dflt);
    case Form::kLabel: return translator.GetLabel(dst, size, key);
    case Form::kPrompt: break;
  }
  return translator.GetPrompt(dst, size, key, dflt);
}

struct CopyCase {
  const char* name;
  Form form;
  const char* key;
  const char* dflt;
  const char* whole;  // what a buffer with room for everything holds
  bool found;
  std::size_t suffix = 0;  // how much of it is the prompt suffix
};

void PrintTo(const CopyCase& c, std::ostream* os) { *os << '"' << c.whole << '"'; }

class LanguageCopies : public LanguageCopy, public testing::WithParamInterface<CopyCase> {
 protected:
  /// What a buffer of `size` bytes holds: the text as far as it fits, the suffix only whole.
  static std::string Expected(std::size_t size) {
    const std::string whole = GetParam().whole;
    if (size > whole.size()) return whole;
    return whole.substr(0, whole.size() - GetParam().suffix).substr(0, size - 1);
  }
};

TEST_P(LanguageCopies, FitsBuffersOfEverySize) {
  const CopyCase& c = GetParam();
  const Held translator = Read(kFileForLookups);
  for (KxSize size = 1; size <= 24; ++size) {
    SCOPED_TRACE(size);
    GuardedBuffer buffer(size);
    EXPECT_EQ(c.found, Copy(*translator, c.form, buffer.Data(), size, c.key, c.dflt));
    EXPECT_EQ(Expected(size), buffer.Text());
    EXPECT_EQ(Expected(size).size() + 1, buffer.BytesWritten());
    EXPECT_TRUE(buffer.IsFrontUntouched());
  }
}

TEST_P(LanguageCopies, TakesTheCallersSizeAsItIs) {
  const CopyCase& c = GetParam();
  const Held translator = Read(kFileForLookups);
  GuardedBuffer buffer(24);
  EXPECT_EQ(c.found, Copy(*translator, c.form, buffer.Data(), kHugeSize, c.key, c.dflt));
  EXPECT_EQ(c.whole, buffer.Text());
  EXPECT_EQ(std::string(c.whole).size() + 1, buffer.BytesWritten());
}

TEST_P(LanguageCopies, WritesNothingWithoutRoom) {
  const CopyCase& c = GetParam();
  const Held translator = Read(kFileForLookups);
  GuardedBuffer buffer(8);
  EXPECT_FALSE(Copy(*translator, c.form, buffer.Data(), 0, c.key, c.dflt));
  EXPECT_EQ(0u, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
  EXPECT_FALSE(Copy(*translator, c.form, nullptr, 8, c.key, c.dflt));
  EXPECT_FALSE(Copy(*translator, c.form, nullptr, 0, c.key, c.dflt));
}

const CopyCase kCopies[] = {
    {"Directory", Form::kDirectory, "help", nullptr, "/docs/fr", true},
    {"EmptyDirectory", Form::kDirectory, "none", nullptr, "", true},
    {"AbsentDirectory", Form::kDirectory, "absent", nullptr, "", false},
    {"Label", Form::kLabel, "OK", nullptr, "D'accord", true},
    {"EmptyLabel", Form::kLabel, "BLANK", nullptr, "", true},
    {"AbsentLabel", Form::kLabel, "absent", nullptr, "", false},
    {"NullLabel", Form::kLabel, nullptr, nullptr, "", false},
    {"Text", Form::kText, "Login", nullptr, "abcdef", true},
    {"TextDespiteDefault", Form::kText, "Login", "default", "abcdef", true},
    {"EmptyTextDespiteDefault", Form::kText, "EMPTY", "default", "", true},
    {"DefaultOfText", Form::kText, "absent", "default", "default", false},
    {"DefaultOfNull", Form::kText, nullptr, "default", "default", false},
    {"EmptyDefault", Form::kText, "absent", "", "", false},
    {"AbsentText", Form::kText, "absent", nullptr, "", false},
    {"Prompt", Form::kPrompt, "Login", nullptr, "abcdef:", true, 1},
    {"PromptDespiteDefault", Form::kPrompt, "Login", "default", "abcdef:", true, 1},
    {"EmptyPromptHasNoSuffix", Form::kPrompt, "EMPTY", "default", "", true},
    {"DefaultOfPromptHasTheSuffix", Form::kPrompt, "absent", "default", "default:", false, 1},
    {"EmptyDefaultHasNoSuffix", Form::kPrompt, "absent", "", "", false},
    {"AbsentPromptHasNoSuffix", Form::kPrompt, "absent", nullptr, "", false},
    {"NullPrompt", Form::kPrompt, nullptr, "default", "default:", false, 1},
};

INSTANTIATE_TEST_SUITE_P(Forms, LanguageCopies, testing::ValuesIn(kCopies),
                         [](const auto& row) { return std::string(row.param.name); });

struct SuffixCase {
  const char* name;
  const char* header;
  const char* suffix;  // as GetPromptSuffix answers it
  const char* whole;
};

void PrintTo(const SuffixCase& c, std::ostream* os) { *os << '"' << c.whole << '"'; }

class PromptSuffix : public LanguageCopy, public testing::WithParamInterface<SuffixCase> {};

TEST_P(PromptSuffix, IsAppendedWholeOrNotAtAll) {
  const SuffixCase& c = GetParam();
  const Held translator = Read(std::string("Name n\n") + c.header + "\nKey K\nValue Name\n");
  EXPECT_STREQ(c.suffix, translator->GetPromptSuffix());
  const std::string whole = c.whole;
  for (KxSize size = 1; size <= 20; ++size) {
    SCOPED_TRACE(size);
    GuardedBuffer buffer(size);
    EXPECT_TRUE(translator->GetPrompt(buffer.Data(), size, "K", nullptr));
    const std::string text = size > whole.size() ? whole : std::string("Name").substr(0, size - 1);
    EXPECT_EQ(text, buffer.Text());
    EXPECT_EQ(text.size() + 1, buffer.BytesWritten());
    EXPECT_TRUE(buffer.IsFrontUntouched());
  }
}

const SuffixCase kSuffixes[] = {
    {"None", "", nullptr, "Name"},
    {"Empty", "Prompt Suffix \v\n", "", "Name"},
    {"OneByte", "Prompt Suffix :\n", ":", "Name:"},
    {"BlanksAroundAreDropped", "Prompt Suffix   :  \n", ":", "Name:"},
    {"BlanksInsideAreKept", "Prompt Suffix . :\n", ". :", "Name. :"},
    {"LongerThanTheText", "Prompt Suffix .........\n", ".........", "Name........."},
    {"NotAscii", "Prompt Suffix \xC2\xA0:\n", "\xC2\xA0:", "Name\xC2\xA0:"},
};

INSTANTIATE_TEST_SUITE_P(Suffixes, PromptSuffix, testing::ValuesIn(kSuffixes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(LanguageCopy, CutsInsideAUtf8Sequence) {
  const Held translator = Read("Charset UTF-8\n\nKey K\nValue a\xC3\xA9\n");
  GuardedBuffer buffer(3);
  EXPECT_TRUE(translator->GetText(buffer.Data(), 3, "K", nullptr));
  EXPECT_EQ("a\xC3", buffer.Text());
  EXPECT_EQ(3u, buffer.BytesWritten());
}

}  // namespace
