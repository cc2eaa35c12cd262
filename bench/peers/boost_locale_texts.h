#ifndef KX_BENCH_BOOST_LOCALE_TEXTS_H
#define KX_BENCH_BOOST_LOCALE_TEXTS_H

#include <boost/locale.hpp>
#include <locale>
#include <string>
#include <string_view>

#include "support/tree.h"

namespace bench {

/// Boost.Locale, which reads a compiled file into memory.
class BoostLocaleTexts {
 public:
  explicit BoostLocaleTexts(int size) {
    boost::locale::generator generator;
    generator.add_messages_path(TreePath("peers/locale"));
    generator.add_messages_domain("texts" + std::to_string(size));
    generator.categories(boost::locale::message_facet);
    locale_ = generator("fr.UTF-8");
    format_ = &std::use_facet<boost::locale::message_format<char>>(locale_);
  }

  const char* Find(const char* key) const { return format_->get(0, nullptr, key); }

 private:
  std::locale locale_;
  const boost::locale::message_format<char>* format_;
};

}  // namespace bench

#endif  // KX_BENCH_BOOST_LOCALE_TEXTS_H
