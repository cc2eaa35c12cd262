#include "core/language_cache.h"

#include <memory>
#include <utility>

#include "bundles/resource_directory.h"
#include "platform/given_text.h"
#include "platform/thread_annotations.h"

namespace kx {
namespace {

constexpr char kEnglish[] = "EN";

struct ReleaseTranslator {
  void operator()(CRealKxXlate* translator) const { translator->Release(); }
};
/// Destroys a translator that nobody holds yet when something fails.
using NewTranslator = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

std::string CacheKey(const char* name, const char* language, const char* region) {
  std::string key = std::string(name).append("|").append(language);
  if (IsGiven(region)) key.append("|").append(region);
  return key;
}

/// Language files lie where the bundles lie, as that stands at the first lookup of a language; only
/// when the load of the library left no root at all is there a search of their own.
void ComputeOnce(LanguagePaths& paths, const ResourceLocation& resources) {
  if (paths.computed) return;
  LanguagePaths found;
  found.computed = true;
  if (!resources.Root().empty()) {
    found.root = resources.Root();
    found.directory = resources.Directory();
  } else {
    FindResourceDirectory("Language", found.directory, found.root);
  }
  found.directory += '/';
  paths = std::move(found);
}

/// The cache of this process, made when it is first needed. Never destroyed: threads of a host may
/// still look texts up while the process ends.
CRealKxXlateCache& ProcessCache() KX_REQUIRES(CacheLock()) {
  static CRealKxXlateCache* const cache = new CRealKxXlateCache(ProcessLanguageContext());
  return *cache;
}

}  // namespace

CRealKxXlate* CRealKxXlateCache::FindOrLoad(const char* name, const char* language,
                                            const char* region) {
  const std::string key = CacheKey(name, language, region);
  const auto cached = translators_.find(key);
  if (cached == translators_.end()) return Load(key, name, language, region);
  if (cached->second->IsStale()) Reload(cached->second, name, language, region);
  cached->second->AddRef();  // for the caller
  return cached->second;
}

void CRealKxXlateCache::Reload(CRealKxXlate*& cached, const char* name, const char* language,
                               const char* region) {
  // The new one first: when there is no memory for it, the old one stays in use. And it is kept
  // whether or not it found a file: only a language never read before falls back to English.
  NewTranslator fresh(new CRealKxXlate(context_, name, language, region));
  // A file that its writer still keeps to itself: the old texts serve until the next request tries
  // again.
  if (!fresh->IsSettled()) return;
  fresh->AddRef();  // for the cache
  std::exchange(cached, fresh.release())->Release();
}

// A language without files is not kept: the next request must look at the disk again, since the
// files may have been installed meanwhile. Held by LanguageCache.AbsentLanguageIsTriedAgain.
CRealKxXlate* CRealKxXlateCache::Load(const std::string& key, const char* name,
                                      const char* language, const char* region) {
  NewTranslator translator(new CRealKxXlate(context_, name, language, region));
  if (!translator->AnyFileFound() && !EqualIgnoringAsciiCase(language, kEnglish)) return nullptr;
  // What could be read is better than nothing, but only for this caller.
  if (translator->IsSettled()) {
    translators_.emplace(key, translator.get());
    translator->AddRef();  // for the cache
  }
  translator->AddRef();  // for the caller
  return translator.release();
}

void CRealKxXlateCache::Clear() {
  for (const auto& [key, translator] : translators_) translator->Release();
  translators_.clear();
}

CKxXlate* FindOrLoadLanguage(const char* name, const char* language, const char* region) {
  {
    const CriticalSectionGuard guard(CacheLock());
    ComputeOnce(ProcessLanguagePaths(), ProcessResources());
    if (auto* translator = ProcessCache().FindOrLoad(name, language, region)) return translator;
  }
  // English always has a translator. The lock was left, since it cannot be taken twice.
  return FindOrLoadLanguage(name, kEnglish, nullptr);
}

void ClearLanguages() {
  const CriticalSectionGuard guard(CacheLock());
  ProcessCache().Clear();
}

}  // namespace kx
