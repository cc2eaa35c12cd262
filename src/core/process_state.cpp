#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

#include "bundles/install_manager.h"
#include "bundles/resource_directory.h"
#include "lang/interned_strings.h"
#include "lang/language_paths.h"
#include "log/log_choice.h"
#include "log/translation_log.h"

namespace kx {
namespace {

/// An object that is made like any other and never destroyed: threads of a host may still look
/// texts up while the process ends, and translators that nobody frees point at interned strings.
template <class T>
class NeverDestroyed {
 public:
  template <class... Arguments>
  explicit NeverDestroyed(Arguments&&... arguments) {
    new (storage_) T(std::forward<Arguments>(arguments)...);
  }
  NeverDestroyed(const NeverDestroyed&) = delete;
  NeverDestroyed& operator=(const NeverDestroyed&) = delete;

  T& operator*() noexcept { return *std::launder(reinterpret_cast<T*>(storage_)); }

 private:
  alignas(T) std::byte storage_[sizeof(T)];
};

// Every object that is made at load lives in this file, because only inside one file does the
// language fix the order in which they are made, top to bottom. Each folder declares the accessor
// of its own object; nobody else may define a global that is not a constant.
NeverDestroyed<InternTable> g_internTable;
NeverDestroyed<LanguagePaths> g_languagePaths;
std::uint32_t g_nextTranslatorId = 1;
NeverDestroyed<CriticalSection> g_cacheLock;
NeverDestroyed<ResourceLocation> g_resources;
NeverDestroyed<InstalledManagers> g_managers;
// Reads the directory now, while no host thread can look anything up; it must not log, since the
// log below does not exist yet.
[[maybe_unused]] const bool kBundlesInstalled = InstallBundlesAtLoad(*g_resources, *g_managers);
NeverDestroyed<TranslationLog> g_log(LogChoiceOfEnvironment());

}  // namespace

InternTable& ProcessInternTable() { return *g_internTable; }
LanguagePaths& ProcessLanguagePaths() { return *g_languagePaths; }
CriticalSection& CacheLock() { return *g_cacheLock; }
LanguageContext ProcessLanguageContext() {
  return {*g_languagePaths, *g_internTable, g_nextTranslatorId, *g_log};
}
ResourceLocation& ProcessResources() { return *g_resources; }
InstalledManagers& ProcessManagers() { return *g_managers; }
TranslationLog& ProcessLog() { return *g_log; }

}  // namespace kx
