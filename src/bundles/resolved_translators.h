#ifndef KX_BUNDLES_RESOLVED_TRANSLATORS_H
#define KX_BUNDLES_RESOLVED_TRANSLATORS_H

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "bundles/request_digest.h"
#include "platform/critical_section.h"
#include "platform/thread_annotations.h"
#include "texts/folded_key.h"
#include "texts/growing_table.h"
#include "texts/text_arena.h"

class PropertiesXlate;

namespace kx {

/// The translators that requests were answered with, by the request: a bundle (in its exact case)
/// and a locale (in any case). Found by one look at one table and without a lock, so that a request
/// that has been made before costs the same among any number of bundles, locales and threads.
///
/// Nothing is forgotten. Who remembers bounds what strangers can have remembered.
class ResolvedTranslators {
 public:
  /// @param seed  of the hashes
  explicit ResolvedTranslators(const HashSeed& seed = ProcessHashSeed()) noexcept : seed_(seed) {}
  ResolvedTranslators(const ResolvedTranslators&) = delete;
  ResolvedTranslators& operator=(const ResolvedTranslators&) = delete;

  /// Null for a request that is not remembered. Any thread. Allocates nothing.
  PropertiesXlate* Find(std::string_view bundle, std::string_view locale) const noexcept {
    const RequestDigest digest(bundle, locale, seed_);
    const Request* const found = requests_.Find(digest.Hash(seed_), [&](const Request* request) {
      return request->digest == digest &&
             (request->texts == nullptr || AreTextsEqual(request->texts, bundle, locale));
    });
    return found == nullptr ? nullptr : found->translator;
  }

  /// Does nothing when the request is remembered.
  ///
  /// @param bundle, locale  without a NUL
  /// @param translator      must outlive this object
  ///
  /// Any thread. Throws std::bad_alloc.
  void Remember(std::string_view bundle, std::string_view locale, PropertiesXlate& translator)
      KX_EXCLUDES(lock_);

 private:
  struct Request {
    RequestDigest digest;
    PropertiesXlate* translator;
    const char* texts;  ///< both, each with its NUL; null when the digest holds them
  };

  static bool AreTextsEqual(const char* texts, std::string_view bundle,
                            std::string_view locale) noexcept;
  void ReserveRequest() KX_REQUIRES(lock_);

  const HashSeed seed_;

  // Written under the lock, read without.
  CriticalSection lock_;
  GrowingTable<const Request> requests_;
  // In few large pieces, so that one among many is found in few pages of memory.
  std::vector<std::unique_ptr<Request[]>> pieces_ KX_GUARDED_BY(lock_);
  std::size_t room_ KX_GUARDED_BY(lock_) = 0;  ///< of the last piece
  std::size_t used_ KX_GUARDED_BY(lock_) = 0;  ///< of that
  TextArena texts_ KX_GUARDED_BY(lock_);
};

}  // namespace kx

#endif  // KX_BUNDLES_RESOLVED_TRANSLATORS_H
