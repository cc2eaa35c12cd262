#ifndef KX_TESTS_LANG_LANG_FILE_READER_CASES_H
#define KX_TESTS_LANG_LANG_FILE_READER_CASES_H

#include <gtest/gtest.h>

#include "lang/lang_file_cases.h"

/// Its rows stand in several files; lang_file_reader_test.cpp says what is checked of each.
class LangFileReader : public testing::TestWithParam<LangFileCase> {};

#endif  // KX_TESTS_LANG_LANG_FILE_READER_CASES_H
