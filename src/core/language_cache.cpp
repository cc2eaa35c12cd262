#include "core/language_cache.h"

#include <memory>
#include <utility>

#include "bundles/resource_directory.h"
#include "lang/language_load.h"
#include "platform/ascii_case.h"

namespace kx {
namespace {

constexpr char kEnglish[] = "EN";

struct ReleaseTranslator {
  void operator()(CRealKxXlate* translator) const { translator->Release(); }
};
/// One reference, or a new translator, which nobody holds yet and which is destroyed when something
/// fails.
using HeldTranslator = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

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
CRealKxXlateCache& ProcessCache() {
  static CRealKxXlateCache* const cache = new CRealKxXlateCache(ProcessLanguageContext());
  return *cache;
}

}  // namespace

CRealKxXlateCache::CRealKxXlateCache(const LanguageContext& context)
    : context_{context.paths, context.strings, context.nextId, context.log, &shared_} {}

CRealKxXlate* CRealKxXlateCache::FindUnchanged(const char* name, const char* language,
                                               const char* region) const {
  HeldTranslator found(translators_.Find(LanguageKey(name, language, region).Text()));
  return found != nullptr && !found->IsStale() ? found.release() : nullptr;
}

// A language without files is not kept: the next request must look at the disk again, since the
// files may have been installed meanwhile. Held by LanguageCache.AbsentLanguageIsTriedAgain.
CRealKxXlate* CRealKxXlateCache::FindOrLoad(const char* name, const char* language,
                                            const char* region) {
  const LanguageKey key(name, language, region);
  HeldTranslator old(translators_.Find(key.Text()));
  // Somebody else may have read it while this thread waited for the lock.
  if (old != nullptr && !old->IsStale()) return old.release();
  LanguageNames names(name, language, region);
  LoadedLanguage loaded = LoadLanguage(context_, names);
  // One that had files is replaced whether or not any is left: only a language never read before
  // falls back to English. It gives no translator, but takes the number of one.
  const bool isEnglish = EqualIgnoringAsciiCase(language, kEnglish);
  if (old == nullptr && !loaded.anyFileFound && !isEnglish) {
    ++context_.nextId;
    return nullptr;
  }
  // When there is no memory for the new one, the old one stays in use.
  HeldTranslator fresh(new CRealKxXlate(context_, std::move(loaded), std::move(names)));
  if (fresh->IsSettled()) {
    fresh->AddRef();  // for the cache, which nobody empties meanwhile
    translators_.Put(key.Text(), fresh.get());
  } else if (old != nullptr) {
    // A file that its writer still keeps to itself: the old texts serve until the next request
    // tries again.
    return old.release();
  }
  // What could be read is better than nothing, but only for this caller when it was not kept.
  fresh->AddRef();  // for the caller
  return fresh.release();
}

void CRealKxXlateCache::Clear() {
  translators_.Clear();
  shared_.Clear();
}

CKxXlate* FindOrLoadLanguage(const char* name, const char* language, const char* region) {
  // Most requests are done with this: no thread waits for another that asks the file system.
  if (auto* found = ProcessCache().FindUnchanged(name, language, region)) return found;
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
