#ifndef KX_CORE_MESSAGE_TEXT_H
#define KX_CORE_MESSAGE_TEXT_H

#include <string>

#include "Xlate.h"

namespace kx {

// In a file of their own, so that no compiler sees which objects they are called for: the texts of
// a message are plain members, and a compiler that knows it would call its own copies of their
// operations instead of those that the host made them with.

void SetMessageText(CKxText& holder, const char* text);

/// Replaces the text by the result, with "[key] " in front when `key` is not null.
void SetMessageResult(CKxText& holder, const char* key, const std::string& result);

}  // namespace kx

#endif  // KX_CORE_MESSAGE_TEXT_H
