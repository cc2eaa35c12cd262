#ifndef KX_BENCH_CATALOGUE_FORMATS_H
#define KX_BENCH_CATALOGUE_FORMATS_H

#include <string>

namespace bench {

/// The first `size` messages as a file of each format: ours first, then what the peers read.
std::string AsProperties(int size);
std::string AsLang(int size, int variant = 0);
std::string AsJson(int size);
std::string AsPo(int size);
std::string AsIni(int size);
std::string AsResourceBundle(int size);

}  // namespace bench

#endif  // KX_BENCH_CATALOGUE_FORMATS_H
