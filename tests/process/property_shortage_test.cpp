// What the log says of absent keys when memory ran out while they were looked up.

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "process/property_lookup.h"

namespace {

TEST_F(PropertyLookup, MissThatMemoryDidNotSufficeToLogIsLoggedByTheNextRequest) {
  const HostRun run =
      tree_.RunCopyIn("product/bin", KXXLATE_STARVING_HOST,
                      {"agent", "fr", "AN_ABSENT_KEY_THAT_NEEDS_MEMORY_OF_ITS_OWN_"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", run.errors);

  std::string lines;
  int keys = 0;
  std::istringstream output(run.output);
  for (std::string key; std::getline(output, key); ++keys)
    lines += Line("agent_fr.properties", key);
  EXPECT_EQ(lines, Log());
  EXPECT_GE(keys, 3) << "memory for so few requests failed that this says nothing";
}

}  // namespace
