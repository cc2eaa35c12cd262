#ifndef KX_BUNDLES_INSTALL_MANAGER_H
#define KX_BUNDLES_INSTALL_MANAGER_H

#include <atomic>

#include "bundles/resource_directory.h"
#include "platform/critical_section.h"
#include "platform/thread_annotations.h"

class XlateManager;

namespace kx {

/// The bundle manager that all property lookups use, and the one that it replaced.
///
/// Neither is ever destroyed, because hosts keep translators that they hand out. There is one place
/// for a replaced manager, so only one can be replaced in the life of the process.
///
/// One object of this class serves the process (ProcessManagers); tests make their own.
class InstalledManagers {
 public:
  InstalledManagers() = default;
  InstalledManagers(const InstalledManagers&) = delete;
  InstalledManagers& operator=(const InstalledManagers&) = delete;

  /// The manager in use; null until one was installed. Any thread.
  const XlateManager* Current() const noexcept { return current_.load(std::memory_order_acquire); }

  /// Reads `directory` (UTF-8, not null; need not exist), puts its manager into use and stores the
  /// directory in `resources`. False, with nothing changed, when a manager has been replaced
  /// before.
  bool InstallXlateManager(const char* directory, ResourceLocation& resources) KX_EXCLUDES(lock_);

 private:
  std::atomic<const XlateManager*> current_ = nullptr;

  CriticalSection lock_;
  const XlateManager* retired_ KX_GUARDED_BY(lock_) = nullptr;
};

/// Finds the resource directory and installs its manager; when there is none, or no memory for it,
/// property lookups find nothing. Lets no exception out: the library is being loaded.
///
/// @return whether a manager was installed
bool InstallBundlesAtLoad(ResourceLocation& resources, InstalledManagers& managers) noexcept;

/// The managers of this process. Live in core/process_state.cpp.
InstalledManagers& ProcessManagers();

}  // namespace kx

#endif  // KX_BUNDLES_INSTALL_MANAGER_H
