#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "lang/language_tree.h"

namespace {

void SetModified(const TempTree& tree, const std::string& file, std::int64_t milliseconds) {
  tree.SetModified("lang/" + file, std::chrono::milliseconds(milliseconds));
}

constexpr std::int64_t kBefore = 1000000500;
const std::string kBytes = "Name Whole\n\nKey K\nValue v\n";

struct StaleCase {
  const char* name;
  std::vector<std::string> files;
  std::int64_t modified;  // of the files when they are read, in milliseconds
  std::function<void(const TempTree&)> change;
  bool stale;
};

void PrintTo(const StaleCase& c, std::ostream* os) { *os << c.name; }

class StaleTranslator : public LanguageTree, public testing::WithParamInterface<StaleCase> {};

TEST_P(StaleTranslator, IsRecognised) {
  const StaleCase& c = GetParam();
  for (const std::string& file : c.files) {
    Write(file, kBytes);
    SetModified(tree_, file, c.modified);
  }
  const Held translator = Load("agent", "fr", "ca");
  EXPECT_FALSE(translator->IsStale());
  c.change(tree_);
  EXPECT_EQ(c.stale, translator->IsStale());
  EXPECT_EQ(c.stale, translator->IsStale());
}

std::function<void(const TempTree&)> Touch(const std::string& file, std::int64_t milliseconds) {
  return [=](const TempTree& tree) { SetModified(tree, file, milliseconds); };
}

std::function<void(const TempTree&)> Remove(const std::string& file) {
  return [=](const TempTree& tree) {
    std::filesystem::remove_all(PathFromUtf8(tree.Path("lang/" + file)));
  };
}

std::function<void(const TempTree&)> Write(const std::string& file, const std::string& bytes,
                                           std::int64_t milliseconds) {
  return [=](const TempTree& tree) {
    tree.Write("lang/" + file, bytes);
    SetModified(tree, file, milliseconds);
  };
}

std::function<void(const TempTree&)> Create(const std::string& file, std::int64_t milliseconds) {
  return Write(file, "Name Other\n", milliseconds);
}

const std::vector<std::string> kAllFiles = {"FR/(Common).lang", "FR/agent.lang",
                                            "FR-CA/(Common).lang", "FR-CA/agent.lang"};

const StaleCase kStaleCases[] = {
    {"Unchanged", kAllFiles, kBefore, [](const TempTree&) {}, false},
    {"FirstTouched", kAllFiles, kBefore, Touch(kAllFiles[0], 2000000000), true},
    {"SecondTouched", kAllFiles, kBefore, Touch(kAllFiles[1], 2000000000), true},
    {"ThirdTouched", kAllFiles, kBefore, Touch(kAllFiles[2], 2000000000), true},
    {"FourthTouched", kAllFiles, kBefore, Touch(kAllFiles[3], 2000000000), true},
    {"OneSecondLater", kAllFiles, kBefore, Touch(kAllFiles[1], kBefore + 1000), true},
    {"OneSecondEarlier", kAllFiles, kBefore, Touch(kAllFiles[1], kBefore - 1000), true},
    {"LaterWithinTheSecond", kAllFiles, kBefore, Touch(kAllFiles[1], kBefore + 1), true},
    {"EarlierWithinTheSecond", kAllFiles, kBefore, Touch(kAllFiles[1], kBefore - 1), true},
    {"TouchedWithTheSameTime", kAllFiles, kBefore, Touch(kAllFiles[1], kBefore), false},
    {"ToTheBeginningOfTime", kAllFiles, kBefore, Touch(kAllFiles[1], 0), true},
    {"FirstDeleted", kAllFiles, kBefore, Remove(kAllFiles[0]), true},
    {"LastDeleted", kAllFiles, kBefore, Remove(kAllFiles[3]), true},
    {"DirectoryDeleted", kAllFiles, kBefore, Remove("FR-CA"), true},
    {"OtherSizeOfTheSameTime", kAllFiles, kBefore, Write(kAllFiles[1], "Name Other\n", kBefore),
     true},
    {"NoBytesOfTheSameTime", kAllFiles, kBefore, Write(kAllFiles[1], "", kBefore), true},
    {"OneByteMoreOfTheSameTime", kAllFiles, kBefore, Write(kAllFiles[1], kBytes + "\n", kBefore),
     true},
    // Nothing that one status call tells has changed.
    {"OtherBytesOfTheSameSizeAndTime", kAllFiles, kBefore,
     Write(kAllFiles[1], "Name Other\n\nKey K\nValue w\n", kBefore), false},
    {"FileOfAnotherComponentWritten", kAllFiles, kBefore, Create("FR/other.lang", 5000), false},
    {"OnlyFileDeleted", {kAllFiles[1]}, kBefore, Remove(kAllFiles[1]), true},
    {"CommonFileCreated", {kAllFiles[1]}, kBefore, Create(kAllFiles[0], 5000), false},
    {"CountryFileCreated", {kAllFiles[1]}, kBefore, Create(kAllFiles[3], 5000), false},
    {"FirstFileOfTheLanguageCreated", {}, kBefore, Create(kAllFiles[1], 5000), false},
    // A file of this time looks like one that was not there.
    {"Of1970Touched", {kAllFiles[1]}, 0, Touch(kAllFiles[1], 5000), false},
    {"Of1970Deleted", {kAllFiles[1]}, 0, Remove(kAllFiles[1]), false},
    {"OfTheFirstSecondOf1970Touched", {kAllFiles[1]}, 999, Touch(kAllFiles[1], 5000), false},
    {"OfTheFirstSecondTouched", {kAllFiles[1]}, 1000, Touch(kAllFiles[1], 0), true},
};

INSTANTIATE_TEST_SUITE_P(Changes, StaleTranslator, testing::ValuesIn(kStaleCases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
