#include "bundles/properties_reader.h"

#include <cstring>
#include <istream>

#include "bundles/utf8_check.h"
#include "platform/file_streams.h"
#include "platform/utf8_text.h"

namespace kx {
namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr std::size_t kByteOrderMarkBytes = 3;

// Hosts match these lines; no text of a problem stands anywhere else.

std::string CannotOpenFile(const char* fileName) {
  return std::string("cannot open file: ") + fileName;
}

std::string ProblemAtLine(const char* fileName, std::size_t lineNumber, const char* problem) {
  return std::string(fileName) + ':' + std::to_string(lineNumber) + problem;
}

constexpr char kNotUtf8[] = " contains non-UTF-8 character(s). Skipped";
constexpr char kNoEqualsSign[] = " does not contain '='. Skipped";

/// Makes a stream pass on what its buffer throws for as long as this object lives. Otherwise a
/// failed allocation inside std::getline would look like the end of the file, and the catalogue
/// would be cut short without a word.
class StreamThrows {
 public:
  explicit StreamThrows(std::istream& stream) : stream_(stream), before_(stream.exceptions()) {
    stream_.exceptions(std::ios::badbit);
  }
  ~StreamThrows() {
    stream_.clear(stream_.rdstate() & ~std::ios::badbit);
    stream_.exceptions(before_);
  }
  StreamThrows(const StreamThrows&) = delete;
  StreamThrows& operator=(const StreamThrows&) = delete;

 private:
  std::istream& stream_;
  const std::ios::iostate before_;
};

char Unescaped(char c) {
  switch (c) {
    case 'a': return '\a';
    case 'b': return '\b';
    case 'n': return '\n';
    case 'r': return '\r';
    case 't': return '\t';
    default: return c;
  }
}

/// Reads one file; its members are what its lines have in common.
class PropertiesReader {
 public:
  PropertiesReader(const char* fileName, std::istream& stream, PropertyTable& table,
                   PropertyKeyPool& keys, ProblemSink& problems)
      : fileName_(fileName), stream_(stream), table_(table), keys_(keys), problems_(problems) {}

  void Read() {
    while (char* line = NextLine()) {
      if (*line == '\0' || *line == '#') continue;
      char* separator = std::strchr(line, '=');
      if (separator == nullptr) {
        problems_.Line(ProblemAtLine(fileName_, lineNumber_, kNoEqualsSign));
        continue;
      }
      *separator = '\0';
      std::string& value = table_[keys_.InternPropertyKey(KxUTF8Trim(line))];
      value.clear();
      AppendValue(value, KxUTF8Trim(separator + 1));
    }
  }

 private:
  char* NextLine() {
    return ReadPropertiesLine(fileName_, stream_, buffer_, lineNumber_, problems_);
  }

  void AppendValue(std::string& value, const char* text) {
    while (text != nullptr && *text != '\0') {
      const std::size_t plain = std::strcspn(text, "\\");
      value.append(text, plain);
      text += plain;
      if (*text == '\0') return;
      ++text;  // the backslash
      if (*text == '\0') {
        text = NextLine();  // an empty line ends the value, as the end of the file does
      } else {
        value += Unescaped(*text++);
      }
    }
  }

  const char* const fileName_;
  std::istream& stream_;
  PropertyTable& table_;
  PropertyKeyPool& keys_;
  ProblemSink& problems_;
  std::string buffer_;
  std::size_t lineNumber_ = 0;
};

}  // namespace

char* ReadPropertiesLine(const char* fileName, std::istream& stream, std::string& buffer,
                         std::size_t& lineNumber, ProblemSink& problems) {
  if (stream.bad()) return nullptr;
  const StreamThrows throws(stream);
  if (!std::getline(stream, buffer)) return nullptr;
  ++lineNumber;
  char* line = buffer.data();
  if (!IsWellFormedUtf8(line)) {
    problems.Line(ProblemAtLine(fileName, lineNumber, kNotUtf8));
    *line = '\0';
  }
  const bool marked =
      lineNumber == 1 && std::strncmp(line, kByteOrderMark, kByteOrderMarkBytes) == 0;
  return KxUTF8Trim(marked ? line + kByteOrderMarkBytes : line);
}

void ReadPropertiesStream(const char* fileName, std::istream& stream, PropertyTable& table,
                          PropertyKeyPool& keys, ProblemSink& problems) {
  PropertiesReader(fileName, stream, table, keys, problems).Read();
}

bool ReadPropertiesFile(const char* fileName, PropertyTable& table, bool* isSettled) {
  if (isSettled != nullptr) *isSettled = true;
  if (fileName == nullptr) return false;
  StandardErrorSink problems;
  CKxIfstream stream;
  KxIfstreamOpen(stream, fileName);
  const bool isOpen = !stream.fail();
  if (isOpen) {
    ReadPropertiesStream(fileName, stream, table, ProcessKeyPool(), problems);
  } else {
    problems.Line(CannotOpenFile(fileName));
  }
  if (isSettled != nullptr) *isSettled = !stream.MayWorkLater();
  return isOpen;
}

}  // namespace kx
