#ifndef KX_BENCH_SIMDJSON_TEXTS_H
#define KX_BENCH_SIMDJSON_TEXTS_H

#include <absl/container/flat_hash_map.h>
#include <simdjson.h>

#include <string>
#include <string_view>

#include "support/tree.h"

namespace bench {

/// A file of JSON, read by simdjson into a table of absl.
class SimdjsonTexts {
 public:
  explicit SimdjsonTexts(int size) {
    simdjson::ondemand::parser parser;
    const auto file =
        simdjson::padded_string::load(TreePath("peers/texts" + std::to_string(size) + ".json"));
    simdjson::ondemand::document document = parser.iterate(file);
    for (auto field : document.get_object()) {
      const std::string_view key = field.unescaped_key();
      const std::string_view text = field.value().get_string();
      texts_.emplace(key, text);
    }
  }

  const char* Find(const char* key) const {
    const auto found = texts_.find(absl::string_view(key));
    return found == texts_.end() ? nullptr : found->second.c_str();
  }

 private:
  absl::flat_hash_map<std::string, std::string> texts_;
};

}  // namespace bench

#endif  // KX_BENCH_SIMDJSON_TEXTS_H
