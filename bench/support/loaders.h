#ifndef KX_BENCH_LOADERS_H
#define KX_BENCH_LOADERS_H

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace bench {

/// A catalogue that somebody has loaded.
class LoadedTexts {
 public:
  virtual ~LoadedTexts() = default;
  virtual bool Has(const char* key) const = 0;
};

/// Loads the generated catalogue of a size.
using Loader = std::function<std::unique_ptr<LoadedTexts>(int size)>;

/// Those of this program, by the names of the contenders.
std::map<std::string, Loader>& Loaders();

/// Adds a loader. Texts are made from a size, and Find answers something that may be null.
template <typename Texts>
bool RegisterLoader(const std::string& contender) {
  class Loaded : public LoadedTexts {
   public:
    explicit Loaded(int size) : texts_(size) {}
    bool Has(const char* key) const override { return texts_.Find(key) != nullptr; }

   private:
    Texts texts_;
  };
  Loaders()[contender] = [](int size) { return std::make_unique<Loaded>(size); };
  return true;
}

}  // namespace bench

#endif  // KX_BENCH_LOADERS_H
