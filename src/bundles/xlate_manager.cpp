#include "bundles/xlate_manager.h"

#include "bundles/bundle_file_name.h"

bool XlateManager::OnEntry(const char* name, bool isDirectory) {
  if (isDirectory) return true;
  if (const auto parts = kx::SplitBundleFileName(name)) {
    AddBundleFile(name, parts->bundle, parts->locale);
  }
  return true;
}
