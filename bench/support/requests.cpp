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
    if (static_cast<int>(keys.size()) < count) keys.push_back(MakeMessage(number).key);
  }
  return keys;
}

std::vector<std::string> LowerCaseKeys() {
  std::vector<std::string> keys = KeysOf(kKeysAskedFor, kKeysAskedFor);
  for (std::string& key : keys) key = LowerCase(key);
  return keys;
}

std::vector<std::string> AbsentKeys() {
  std::vector<std::string> keys;
  for (int number = 0; number < 1000; ++number) keys.push_back(AbsentKey(number * 10));
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
  const auto made = requests.find(catalogueSize);
  if (made != requests.end()) return made->second;
  return requests
      .try_emplace(catalogueSize, KeysOf(catalogueSize, kKeysAskedFor), Requests::Order::kRandom)
      .first->second;
}

const Requests& OtherCaseHits() {
  static const Requests requests(LowerCaseKeys(), Requests::Order::kRandom);
  return requests;
}

const Requests& HotHits() {
  static const Requests requests(KeysOf(kKeysAskedFor, 64), Requests::Order::kRepeating);
  return requests;
}

const Requests& Misses() {
  static const Requests requests(AbsentKeys(), Requests::Order::kRandom);
  return requests;
}

}  // namespace bench
