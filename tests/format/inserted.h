#ifndef KX_TESTS_FORMAT_INSERTED_H
#define KX_TESTS_FORMAT_INSERTED_H

#include <functional>
#include <memory>
#include <string>

#include "format/varied_calls.h"

/// What InsertVariableVA makes of a text and these values.
template <class... Values>
std::string Inserted(const std::string& format, Values... values) {
  constexpr KxSize kRoom = 20000;
  const std::unique_ptr<char[]> buffer(new char[kRoom]);
  Vary(buffer.get(), kRoom, format.c_str(), values...);
  return buffer.get();
}

/// A call of InsertVariableVA that has its values.
using Insertion = std::function<std::string(const std::string& format)>;

template <class... Values>
Insertion Inserting(Values... values) {
  return [=](const std::string& format) { return Inserted(format, values...); };
}

#endif  // KX_TESTS_FORMAT_INSERTED_H
