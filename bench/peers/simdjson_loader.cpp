#include "peers/simdjson_texts.h"
#include "support/loaders.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = RegisterLoader<SimdjsonTexts>("simdjson");

}  // namespace

}  // namespace bench
