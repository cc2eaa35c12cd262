#include "peers/boost_locale_texts.h"
#include "support/loaders.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = RegisterLoader<BoostLocaleTexts>("boost_locale");

}  // namespace

}  // namespace bench
