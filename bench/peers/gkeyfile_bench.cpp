#include "peers/gkeyfile_texts.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<GKeyFileTexts>("gkeyfile");
  return true;
}();

}  // namespace

}  // namespace bench
