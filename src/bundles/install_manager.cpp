#include "bundles/install_manager.h"

#include <exception>
#include <memory>
#include <string>
#include <utility>

#include "CKxXlate.h"
#include "bundles/xlate_manager.h"
#include "platform/directories.h"

namespace kx {

bool InstalledManagers::InstallXlateManager(const char* directory, ResourceLocation& resources) {
  const CriticalSectionGuard guard(lock_);
  if (retired_ != nullptr) return false;
  std::string stored = directory;
  auto manager = std::make_unique<XlateManager>(directory);
  if (KxTraverseUnsorted(directory, manager.get()) != 0) {
    manager = std::make_unique<XlateManager>(directory);  // what cannot be read holds no bundles
  }
  manager->SortFiles();
  manager->CompleteDefaults();
  manager->LastForEver();
  retired_ = current_.load(std::memory_order_relaxed);
  current_.store(manager.release(), std::memory_order_release);
  resources.SetDirectory(std::move(stored));
  return true;
}

bool InstallBundlesAtLoad(ResourceLocation& resources, InstalledManagers& managers) noexcept {
  try {
    return resources.Locate() &&
           managers.InstallXlateManager(resources.Directory().c_str(), resources);
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace kx

bool CKxXlate::SetResourceDirectory(const char* directory) {
  if (directory == nullptr) return false;
  return kx::ProcessManagers().InstallXlateManager(directory, kx::ProcessResources());
}
