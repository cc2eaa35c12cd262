// Programs whose full path is long.

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "process/resource_search.h"
#include "support/host_tree.h"

namespace {

struct LengthCase {
  const char* name;
  std::size_t bytes;
};

void PrintTo(const LengthCase& c, std::ostream* os) { *os << c.bytes; }

class PathOfAHost : public ResourceSearch, public testing::WithParamInterface<LengthCase> {
 protected:
  /// A directory of the tree in which the host's full path has so many bytes.
  std::string DirectoryForPathOf(std::size_t bytes) const {
    const std::size_t host = PathFromUtf8(HostProgram()).filename().string().size();
    std::string directory = "product";
    std::size_t rest = bytes - tree_.Path(directory).size() - 1 - host;
    while (rest > 0) {
      // A name of a directory has at most 255 bytes; with its separator it needs two.
      const std::size_t taken = rest > 201 ? 200 : rest;
      directory += '/' + std::string(taken - 1, 'x');
      rest -= taken;
    }
    return directory;
  }
};

TEST_P(PathOfAHost, LeadsToWhatLiesBesideTheHost) {
  const std::string directory = DirectoryForPathOf(GetParam().bytes);
  Provide(directory);
  const std::string host = tree_.CopyProgram(directory, HostProgram());
  ASSERT_EQ(GetParam().bytes, host.size());
  const HostRun run = tree_.Run(host, {"text", "agent", "fr", "Origin"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(directory + "\n", run.output);
  EXPECT_EQ("", run.errors);
}

const LengthCase kLengths[] = {
    {"Of255Bytes", 255}, {"Of256Bytes", 256},   {"Of257Bytes", 257},   {"Of511Bytes", 511},
    {"Of512Bytes", 512}, {"Of1000Bytes", 1000}, {"Of1024Bytes", 1024}, {"Of3900Bytes", 3900},
};

INSTANTIATE_TEST_SUITE_P(Lengths, PathOfAHost, testing::ValuesIn(kLengths),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
