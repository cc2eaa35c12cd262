// What the standard library alone offers.
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalogue/messages.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

class MapTexts {
 public:
  explicit MapTexts(int size) {
    messages_.reserve(static_cast<std::size_t>(size));
    for (int number = 0; number < size; ++number) {
      const Message& message = messages_.emplace_back(MakeMessage(number));
      texts_.emplace(message.key, message.text);
    }
  }

  const char* Find(const char* key) const {
    const auto found = texts_.find(std::string_view(key));
    return found == texts_.end() ? nullptr : found->second.data();
  }

 private:
  std::vector<Message> messages_;
  std::map<std::string_view, std::string_view> texts_;
};

struct ViewHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>()(key); }
};

class UnorderedMapTexts {
 public:
  explicit UnorderedMapTexts(int size) {
    for (int number = 0; number < size; ++number) {
      Message message = MakeMessage(number);
      texts_.emplace(std::move(message.key), std::move(message.text));
    }
  }

  const char* Find(const char* key) const {
    const auto found = texts_.find(std::string_view(key));
    return found == texts_.end() ? nullptr : found->second.c_str();
  }

 private:
  std::unordered_map<std::string, std::string, ViewHash, std::equal_to<>> texts_;
};

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<MapTexts>("std_map");
  RegisterLookups<UnorderedMapTexts>("std_unordered_map");
  return true;
}();

}  // namespace

}  // namespace bench
