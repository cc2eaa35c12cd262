#ifndef KX_BUNDLES_PROPERTIES_READER_H
#define KX_BUNDLES_PROPERTIES_READER_H

#include <cstddef>
#include <iosfwd>
#include <string>
#include <unordered_map>

#include "bundles/property_key_pool.h"
#include "log/problem_sink.h"
#include "platform/key_hash.h"

namespace kx {

/// The texts of one file by key. Keys are pooled and found in any ASCII case.
using PropertyTable = std::unordered_map<const char*, std::string, KeyHash, KeyEqual>;

/// Reads one line of a .properties file.
///
/// @param fileName    for the problem line
/// @param buffer      receives the line; grows as needed
/// @param lineNumber  number of the last line read; one more afterwards
/// @param problems    is told when the line is not UTF-8; the line then counts as empty
/// @return the line without white space at both ends (and, on line 1, without a byte-order mark), a
///         place inside `buffer`; null at the end of the stream or when it cannot be read
///
/// A NUL byte ends its line's text.
char* ReadPropertiesLine(const char* fileName, std::istream& stream, std::string& buffer,
                         std::size_t& lineNumber, ProblemSink& problems);

/// Reads the lines of a .properties file into `table`; docs/properties-files.md has the format.
///
/// @param fileName  for the problem lines; not null
/// @param table     keeps its entries; a key read again replaces the value, not the key's spelling
/// @param keys      the pool that keeps the keys; must outlive the table
/// @param problems  is told of each line that could not be used; the others are read all the same
///
/// Throws std::bad_alloc only; what was read until then is in the table.
void ReadPropertiesStream(const char* fileName, std::istream& stream, PropertyTable& table,
                          PropertyKeyPool& keys, ProblemSink& problems);

/// Reads the file `fileName` (UTF-8) into `table`, with the keys of this process.
///
/// @param isSettled  if not null, receives false when the file exists but could not be opened or
///                   read to its end for a reason that passes, else true
/// @return false when the name is null or the file cannot be opened (which is told to standard
///         error, like all problems), else true, also when lines were skipped
bool ReadPropertiesFile(const char* fileName, PropertyTable& table, bool* isSettled = nullptr);

}  // namespace kx

#endif  // KX_BUNDLES_PROPERTIES_READER_H
