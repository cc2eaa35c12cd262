// Does once what a process can do only once, and writes how many seconds it took:
//
//   load CONTENDER SIZE        reads a catalogue; seconds per entry
//   directory CONTENDER COUNT  reads a directory of bundle files
//   acquire CONTENDER COUNT    acquires and releases one of so many bundles
//   region CONTENDER COUNT     acquires regions, without files, of a language; seconds per region
#include <chrono>
#include <exception>
#include <filesystem>
#include <functional>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "CKxXlate.h"
#include "catalogue/messages.h"
#include "floor/floor_files.h"
#include "support/loaders.h"
#include "support/regions.h"
#include "support/tree.h"

namespace bench {

namespace {

template <typename Work>
double SecondsOf(Work work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Load(const std::string& contender, int size) {
  const Loader& load = Loaders().at(contender);
  // So that what is bound and set up at the first call is not counted as a part of the file.
  const auto small = load(100);
  std::unique_ptr<LoadedTexts> texts;
  const double seconds = SecondsOf([&] { texts = load(size); });
  if (!texts->Has(MakeMessage(size - 1).key.c_str()))
    throw std::runtime_error("the last text is missing");
  return seconds / size;
}

double Directory(const std::string& contender, int count) {
  const std::string directory = TreePath(std::to_string(count));
  if (contender == "ours") {
    return SecondsOf([&] { CKxXlate::SetResourceDirectory(directory.c_str()); });
  }
  if (contender == "floor") {
    return SecondsOf([&] { RegisterBundleFiles(directory); });
  }
  return SecondsOf([&] {
    std::unordered_map<std::string, std::vector<std::string>> bundles;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
      if (entry.path().extension() != ".properties") continue;
      const std::string name = entry.path().stem().string();
      const std::size_t bundleEnd = std::min(name.find('_'), name.size());
      bundles[name.substr(0, bundleEnd)].push_back(name.substr(bundleEnd));
    }
  });
}

double Acquire(const std::string& contender, int count) {
  std::vector<std::string> names;
  for (int number = 0; number < count; ++number) names.push_back("b" + std::to_string(number));
  const FlatTable table = BundleTable(names);
  std::mt19937 random;
  std::uniform_int_distribution<std::size_t> any(0, names.size() - 1);
  std::vector<const char*> order;
  for (int turn = 0; turn < (1 << 16); ++turn) order.push_back(names[any(random)].c_str());
  const bool ours = contender == "ours";
  const auto acquireAll = [&] {
    for (const char* name : order) {
      if (ours) {
        CKxXlate::GetBundle(name, "")->Release();
      } else if (table.Find(name) == nullptr) {
        throw std::runtime_error("a bundle is missing");
      }
    }
  };
  acquireAll();
  double best = SecondsOf(acquireAll);
  for (int round = 0; round < 8; ++round) best = std::min(best, SecondsOf(acquireAll));
  return best / static_cast<double>(order.size());
}

double Region(const std::string& contender, int count) {
  CKxXlate* const language = CKxXlate::GetBundle("region", "it");
  const std::vector<std::string> locales = RegionLocales(count);
  const double seconds = SecondsOf([&] {
    for (const std::string& locale : locales) {
      if (contender == "ours") {
        CKxXlate::GetBundle("region", locale.c_str());
      } else {
        AskForRegion(locale);
      }
    }
  });
  language->Release();
  return seconds / count;
}

int Run(const std::string& job, const std::string& contender, int count) {
  const std::map<std::string, std::function<double(const std::string&, int)>> jobs = {
      {"load", Load}, {"directory", Directory}, {"acquire", Acquire}, {"region", Region}};
  std::cout << jobs.at(job)(contender, count) << "\n";
  return 0;
}

}  // namespace

}  // namespace bench

int main(int argc, char** argv) try {
  if (argc != 4) return 2;
  return bench::Run(argv[1], argv[2], std::stoi(argv[3]));
} catch (const std::exception& error) {
  std::cerr << error.what() << "\n";
  return 1;
}
