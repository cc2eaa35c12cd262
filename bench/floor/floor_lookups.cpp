#include "floor/flat_table.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<FloorTexts>("floor", 1000000);
  return true;
}();

}  // namespace

}  // namespace bench
