#ifndef KX_FORMAT_ARGUMENT_WALKER_H
#define KX_FORMAT_ARGUMENT_WALKER_H

#include <cstdarg>
#include <cstddef>
#include <cstdint>

#include "format/argument_kind.h"
#include "format/argument_value.h"
#include "format/short_list.h"
#include "platform/argument_list.h"
#include "platform/long_double.h"

namespace kx {

/// Takes arguments one after another, and keeps their values.
///
/// The kind of an argument must be known before the next is taken: on 64-bit Windows each argument
/// is one place of 8 bytes, but on 64-bit Linux integers, floating values and long ones come from
/// different areas, so that an argument of unknown kind cannot even be skipped.
class ArgumentWalker {
 public:
  /// @param arguments  is used up
  explicit ArgumentWalker(ArgumentList arguments) : arguments_(arguments) {}
  ArgumentWalker(const ArgumentWalker&) = delete;
  ArgumentWalker& operator=(const ArgumentWalker&) = delete;

  /// Throws std::bad_alloc only.
  void Take(ArgumentKind kind) {
    if (kind == ArgumentKind::kDouble) {
      values_.Add(va_arg(arguments_, double));
    } else if (kind == ArgumentKind::kLongDouble) {
      values_.Add(va_arg(arguments_, HostLongDouble));
    } else {
      // As one integer whatever the host passed, a pointer or an integer of another rank: both
      // systems pass all of these alike, and what lies above an int is looked at by nobody.
      values_.Add(va_arg(arguments_, std::uint64_t));
    }
  }

  std::size_t Taken() const { return values_.Size(); }
  const ArgumentValue& operator[](std::size_t index) const { return values_[index]; }

 private:
  // Not a copy of a list that has just been written: it took a twentieth of the time of a message.
  ArgumentList arguments_;
  ShortList<ArgumentValue, 16> values_;
};

}  // namespace kx

#endif  // KX_FORMAT_ARGUMENT_WALKER_H
