#include "support/requests.h"

#include <algorithm>
#include <map>
#include <random>

#include "catalogue/messages.h"

namespace bench {

namespace {

const int kKeysAskedFor = 10000;

// Spread over the whole catalogue.
std::vector<std::string> KeysOf(int catalogueSize, int count) {
  std::vector<std::string> keys;
  const int step = std::max(1, catalogueSize / count);
  for (int number = 0; number < catalogueSize; number += step) {
    keys.push_back(MakeMessage(number).key);
  }
  return keys;
}

}  // namespace

Requests::Requests(std::vector<std::string> keys, Order order) : keys_(std::move(keys)) {
  // Without a seed of its own, so that every run and every contender gets the same order.
  std::mt19937 random;
  std::shuffle(keys_.begin(), keys_.end(), random);
  std::uniform_int_distribution<std::size_t> any(0, keys_.size() - 1);
  order_.reserve(kCount);
  for (std::size_t turn = 0; turn < kCount; ++turn) {
    const std::size_t next = order == Order::kRandom ? any(random) : turn % keys_.size();
    order_.push_back(keys_[next].c_str());
  }
}

const Requests& Hits(int catalogueSize) {
  static std::map<int, Requests> requests;
  return requests
      .try_emplace(catalogueSize, KeysOf(catalogueSize, kKeysAskedFor), Requests::Order::kRandom)
      .first->second;
}

const Requests& OtherCaseHits(int catalogueSize) {
  static std::map<int, Requests> requests;
  std::vector<std::string> keys = KeysOf(catalogueSize, kKeysAskedFor);
  for (std::string& key : keys) key = LowerCase(key);
  return requests.try_emplace(catalogueSize, std::move(keys), Requests::Order::kRandom)
      .first->second;
}

const Requests& HotHits() {
  std::vector<std::string> keys = KeysOf(10000, 64);
  keys.resize(64);
  static const Requests requests(std::move(keys), Requests::Order::kRepeating);
  return requests;
}

const Requests& Misses() {
  std::vector<std::string> keys;
  for (int number = 0; number < 1000; ++number) keys.push_back(AbsentKey(number * 10));
  static const Requests requests(std::move(keys), Requests::Order::kRandom);
  return requests;
}

}  // namespace bench
