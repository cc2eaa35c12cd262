#include "core/message_text.h"

namespace kx {

void SetMessageText(CKxText& holder, const char* text) { holder.Set(text); }

void SetMessageResult(CKxText& holder, const char* key, const std::string& result) {
  holder.Clear();
  if (key != nullptr) {
    holder.Append("[");
    holder.Append(key);
    holder.Append("] ");
  }
  holder.AppendString(result);
}

}  // namespace kx
