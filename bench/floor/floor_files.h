#ifndef KX_BENCH_FLOOR_FILES_H
#define KX_BENCH_FLOOR_FILES_H

#include <string>
#include <vector>

#include "floor/flat_table.h"

namespace bench {

/// A table that has each of the names.
FlatTable BundleTable(const std::vector<std::string>& names);

/// The status of the four files of the language that the benchmarks acquire.
void AskForFourFiles();

/// The same, below a directory that is kept open.
void AskForFourFilesBelow();

/// What the file system has to do for a language without files: two files are not there, a line
/// goes to a log, and the two English files have not changed.
void AskForAbsentLanguage();

/// Reads a directory and registers its bundle files under the names of their bundles.
FlatTable RegisterBundleFiles(const std::string& directory);

}  // namespace bench

#endif  // KX_BENCH_FLOOR_FILES_H
