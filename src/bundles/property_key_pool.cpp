#include "bundles/property_key_pool.h"

namespace kx {

const char* PropertyKeyPool::InternPropertyKey(const char* key) {
  if (key == nullptr) return nullptr;
  const std::string_view spelling = key;
  const CriticalSectionGuard guard(lock_);
  const auto found = keys_.find(spelling);
  return found != keys_.end() ? found->c_str() : keys_.emplace(spelling).first->c_str();
}

}  // namespace kx
