#ifndef KX_BENCH_ICU_TEXTS_H
#define KX_BENCH_ICU_TEXTS_H

#include <unicode/ures.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "support/tree.h"

namespace bench {

/// ICU's resource bundles, which map a compiled file of UTF-16.
class IcuTexts {
 public:
  explicit IcuTexts(int size) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string package = TreePath("peers/texts" + std::to_string(size));
    bundle_ = ures_openDirect(package.c_str(), "fr", &status);
    if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
  }
  IcuTexts(const IcuTexts&) = delete;
  IcuTexts& operator=(const IcuTexts&) = delete;
  ~IcuTexts() { ures_close(bundle_); }

  const UChar* Find(const char* key) const {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    const UChar* text = ures_getStringByKey(bundle_, key, &length, &status);
    return U_FAILURE(status) ? nullptr : text;
  }

 private:
  UResourceBundle* bundle_ = nullptr;
};

}  // namespace bench

#endif  // KX_BENCH_ICU_TEXTS_H
