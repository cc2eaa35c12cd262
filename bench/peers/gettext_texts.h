#ifndef KX_BENCH_GETTEXT_TEXTS_H
#define KX_BENCH_GETTEXT_TEXTS_H

#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <string_view>

#include "support/tree.h"

namespace bench {

/// The C library's gettext, which maps a compiled file.
class GettextTexts {
 public:
  explicit GettextTexts(int size) : domain_("texts" + std::to_string(size)) {
    setenv("LANGUAGE", "fr", 1);
    std::setlocale(LC_ALL, "C.UTF-8");
    bindtextdomain(domain_.c_str(), TreePath("peers/locale").c_str());
    // Only a lookup makes it read its file.
    Find("");
  }

  const char* Find(const char* key) const {
    const char* text = dgettext(domain_.c_str(), key);
    return text == key ? nullptr : text;
  }

 private:
  std::string domain_;
};

}  // namespace bench

#endif  // KX_BENCH_GETTEXT_TEXTS_H
