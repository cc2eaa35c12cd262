#ifndef KX_BENCH_SCAN_FILES_H
#define KX_BENCH_SCAN_FILES_H

#include <string>

#include "floor/flat_table.h"

namespace bench {

/// The floor of a load: the file read whole, its lines found with memchr, keys and texts ended
/// where they lie. No check of UTF-8, no escapes, no problems told.
FlatTable ScanProperties(const std::string& path);

/// The same for a language file without continuations, labels or comments.
FlatTable ScanLang(const std::string& path);

}  // namespace bench

#endif  // KX_BENCH_SCAN_FILES_H
