#include "peers/gettext_texts.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<GettextTexts>("gettext");
  return true;
}();

}  // namespace

}  // namespace bench
