#ifndef KX_BENCH_REQUESTS_H
#define KX_BENCH_REQUESTS_H

#include <string>
#include <vector>

namespace bench {

/// Keys in the order in which they are asked for. The keys lie apart from every catalogue, as those
/// of a host do; and they are C strings, as the library takes them: whoever wants the length finds
/// it out.
class Requests {
 public:
  /// A power of two, so that the measured loop counts round with a mask.
  static constexpr std::size_t kCount = 1 << 16;

  enum class Order {
    kRandom,    ///< too long for a branch predictor to learn
    kRepeating  ///< each key once a round, in a random order that stays: a predictor learns it
  };

  Requests(std::vector<std::string> keys, Order order);

  const char* At(std::size_t turn) const { return order_[turn % kCount]; }

 private:
  std::vector<std::string> keys_;
  std::vector<const char*> order_;
};

/// Keys that the catalogue of this size has: 10,000 of them, or all when there are fewer.
const Requests& Hits(int catalogueSize);

/// The keys of the catalogue of 10,000 in small letters.
const Requests& OtherCaseHits();

/// 64 keys of the catalogue of 10,000, again and again: the same few messages in a loop.
const Requests& HotHits();

/// 1,000 keys that no catalogue has.
const Requests& Misses();

}  // namespace bench

#endif  // KX_BENCH_REQUESTS_H
