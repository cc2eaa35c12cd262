#ifndef KX_TESTS_FORMAT_INSERTED_H
#define KX_TESTS_FORMAT_INSERTED_H

#include <cstdarg>
#include <functional>
#include <memory>
#include <string>

#include "CKxXlate.h"

/// InsertVariableVA for callers that have no list.
inline void InsertList(char* buffer, KxSize size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, size, format, arguments);
  va_end(arguments);
}

/// What InsertVariableVA makes of a text and these values.
template <class... Values>
std::string Inserted(const std::string& format, Values... values) {
  constexpr KxSize kAmple = 20000;
  const std::unique_ptr<char[]> buffer(new char[kAmple]);
  InsertList(buffer.get(), kAmple, format.c_str(), values...);
  return buffer.get();
}

/// A call of InsertVariableVA that has its values.
using Insertion = std::function<std::string(const std::string& format)>;

template <class... Values>
Insertion Inserting(Values... values) {
  return [=](const std::string& format) { return Inserted(format, values...); };
}

#endif  // KX_TESTS_FORMAT_INSERTED_H
