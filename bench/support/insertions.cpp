#include "support/insertions.h"

#include <cstdarg>
#include <cstdio>

namespace bench {

const char* const kFirst = "backup";
const char* const kSecond = "alpha.example";
const int kMinutes = 1234;
const double kSeconds = 1234.56789;

namespace {

void InsertList(char* buffer, KxSize size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, size, format, arguments);
  va_end(arguments);
}

}  // namespace

void InsertPercent(char* buffer, KxSize size) {
  CKxXlate::Insert(buffer, size - 1, "The task %0 on the server %1 has ended, without any errors.",
                   kFirst, kSecond);
}

void InsertBrace(char* buffer, KxSize size) {
  CKxXlate::Insert(buffer, size - 1, "The task {0} on the server {1} has ended, without an error.",
                   kFirst, kSecond);
}

void InsertVariableF(char* buffer, KxSize size) {
  CKxXlate::InsertVariable(buffer, size, "It took %f:1 seconds.", kSeconds);
}

void InsertVA2F(char* buffer, KxSize size) {
  InsertList(buffer, size, "It took %.2f seconds.", kSeconds);
}

void InsertVATexts(char* buffer, KxSize size) {
  InsertList(buffer, size, "After %d minutes the task %s has ended.", kMinutes, kFirst);
}

void PrintTexts(char* buffer, KxSize size) {
  std::snprintf(buffer, size, "The task %s on the server %s has ended, without any errors.", kFirst,
                kSecond);
}

void PrintF(char* buffer, KxSize size) {
  std::snprintf(buffer, size, "It took %f seconds.", kSeconds);
}

void Print2F(char* buffer, KxSize size) {
  std::snprintf(buffer, size, "It took %.2f seconds.", kSeconds);
}

void PrintNumberAndText(char* buffer, KxSize size) {
  std::snprintf(buffer, size, "After %d minutes the task %s has ended.", kMinutes, kFirst);
}

}  // namespace bench
