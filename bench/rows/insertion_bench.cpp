#include "floor/floor_insertion.h"
#include "support/insertion_rows.h"
#include "support/insertions.h"

namespace bench {

namespace {

[[maybe_unused]] const bool kRegistered = [] {
  RegisterInsertion<InsertPercent>("insert/ours.percent");
  RegisterInsertion<InsertBrace>("insert/ours.brace");
  RegisterInsertion<PrintTexts>("insert/snprintf");
  RegisterInsertion<FloorInsertTexts>("insert/floor");
  RegisterInsertion<InsertVariableF>("variable_f/ours");
  RegisterInsertion<PrintF>("variable_f/snprintf");
  RegisterInsertion<FloorInsertF>("variable_f/floor");
  RegisterInsertion<InsertVA2F>("va_2f/ours");
  RegisterInsertion<Print2F>("va_2f/snprintf");
  RegisterInsertion<FloorInsert2F>("va_2f/floor");
  RegisterInsertion<InsertVATexts>("va_texts/ours");
  RegisterInsertion<PrintNumberAndText>("va_texts/snprintf");
  RegisterInsertion<FloorInsertNumberAndText>("va_texts/floor");
  return true;
}();

}  // namespace

}  // namespace bench
