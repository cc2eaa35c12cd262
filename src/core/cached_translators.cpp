#include "core/cached_translators.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/ascii_case.h"
#include "platform/given_text.h"

namespace kx {
namespace {

constexpr std::size_t kPointerBytes = sizeof(void*);

CRealKxXlate* TranslatorBefore(const char* key) noexcept {
  CRealKxXlate* translator;
  std::memcpy(&translator, key - kPointerBytes, kPointerBytes);
  return translator;
}

/// @param key  in memory of the cache's own
void SetTranslatorBefore(const char* key, CRealKxXlate* translator) noexcept {
  std::memcpy(const_cast<char*>(key) - kPointerBytes, &translator, kPointerBytes);
}

}  // namespace

LanguageKey::LanguageKey(const char* name, const char* language, const char* region) {
  const std::string_view first(name);
  const std::string_view second(language);
  const std::string_view third(IsGiven(region) ? region : "");
  const std::size_t most = first.size() + 1 + second.size() + 1 + third.size();
  if (most > short_.size()) long_.resize(most);
  char* const begin = most > short_.size() ? long_.data() : short_.data();
  char* end = std::copy(first.begin(), first.end(), begin);
  *end++ = '|';
  end = std::copy(second.begin(), second.end(), end);
  if (!third.empty()) *end++ = '|';
  end = std::copy(third.begin(), third.end(), end);
  text_ = {begin, static_cast<std::size_t>(end - begin)};
}

CRealKxXlate* CachedTranslators::Find(std::string_view key) const noexcept {
  const CriticalSectionGuard guard(lock_);
  if (entries_ == nullptr) return nullptr;
  const KeyTable& keys = entries_->keys;
  const char* const stored = keys.Find(key, keys.Hash(key));
  if (stored == nullptr) return nullptr;
  CRealKxXlate* const translator = TranslatorBefore(stored);
  translator->AddRef();  // for the caller, before anybody can give the cache's back
  return translator;
}

void CachedTranslators::Put(std::string_view key, CRealKxXlate* translator) {
  CRealKxXlate* replaced = nullptr;
  {
    const CriticalSectionGuard guard(lock_);
    if (entries_ == nullptr) entries_ = std::make_unique<Entries>();
    replaced = Exchange(*entries_, key, translator);
  }
  if (replaced != nullptr) replaced->Release();
}

CRealKxXlate* CachedTranslators::Exchange(Entries& entries, std::string_view key,
                                          CRealKxXlate* translator) {
  const std::uint64_t hash = entries.keys.Hash(key);
  if (const char* const stored = entries.keys.Find(key, hash)) {
    CRealKxXlate* const replaced = TranslatorBefore(stored);
    SetTranslatorBefore(stored, translator);
    return replaced;
  }
  // Room first, so that nothing fails behind the table's back.
  if (entries.all.size() == entries.all.capacity()) entries.all.reserve(entries.all.size() * 2 + 1);
  char* const stored = entries.texts.Take(kPointerBytes + key.size() + 1) + kPointerBytes;
  PutText(stored, key);
  SetTranslatorBefore(stored, translator);
  entries.keys.Add(stored, hash);
  entries.all.push_back(stored);
  return nullptr;
}

void CachedTranslators::Clear() noexcept {
  std::unique_ptr<Entries> entries;
  {
    const CriticalSectionGuard guard(lock_);
    entries.swap(entries_);
  }
  if (entries == nullptr) return;
  std::sort(entries->all.begin(), entries->all.end(), LessIgnoringAsciiCase());
  for (const char* const key : entries->all) TranslatorBefore(key)->Release();
}

}  // namespace kx
