#include "rows/peer_names.h"

#include <sstream>

namespace bench {

namespace {

/// Adds those that get a catalogue of a size, from a list of names and of the largest for each.
void AddThoseOf(int size, const char* list, std::vector<std::string>& names) {
  std::istringstream words(list);
  int largest = 0;
  for (std::string name; words >> name >> largest;) {
    if (size <= largest) names.push_back(name);
  }
}

}  // namespace

std::vector<std::string> LoadContenders(int size) {
  std::vector<std::string> names = {"ours.properties", "ours.lang", "floor.properties",
                                    "floor.lang"};
  AddThoseOf(size, KXXLATE_BENCH_LOADERS, names);
  return names;
}

std::vector<std::string> MappingPeers(int size) {
  std::vector<std::string> names;
  AddThoseOf(size, KXXLATE_BENCH_MAPPERS, names);
  return names;
}

std::vector<std::string> StartContenders() {
  std::vector<std::string> names = {"ours", "floor"};
  std::istringstream list(KXXLATE_BENCH_START_PEERS);
  for (std::string name; list >> name;) names.push_back(name);
  return names;
}

}  // namespace bench
