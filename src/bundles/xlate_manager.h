#ifndef KX_BUNDLES_XLATE_MANAGER_H
#define KX_BUNDLES_XLATE_MANAGER_H

#include "CKxXlate.h"
#include "bundles/bundle_manager.h"

/// The bundles of one resource directory.
class XlateManager final : public bnd::BundleManager<CKxXlate> {
 public:
  using BundleManager::BundleManager;

  /// Registers the entry if its name is that of a bundle file, whether or not it can be opened
  /// later. Answers true, so that the traversal goes on.
  bool OnEntry(const char* name, bool isDirectory) override;
};

#endif  // KX_BUNDLES_XLATE_MANAGER_H
