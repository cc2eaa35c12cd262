#ifndef KX_BENCH_REGIONS_H
#define KX_BENCH_REGIONS_H

#include <string>
#include <vector>

namespace bench {

/// Locales of regions of Italian, which have no files of their own.
std::vector<std::string> RegionLocales(int count);

/// What the file system has to do for such a region: two files have not changed, two are not there.
void AskForRegion(const std::string& locale);

}  // namespace bench

#endif  // KX_BENCH_REGIONS_H
