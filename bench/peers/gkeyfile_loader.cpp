#include "peers/gkeyfile_texts.h"
#include "support/loaders.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = RegisterLoader<GKeyFileTexts>("gkeyfile");

}  // namespace

}  // namespace bench
