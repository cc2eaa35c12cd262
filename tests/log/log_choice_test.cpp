#include "log/log_choice.h"

#include <gtest/gtest.h>

#include <string>

#include "support/set_environment.h"

namespace {

using kx::LogChoice;

struct ChoiceCase {
  const char* name;
  const char* value;
  LogChoice choice;
};

class LogChoiceValue : public testing::TestWithParam<ChoiceCase> {};

TEST_P(LogChoiceValue, SaysThis) {
  EXPECT_TRUE(GetParam().choice == kx::ParseLogChoice(GetParam().value));
}

LogChoice File(const char* path) { return {LogChoice::Place::kFile, path}; }

const ChoiceCase kChoiceCases[] = {
    {"NotSet", nullptr, {}},
    {"Empty", "", {}},
    {"Off", "off", {LogChoice::Place::kNowhere}},
    {"Stderr", "stderr", {LogChoice::Place::kStandardErrors}},
    {"FullPath", "/var/log/product/translate.log", File("/var/log/product/translate.log")},
    {"RelativePath", "my.log", File("my.log")},
    {"PathWithABackslash", "D:\\logs\\my.log", File("D:\\logs\\my.log")},
    {"PathBeyondAscii", "/d\xC3\xA9p\xC3\xB4t/log", File("/d\xC3\xA9p\xC3\xB4t/log")},
    // Each of these is a file's name, so that a file of any name can be chosen.
    {"OffInCapitals", "OFF", File("OFF")},
    {"StderrInCapitals", "STDERR", File("STDERR")},
    {"OffAndABlank", "off ", File("off ")},
    {"OffInADirectory", "./off", File("./off")},
    {"Stdout", "stdout", File("stdout")},
    {"Blank", " ", File(" ")},
};

INSTANTIATE_TEST_SUITE_P(Each, LogChoiceValue, testing::ValuesIn(kChoiceCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LogChoiceOfEnvironment, IsWhatTheVariableSays) {
  SetVariable("KXXLATE_LOG", "/d\xC3\xA9p\xC3\xB4t/log");
  EXPECT_TRUE(File("/d\xC3\xA9p\xC3\xB4t/log") == kx::LogChoiceOfEnvironment());
  SetVariable("KXXLATE_LOG", "off");
  EXPECT_TRUE(LogChoice{LogChoice::Place::kNowhere} == kx::LogChoiceOfEnvironment());
}

TEST(LogChoiceOfEnvironment, IsNothingWhereTheVariableIsEmptyOrNotSet) {
  SetVariable("KXXLATE_LOG", "");
  EXPECT_TRUE(LogChoice{} == kx::LogChoiceOfEnvironment());
  RemoveVariable("KXXLATE_LOG");
  EXPECT_TRUE(LogChoice{} == kx::LogChoiceOfEnvironment());
}

}  // namespace
