// Writes how many bytes, or how many allocations, something takes:
//
//   resident CONTENDER SIZE   pages of the process, per entry of a loaded catalogue
//   held CONTENDER SIZE       blocks and mappings, per entry
//   peak CONTENDER SIZE       the most of them while it was loaded, per entry
//   region CONTENDER COUNT    blocks for each region, without files, of a language
//   languages CONTENDER COUNT blocks for so many languages of 1,000 texts
//   allocations STYLE COUNT   allocations of an insertion
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "catalogue/messages.h"
#include "programs/tracked_memory.h"
#include "support/insertions.h"
#include "support/loaders.h"
#include "support/regions.h"

namespace bench {

namespace {

/// Exact, other than the numbers of /proc/self/statm.
double ResidentBytes() {
  std::ifstream report("/proc/self/smaps_rollup");
  for (std::string word; report >> word;) {
    if (word != "Rss:") continue;
    double kilobytes = 0;
    report >> kilobytes;
    return kilobytes * 1024;
  }
  throw std::runtime_error("the system does not tell what is resident");
}

// Each text is asked for once: some keep what was found, and a mapped file is read only then.
void AskForAll(const LoadedTexts& texts, int size) {
  for (int number = 0; number < size; ++number) {
    if (!texts.Has(MakeMessage(number).key.c_str())) throw std::runtime_error("a text is missing");
  }
}

double Catalogue(const std::string& what, const std::string& contender, int size) {
  const Loader& load = Loaders().at(contender);
  const auto small = load(100);
  AskForAll(*small, 100);
  ForgetPeak();
  const std::size_t before = Tracked().bytes;
  const double residentBefore = ResidentBytes();
  const auto texts = load(size);
  const std::size_t peak = Tracked().peak;
  AskForAll(*texts, size);
  const double held = static_cast<double>(Tracked().bytes - before);
  if (what == "resident") return (ResidentBytes() - residentBefore) / size;
  return (what == "peak" ? static_cast<double>(peak - before) : held) / size;
}

double Regions(int count) {
  CKxXlate::GetBundle("region", "it");
  const std::vector<std::string> locales = RegionLocales(count);
  const std::size_t before = Tracked().bytes;
  for (const std::string& locale : locales) CKxXlate::GetBundle("region", locale.c_str());
  return static_cast<double>(Tracked().bytes - before) / count;
}

double Languages(int count) {
  CKxXlate::GetBundle("region", "it");
  const std::size_t before = Tracked().bytes;
  for (int language = 0; language < count; ++language) {
    const char code[] = {static_cast<char>('a' + language / 8),
                         static_cast<char>('a' + language % 8), 'x', '\0'};
    CKxXlate::GetBundle("growth", code);
  }
  return static_cast<double>(Tracked().bytes - before);
}

double Allocations(const std::string& style, int count) {
  const std::map<std::string, void (*)(char*, KxSize)> insertions = {
      {"percent", InsertPercent},
      {"brace", InsertBrace},
      {"variable_f", InsertVariableF},
      {"va_2f", InsertVA2F},
      {"va_texts", InsertVATexts}};
  char line[256];
  auto* const insert = insertions.at(style);
  insert(line, sizeof line);
  const std::size_t before = Tracked().allocations;
  for (int turn = 0; turn < count; ++turn) insert(line, sizeof line);
  return static_cast<double>(Tracked().allocations - before) / count;
}

double Run(const std::string& what, const std::string& contender, int count) {
  if (what == "region") return Regions(count);
  if (what == "languages") return Languages(count);
  if (what == "allocations") return Allocations(contender, count);
  return Catalogue(what, contender, count);
}

}  // namespace

}  // namespace bench

int main(int argc, char** argv) try {
  if (argc != 4) return 2;
  std::cout << bench::Run(argv[1], argv[2], std::stoi(argv[3])) << "\n";
  return 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << "\n";
  return 1;
}
