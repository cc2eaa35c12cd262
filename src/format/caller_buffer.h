#ifndef KX_FORMAT_CALLER_BUFFER_H
#define KX_FORMAT_CALLER_BUFFER_H

#include <string_view>

#include "CKxXlate.h"

namespace kx {

// Three ways a text reaches a caller's buffer. They differ on purpose, and hosts depend on each:
//
//                         text of size-1 bytes   text of exactly size bytes   rest of the buffer
//   CopyLookupText        whole                  cut to size-1                untouched
//   CopyInsertion         whole                  whole, NUL at dst[size]      untouched
//   CopyVariableInsertion whole                  cut to size-1                zeroed
//
// The NUL that CopyInsertion may put one byte past `size` is part of its contract: its callers
// keep a spare byte. Do not merge these functions.
//
// All of them count bytes, may cut inside a UTF-8 sequence, and write nothing when `dst` is null or
// `size` is 0.
void CopyLookupText(char* dst, KxSize size, std::string_view text);
void CopyInsertion(char* dst, KxSize size, std::string_view text);
void CopyVariableInsertion(char* dst, KxSize size, std::string_view text);

/// Answers a lookup into a caller's buffer, by CopyLookupText: with the text that was found or,
/// when that is null, with `fallback`, or else with "". True when the text was found and there is
/// a buffer to take it.
bool AnswerLookup(char* dst, KxSize size, const char* found, const char* fallback);

}  // namespace kx

#endif  // KX_FORMAT_CALLER_BUFFER_H
