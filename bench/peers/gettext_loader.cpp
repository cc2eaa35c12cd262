#include "peers/gettext_texts.h"
#include "support/loaders.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = RegisterLoader<GettextTexts>("gettext");

}  // namespace

}  // namespace bench
