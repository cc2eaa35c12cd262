#ifndef KX_BUNDLES_PROPERTIES_READER_H
#define KX_BUNDLES_PROPERTIES_READER_H

#include <cstddef>
#include <istream>
#include <string_view>

#include "bundles/property_table.h"
#include "log/problem_sink.h"
#include "texts/line_reader.h"

namespace kx {

/// The lines of a .properties file.
class PropertiesLines {
 public:
  /// @param fileName  for the problem lines; this and the others must outlive this object
  /// @param problems  is told of each line that is not UTF-8; the line then counts as empty
  PropertiesLines(const char* fileName, std::istream& stream, ProblemSink& problems)
      : fileName_(fileName), stream_(stream), lines_(*stream.rdbuf()), problems_(problems) {}

  /// Reads the next line, without white space at both ends (and, the first one, without a
  /// byte-order mark). A NUL byte ends its line's text.
  ///
  /// @param line  valid until the next call
  /// @return false at the end of the file or when it cannot be read
  bool ReadPropertiesLine(std::string_view& line);

  /// Of the line that was read last, from 1.
  std::size_t LineNumber() const noexcept { return lineNumber_; }

  /// As LineReader::BytesTaken.
  std::size_t BytesTaken() const noexcept { return lines_.BytesTaken(); }

 private:
  const char* const fileName_;
  const std::istream& stream_;
  LineReader lines_;
  ProblemSink& problems_;
  std::size_t lineNumber_ = 0;
};

/// Is told of each entry of a file, in reading order.
class PropertyReceiver {
 public:
  /// @param text  with its escapes and continuations resolved; both are valid during the call
  virtual void Entry(std::string_view key, std::string_view text) = 0;

  /// Is told now and then how many bytes of the file have been read.
  virtual void Progress(std::size_t /*bytesTaken*/) {}

 protected:
  ~PropertyReceiver() = default;
};

/// Reads the lines of a .properties file; docs/properties-files.md has the format.
///
/// @param fileName  for the problem lines; not null
/// @param receiver  is told of a key again when it is read again
/// @param problems  is told of each line that could not be used; the others are read all the same
///
/// Throws std::bad_alloc, and what the receiver throws; it has been told what was read until then.
void ReadPropertiesStream(const char* fileName, std::istream& stream, PropertyReceiver& receiver,
                          ProblemSink& problems);

/// The same into a table; a key read again replaces the text, not the key's spelling.
///
/// @param fileBytes  by which the table foresees its size; 0 when not known
void ReadPropertiesStream(const char* fileName, std::istream& stream, PropertyTable& table,
                          ProblemSink& problems, std::size_t fileBytes = 0);

/// Reads the file `fileName` (UTF-8) into `table`.
///
/// @param isSettled  if not null, receives false when the file exists but could not be opened or
///                   read to its end for a reason that passes, else true
/// @return false when the name is null or the file cannot be opened (which is told to standard
///         error, like all problems), else true, also when lines were skipped
bool ReadPropertiesFile(const char* fileName, PropertyTable& table, bool* isSettled = nullptr);

}  // namespace kx

#endif  // KX_BUNDLES_PROPERTIES_READER_H
