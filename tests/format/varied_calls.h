#ifndef KX_TESTS_FORMAT_VARIED_CALLS_H
#define KX_TESTS_FORMAT_VARIED_CALLS_H

#include <cstdarg>

#include "CKxXlate.h"
#include "format/variable_cases.h"

// Calls with a list of values whose types the compiler does not tell.

inline void Vary(char* buffer, KxSize size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, size, format, arguments);
  va_end(arguments);
}

/// A call with these values.
template <class... Values>
Call With(Values... values) {
  return
      [=](char* buffer, KxSize size, const char* format) { Vary(buffer, size, format, values...); };
}

#endif  // KX_TESTS_FORMAT_VARIED_CALLS_H
