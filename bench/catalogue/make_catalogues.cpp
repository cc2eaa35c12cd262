// Writes the catalogues that the benchmarks read: kxxlate_bench_catalogues DIRECTORY.
//
//   resources/texts<N>.properties, FR/texts<N>lang.lang   one catalogue of N messages
//   resources/agent*.properties, DE*/, EN/                what is acquired again and again
//   resources/IT/region.lang                              a language of 192 KB
//   resources/<AA...>/growth.lang                         many languages of one component
//   bundles/<N>/resources                                 N bundles with one text each
//   files/<N>                                             N bundle files, ten locales a bundle
//   peers                                                 the same messages for the peers

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "catalogue/catalogue_formats.h"

namespace {

namespace fs = std::filesystem;

const int kSizes[] = {100, 1000, 10000, 100000, 1000000};

void WriteFile(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

void WriteSizes(const fs::path& root) {
  for (const int size : kSizes) {
    const std::string name = "texts" + std::to_string(size);
    WriteFile(root / "resources" / (name + ".properties"), bench::AsProperties(size));
    WriteFile(root / "resources" / "FR" / (name + "lang.lang"), bench::AsLang(size));
    WriteFile(root / "peers" / (name + ".json"), bench::AsJson(size));
    WriteFile(root / "peers" / (name + ".ini"), bench::AsIni(size));
    if (size > 100000) continue;
    WriteFile(root / "peers" / (name + ".po"), bench::AsPo(size));
    // Its compiler takes minutes for more.
    if (size > 10000) continue;
    WriteFile(root / "peers" / name / "fr.txt", bench::AsResourceBundle(size));
  }
}

void WriteAcquired(const fs::path& resources) {
  for (const char* locale : {"", "_fr", "_fr_CA", "_de"}) {
    WriteFile(resources / ("agent" + std::string(locale) + ".properties"),
              bench::AsProperties(100));
  }
  for (const char* language : {"EN", "DE", "DE-AT"}) {
    WriteFile(resources / language / "(Common).lang", bench::AsLang(100));
    WriteFile(resources / language / "gateway.lang", bench::AsLang(100));
  }
}

void WriteLanguages(const fs::path& resources) {
  // 1,800 messages of about 107 bytes.
  WriteFile(resources / "IT" / "region.lang", bench::AsLang(1800));
  for (int language = 0; language < 64; ++language) {
    const char code[] = {static_cast<char>('A' + language / 8),
                         static_cast<char>('A' + language % 8), 'X', '\0'};
    WriteFile(resources / code / "growth.lang", bench::AsLang(1000, language + 1));
  }
}

// Hard links, so that ten thousand files cost no ten thousand blocks.
void LinkFile(const fs::path& file, const fs::path& link) {
  fs::remove(link);
  fs::create_hard_link(file, link);
}

void WriteBundles(const fs::path& root) {
  for (const int count : {1, 100, 10000}) {
    const fs::path resources = root / "bundles" / std::to_string(count) / "resources";
    WriteFile(resources / "b0.properties", bench::AsProperties(1));
    for (int number = 1; number < count; ++number) {
      LinkFile(resources / "b0.properties",
               resources / ("b" + std::to_string(number) + ".properties"));
    }
  }
}

void WriteManyFiles(const fs::path& root) {
  for (const int count : {1000, 10000}) {
    const fs::path directory = root / "files" / std::to_string(count);
    WriteFile(directory / "component0.properties", bench::AsProperties(1));
    const char* const locales[] = {"",    "_de",    "_en", "_es", "_fr",
                                   "_it", "_pt_BR", "_ja", "_ko", "_zh_Hant_TW"};
    for (int number = 1; number < count; ++number) {
      LinkFile(directory / "component0.properties",
               directory / ("component" + std::to_string(number / 10) + locales[number % 10] +
                            ".properties"));
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: kxxlate_bench_catalogues DIRECTORY\n";
    return 2;
  }
  const fs::path root = argv[1];
  fs::remove_all(root);
  WriteSizes(root);
  WriteAcquired(root / "resources");
  WriteLanguages(root / "resources");
  WriteBundles(root);
  WriteManyFiles(root);
  return 0;
}
