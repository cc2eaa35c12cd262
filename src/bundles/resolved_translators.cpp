#include "bundles/resolved_translators.h"

#include <algorithm>
#include <cstring>

namespace kx {
namespace {

constexpr std::size_t kFewestRequests = 8;

}  // namespace

void ResolvedTranslators::Remember(std::string_view bundle, std::string_view locale,
                                   PropertiesXlate& translator) {
  const CriticalSectionGuard guard(lock_);
  if (Find(bundle, locale) != nullptr) return;
  requests_.Reserve();
  ReserveRequest();
  char* texts = nullptr;
  if (!RequestDigest::Holds(bundle, locale)) {
    // The padding is the texts' own: what lies behind it may be written while others read them.
    texts = texts_.Take(bundle.size() + locale.size() + 2 + kKeyPadding);
    std::memset(PutText(PutText(texts, bundle), locale), 0, kKeyPadding);
  }
  Request& request = pieces_.back()[used_++];
  request = {RequestDigest(bundle, locale, seed_), &translator, texts};
  requests_.Add(&request, request.digest.Hash(seed_));
}

bool ResolvedTranslators::AreTextsEqual(const char* texts, std::string_view bundle,
                                        std::string_view locale) noexcept {
  return EqualKey<ExactCase>(texts, bundle) && EqualKey<AnyCase>(texts + bundle.size() + 1, locale);
}

void ResolvedTranslators::ReserveRequest() {
  if (used_ < room_) return;
  const std::size_t room = std::max(kFewestRequests, 2 * room_);
  pieces_.push_back(std::make_unique_for_overwrite<Request[]>(room));
  room_ = room;
  used_ = 0;
}

}  // namespace kx
