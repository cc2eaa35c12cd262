// The bytes of a property file.

#include <sstream>
#include <string>

#include "bundles/properties_reader.h"
#include "fuzz/fuzz_target.h"

namespace {

class Nobody final : public kx::ProblemSink {
 public:
  void Line(const std::string& text) override { bytes_ += text.size(); }

 private:
  std::size_t bytes_ = 0;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream stream(std::string(reinterpret_cast<const char*>(data), size));
  kx::PropertyTable table;
  Nobody problems;
  kx::ReadPropertiesStream("fuzz", stream, table, problems);
  std::size_t stored = 0;
  table.ForEach([&stored](const char* key, const char* text) {
    stored += std::string(key).size() + std::string(text).size();
  });
  Require(stored <= size);  // escapes only shorten
  return 0;
}
