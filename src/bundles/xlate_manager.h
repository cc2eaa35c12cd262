#ifndef KX_BUNDLES_XLATE_MANAGER_H
#define KX_BUNDLES_XLATE_MANAGER_H

#include "CKxXlate.h"
#include "bundles/bundle_manager.h"
#include "bundles/resolved_translators.h"

/// The bundles of one resource directory.
class XlateManager final : public bnd::BundleManager<CKxXlate> {
 public:
  using BundleManager::BundleManager;

  /// Registers the entry if its name is that of a bundle file, whether or not it can be opened
  /// later. Answers true, so that the traversal goes on.
  bool OnEntry(const char* name, bool isDirectory) override;

  /// Says that this manager is never destroyed, so that neither are its translators, and nobody
  /// need count who holds them. To be called before the first request.
  void LastForEver() noexcept { lasts_ = true; }
  bool LastsForEver() const noexcept { return lasts_; }

  /// What requests were answered with.
  kx::ResolvedTranslators& Resolved() const noexcept { return resolved_; }

 private:
  bool lasts_ = false;
  mutable kx::ResolvedTranslators resolved_;
};

#endif  // KX_BUNDLES_XLATE_MANAGER_H
