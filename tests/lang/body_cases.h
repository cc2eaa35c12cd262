#ifndef KX_TESTS_LANG_BODY_CASES_H
#define KX_TESTS_LANG_BODY_CASES_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lang/lang_file_cases.h"

/// The rows are bodies; a header of two lines is put in front of them, so they begin at line 3.
class BodyOfRow : public testing::TestWithParam<LangFileCase> {
 protected:
  static void ExpectOfBody(const std::string& bytes) {
    std::vector<std::string> stored = GetParam().stored;
    stored.insert(stored.begin(), "name = F");
    ExpectStoresAndReports(bytes, stored, GetParam().problems);
  }

  const std::string bytes_ = "Name F\n\n" + GetParam().bytes;
};

#endif  // KX_TESTS_LANG_BODY_CASES_H
