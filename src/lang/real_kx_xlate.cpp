#include "lang/real_kx_xlate.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "format/caller_buffer.h"
#include "lang/lang_problems.h"
#include "lang/language_load.h"
#include "log/translation_log.h"
#include "platform/given_text.h"
#include "texts/measured_text.h"

CRealKxXlate::CRealKxXlate(const kx::LanguageContext& context, const char* name,
                           const char* language, const char* country)
    : CRealKxXlate(context, kx::LanguageNames(name, language, country)) {}

CRealKxXlate::CRealKxXlate(const kx::LanguageContext& context, kx::LanguageNames&& names)
    : CRealKxXlate(context, kx::LoadLanguage(context, names), std::move(names)) {}

CRealKxXlate::CRealKxXlate(const kx::LanguageContext& context, kx::LoadedLanguage&& loaded,
                           kx::LanguageNames&& names)
    : name_(std::move(names.name)),
      languageCode_(std::move(names.languageCode)),
      countryCode_(std::move(names.countryCode)),
      displayName_(std::move(names.displayName)),
      anyFileFound_(loaded.anyFileFound),
      candidates_(std::move(loaded.candidates)),
      contents_(loaded.anyFileFound ? std::move(loaded.contents) : kx::EmptyContents()),
      id_(context.nextId++),
      logRoot_(context.paths.root),
      log_(context.log) {}

void CRealKxXlate::Release() {
  if (references_.Drop()) delete this;
}

void CRealKxXlate::AddRef() { references_.Add(); }

const char* CRealKxXlate::GetName() { return name_.c_str(); }

const char* CRealKxXlate::GetLanguageCode() { return languageCode_.c_str(); }

const char* CRealKxXlate::GetCountryCode() { return countryCode_.c_str(); }

const char* CRealKxXlate::GetLongName() { return contents_->longName; }

const char* CRealKxXlate::GetCharset() { return contents_->charset.c_str(); }

std::uint32_t CRealKxXlate::GetId() { return id_; }

const char* CRealKxXlate::GetImageDirectory() { return contents_->imageDirectory; }

const char* CRealKxXlate::GetDirection() { return contents_->direction.c_str(); }

const char* CRealKxXlate::GetPromptSuffix() { return contents_->promptSuffix; }

const char* CRealKxXlate::GetDirectory(const char* name) {
  return FindKey(contents_->directories, kDirectories, name);
}

bool CRealKxXlate::GetDirectory(char* dst, KxSize size, const char* name) {
  return kx::AnswerLookup(dst, size, GetDirectory(name), nullptr);
}

const char* CRealKxXlate::GetText(const char* key) {
  return FindKey(contents_->texts, kTexts, key);
}

bool CRealKxXlate::GetText(char* dst, KxSize size, const char* key, const char* dflt) {
  const char* const found = GetText(key);
  if (found == nullptr || dst == nullptr || size == 0) {
    return kx::AnswerLookup(dst, size, found, dflt);
  }
  kx::CopyMeasuredText(dst, size, found);
  return true;
}

const char* CRealKxXlate::GetLabel(const char* key) {
  return FindKey(contents_->labels, kLabels, key);
}

bool CRealKxXlate::GetLabel(char* dst, KxSize size, const char* key) {
  return kx::AnswerLookup(dst, size, GetLabel(key), nullptr);
}

bool CRealKxXlate::GetPrompt(char* dst, KxSize size, const char* key, const char* dflt) {
  const bool found = GetText(dst, size, key, dflt);
  const char* suffix = contents_->promptSuffix;
  if (dst == nullptr || size == 0 || suffix == nullptr || *dst == '\0') return found;
  const std::size_t length = std::strlen(dst);
  // A default gets the suffix, too; the suffix is never cut.
  if (std::strlen(suffix) + length < size) {
    kx::CopyLookupText(dst + length, static_cast<KxSize>(size - length), suffix);
  }
  return found;
}

const char* CRealKxXlate::GetDisplayName() { return displayName_.c_str(); }

bool CRealKxXlate::IsStale() const {
  return std::any_of(candidates_.begin(), candidates_.end(),
                     [](const kx::LangCandidate& candidate) { return candidate.IsStale(); });
}

bool CRealKxXlate::IsSettled() const {
  return std::none_of(candidates_.begin(), candidates_.end(),
                      [](const kx::LangCandidate& candidate) { return candidate.isUnsettled; });
}

const char* CRealKxXlate::FindKey(const kx::LanguageTable& contents, Table table, const char* key) {
  if (!kx::IsGiven(key)) return nullptr;
  const std::string_view wanted = key;
  const std::uint64_t hash = contents.Hash(wanted);
  const char* const value = contents.Find(wanted, hash);
  // A language without files lacks every key: not worth a line.
  if (value == nullptr && anyFileFound_ && !missing_[table].Has(wanted, hash)) {
    NoteMissingKey(missing_[table], wanted, hash);
  }
  return value;
}

void CRealKxXlate::NoteMissingKey(kx::NotedKeys& missing, std::string_view key,
                                  std::uint64_t hash) {
  const kx::CriticalSectionGuard guard(lock_);
  if (missing.Has(key, hash)) return;
  // Noted when it has been logged, or a failure in between would keep it out of the log for good.
  const char* const prepared = missing.Prepare(key);
  log_.WriteLine(logRoot_, {displayName_, kx::kKeyNotFound, key});
  missing.Note(prepared, hash);
}
