#ifndef KX_BUNDLES_PROPERTY_KEY_POOL_H
#define KX_BUNDLES_PROPERTY_KEY_POOL_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

#include "platform/critical_section.h"
#include "platform/thread_annotations.h"

namespace kx {

/// Keeps one copy of every property key of the process, so that key tables hold bare pointers.
///
/// A pooled key is never freed or moved: key tables and missing-key sets of translators that
/// outlive any one bundle point at it. Spelling counts ("Title" and "TITLE" are two entries) even
/// though the tables that use the pool do not tell them apart, because a table shows the key as
/// its file first wrote it.
///
/// One object of this class serves the process (ProcessKeyPool); tests make their own.
class PropertyKeyPool {
 public:
  PropertyKeyPool() = default;
  PropertyKeyPool(const PropertyKeyPool&) = delete;
  PropertyKeyPool& operator=(const PropertyKeyPool&) = delete;

  /// The pooled copy of `key`; null for null. Valid for the life of the pool. Any thread.
  const char* InternPropertyKey(const char* key) KX_EXCLUDES(lock_);

 private:
  struct SpellingHash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  CriticalSection lock_;
  // Node-based on purpose: growth moves buckets, never the strings that callers point at.
  std::unordered_set<std::string, SpellingHash, std::equal_to<>> keys_ KX_GUARDED_BY(lock_);
};

/// The pool of this process. Lives in core/process_state.cpp.
PropertyKeyPool& ProcessKeyPool();

}  // namespace kx

#endif  // KX_BUNDLES_PROPERTY_KEY_POOL_H
