#include "bundles/properties_reader.h"

#include <string>

#include "bundles/utf8_check.h"
#include "platform/file_status.h"
#include "platform/file_streams.h"
#include "platform/utf8_text.h"
#include "texts/fill_forecast.h"

namespace kx {
namespace {

constexpr std::size_t kLinesPerProgress = FillForecast<PropertyTable>::kLines;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Hosts match these lines; no text of a problem stands anywhere else.

std::string CannotOpenFile(const char* fileName) {
  return std::string("cannot open file: ") + fileName;
}

std::string ProblemAtLine(const char* fileName, std::size_t lineNumber, const char* problem) {
  return std::string(fileName) + ':' + std::to_string(lineNumber) + problem;
}

constexpr char kNotUtf8[] = " contains non-UTF-8 character(s). Skipped";
constexpr char kNoEqualsSign[] = " does not contain '='. Skipped";

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
  PropertiesReader(const char* fileName, std::istream& stream, PropertyReceiver& receiver,
                   ProblemSink& problems)
      : fileName_(fileName),
        lines_(fileName, stream, problems),
        receiver_(receiver),
        problems_(problems) {}

  void Read() {
    std::string_view line;
    while (lines_.ReadPropertiesLine(line)) {
      if (lines_.LineNumber() % kLinesPerProgress == 0) receiver_.Progress(lines_.BytesTaken());
      if (line.empty() || line.front() == '#') continue;
      const std::size_t separator = line.find('=');
      if (separator == std::string_view::npos) {
        problems_.Line(ProblemAtLine(fileName_, lines_.LineNumber(), kNoEqualsSign));
        continue;
      }
      TakeEntry(KxUTF8Trim(line.substr(0, separator)), KxUTF8Trim(line.substr(separator + 1)));
    }
  }

 private:
  void TakeEntry(std::string_view key, std::string_view text) {
    if (text.find('\\') == std::string_view::npos) return receiver_.Entry(key, text);
    key_ = key;  // whose line is gone once the value goes on with another
    text_.clear();
    AppendValue(text);
    receiver_.Entry(key_, text_);
  }

  void AppendValue(std::string_view text) {
    while (!text.empty()) {
      const std::string_view plain = text.substr(0, text.find('\\'));
      text_ += plain;
      text.remove_prefix(plain.size());
      if (text.empty()) return;
      text.remove_prefix(1);  // the backslash
      if (text.empty()) {
        // An empty line ends the value, as the end of the file does.
        if (!lines_.ReadPropertiesLine(text)) return;
      } else {
        text_ += Unescaped(text.front());
        text.remove_prefix(1);
      }
    }
  }

  const char* const fileName_;
  PropertiesLines lines_;
  PropertyReceiver& receiver_;
  ProblemSink& problems_;
  std::string key_;
  std::string text_;
};

class TableFiller final : public PropertyReceiver {
 public:
  TableFiller(PropertyTable& table, std::size_t fileBytes)
      : table_(table), forecast_(table, fileBytes) {}
  void Entry(std::string_view key, std::string_view text) override { table_.Set(key, text); }
  void Progress(std::size_t bytesTaken) override { forecast_.Update(bytesTaken); }

 private:
  PropertyTable& table_;
  FillForecast<PropertyTable> forecast_;
};

}  // namespace

bool PropertiesLines::ReadPropertiesLine(std::string_view& line) {
  if (stream_.bad()) return false;
  const LineReader::Line read = lines_.Next();
  if (read.kind == LineReader::Kind::kLast && read.text.empty()) return false;
  ++lineNumber_;
  line = lines_.HasNul() ? read.text.substr(0, read.text.find('\0')) : read.text;
  if (!IsWellFormedUtf8(line)) {
    problems_.Line(ProblemAtLine(fileName_, lineNumber_, kNotUtf8));
    line = {};
  }
  if (lineNumber_ == 1 && line.starts_with(kByteOrderMark)) {
    line.remove_prefix(kByteOrderMark.size());
  }
  line = KxUTF8Trim(line);
  return true;
}

void ReadPropertiesStream(const char* fileName, std::istream& stream, PropertyReceiver& receiver,
                          ProblemSink& problems) {
  PropertiesReader(fileName, stream, receiver, problems).Read();
}

void ReadPropertiesStream(const char* fileName, std::istream& stream, PropertyTable& table,
                          ProblemSink& problems, std::size_t fileBytes) {
  TableFiller filler(table, fileBytes);
  ReadPropertiesStream(fileName, stream, filler, problems);
}

bool ReadPropertiesFile(const char* fileName, PropertyTable& table, bool* isSettled) {
  if (isSettled != nullptr) *isSettled = true;
  if (fileName == nullptr) return false;
  StandardErrorSink problems;
  CKxIfstream stream;
  KxIfstreamOpen(stream, fileName);
  const bool isOpen = !stream.fail();
  if (isOpen) {
    KxFileStatus status;
    KxStat(fileName, &status);
    ReadPropertiesStream(fileName, stream, table, problems, static_cast<std::size_t>(status.size));
  } else {
    problems.Line(CannotOpenFile(fileName));
  }
  if (isSettled != nullptr) *isSettled = !stream.MayWorkLater();
  return isOpen;
}

}  // namespace kx
