#ifndef KX_BENCH_OWN_TEXTS_H
#define KX_BENCH_OWN_TEXTS_H

#include <string>
#include <string_view>

#include "CKxXlate.h"

namespace bench {

/// A generated catalogue as the library serves it, held for the whole run.
class PropertyTexts {
 public:
  explicit PropertyTexts(int size)
      : translator_(CKxXlate::GetBundle(("texts" + std::to_string(size)).c_str(), "")) {}

  CKxXlate* Translator() const { return translator_; }
  const char* Find(const char* key) const { return translator_->GetText(key); }

 private:
  CKxXlate* translator_;
};

class LanguageTexts {
 public:
  explicit LanguageTexts(int size)
      : translator_(CKxXlate::GetBundle(("texts" + std::to_string(size) + "lang").c_str(), "fr")) {}

  CKxXlate* Translator() const { return translator_; }
  const char* Find(const char* key) const { return translator_->GetText(key); }

 private:
  CKxXlate* translator_;
};

}  // namespace bench

#endif  // KX_BENCH_OWN_TEXTS_H
