#include "peers/icu_texts.h"
#include "support/loaders.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = RegisterLoader<IcuTexts>("icu");

}  // namespace

}  // namespace bench
