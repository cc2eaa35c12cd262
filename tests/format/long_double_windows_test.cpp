// What hosts of this system pass for "%Lf": a double, which is all that their compilers have.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "format/inserted.h"

namespace {

TEST(LongDoubleOnWindows, IsADouble) {
  EXPECT_EQ("0.10000000000000000555 0x1.9p+3 o", Inserted("%.20Lf %La o", 0.1, 12.5));
}

TEST(LongDoubleOnWindows, IsFoundBehindOthersOfEachKind) {
  EXPECT_EQ("a 1 2.5 3.5 b 4 5.5 6.5 c", Inserted("%s %d %.1f %.1Lf %s %I64d %.1Lf %.1f %s", "a", 1,
                                                  2.5, 3.5, "b", std::int64_t{4}, 5.5, 6.5, "c"));
}

}  // namespace
