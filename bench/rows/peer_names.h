#ifndef KX_BENCH_PEER_NAMES_H
#define KX_BENCH_PEER_NAMES_H

#include <string>
#include <vector>

namespace bench {

/// Who reads a catalogue of a size: the library, its floors, and the peers that were found and that
/// get a catalogue of that size.
std::vector<std::string> LoadContenders(int size);

/// Those peers that map what was compiled. They load nothing, but what they read stays in memory.
std::vector<std::string> MappingPeers(int size);

/// Who has a program that starts and shows one text.
std::vector<std::string> StartContenders();

}  // namespace bench

#endif  // KX_BENCH_PEER_NAMES_H
