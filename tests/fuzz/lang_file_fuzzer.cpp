// The bytes of a language file.

#include <sstream>
#include <string>

#include "fuzz/fuzz_target.h"
#include "lang/lang_file_parser.h"

namespace {

class Counter final : public kx::ProblemSink {
 public:
  void Line(const std::string& text) override {
    Require(!text.empty());
    ++lines_;
  }
  std::size_t Lines() const { return lines_; }

 private:
  std::size_t lines_ = 0;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream stream(std::string(reinterpret_cast<const char*>(data), size));
  kx::InternTable strings;
  kx::LanguageContents contents;
  Counter problems;
  const std::string name = "FR/fuzz.lang";
  kx::LangFileParser parser(name, problems, strings);
  kx::ReadLangFile(parser, stream, contents);
  Require(problems.Lines() <= parser.lineNumber + 1);
  return 0;
}
