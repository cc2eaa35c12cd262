#ifndef KX_KXXLATE_INSERT_HPP
#define KX_KXXLATE_INSERT_HPP

#include <cstddef>
#include <string>
#include <tuple>
#include <utility>

#include "../CKxXlate.h"
#include "buffer.hpp"
#include "terminated.hpp"
#include "whole_result.hpp"

namespace kx {
namespace detail {

/// CKxXlate::FormatMessageA over what hosts pass.
struct PositionalEngine {
  template <class Text, class... Values>
  static WholeResult Run(std::size_t most, const Text& text, const Values&... values) {
    (CheckValue<Values>(), ...);
    const GivenText<Text> format(text);
    const std::tuple<TextOf<Values>...> texts(values...);
    return std::apply(
        [&format, most](const auto&... each) {
          const char* arguments[sizeof...(Values) + 1] = {each.Get()..., nullptr};
          return WholeResult(
              [&](char* buffer, KxSize size) {
                CKxXlate::FormatMessageA(buffer, size, format.Get(), sizeof...(Values), arguments);
              },
              most);
        },
        texts);
  }
};

}  // namespace detail

/// Inserts values into a text by the markers %0 or {0}, as CKxXlate::FormatMessageA does: values
/// that the text does not name are appended in brackets, and a marker without a value stays.
///
/// @param text    any text, also a catalogue's that nobody has checked: nothing in it does harm
/// @param values  any number of texts (char*, std::string, std::string_view, each up to its first
///                NUL), characters and numbers. Integers are written in decimal, floating values in
///                the fewest digits that give them back ("0.1", "1e+300"), with a point in every
///                locale. A null pointer is an absent value. Others do not compile; nor does bool,
///                which reads differently in each language.
/// @return the whole result, however long it is
///
/// Reentrant. Throws std::bad_alloc, and std::length_error for a result above 4 GiB.
///
///     std::string line = kx::insert("%1 of %0", 10, std::string("three"));  // "three of 10"
template <class Text, class... Values>
[[nodiscard]] std::string insert(const Text& text, const Values&... values) {
  return detail::PositionalEngine::Run(detail::WholeResult::kAll, text, values...).Take();
}

/// The same into a buffer of the host's: an array of char (or std::array), or a pointer and, behind
/// it, the size in bytes, of which one is the NUL's. The buffer may be the text or a value.
///
/// A result that is too long is cut, never inside a UTF-8 sequence, and the answer says so. A null
/// buffer, or a size of 0, gets nothing. Asks for memory only when the result, whole, has more than
/// 500 bytes.
///
///     char line[64];
///     if (kx::insert_into(line, "%0 of %1", 3, "ten").is_cut) Show("longer than a line");
///     char* place = line;
///     kx::Inserted again = kx::insert_into(place, sizeof line, "{0}", 2.5);
///     Show(again.text.data());
template <class Buffer, class... Rest>
Inserted insert_into(Buffer&& buffer, const Rest&... rest) {
  return detail::InsertInto<detail::PositionalEngine>(std::forward<Buffer>(buffer), rest...);
}

}  // namespace kx

#endif  // KX_KXXLATE_INSERT_HPP
