#include "floor/floor_insertion.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>

#include "support/insertions.h"

namespace bench {

namespace {

/// A caller's buffer that is being filled.
class Output {
 public:
  Output(char* buffer, KxSize size) : at_(buffer), end_(buffer + size - 1) {}

  void Put(std::string_view text) {
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(end_ - at_));
    std::memcpy(at_, text.data(), length);
    at_ += length;
  }

  template <typename... Number>
  void PutNumber(Number... number) {
    at_ = std::to_chars(at_, end_, number...).ptr;
  }

  void End() { *at_ = '\0'; }

 private:
  char* at_;
  char* end_;
};

/// Copies a text; `put` is told of each marker, and answers what follows it.
template <typename PutValue>
void Fill(char* buffer, KxSize size, const char* text, PutValue put) {
  Output output(buffer, size);
  while (const char* marker = std::strchr(text, '%')) {
    output.Put({text, static_cast<std::size_t>(marker - text)});
    text = put(output, marker + 1);
  }
  output.Put(text);
  output.End();
}

/// Puts a number with so many decimals into a buffer that is filled with zeros first.
void InsertNumber(char* buffer, KxSize size, const char* text, int decimals,
                  std::size_t markerLength) {
  std::memset(buffer, 0, size);
  Fill(buffer, size, text, [=](Output& output, const char* behind) {
    output.PutNumber(kSeconds, std::chars_format::fixed, decimals);
    return behind + markerLength;
  });
}

}  // namespace

void FloorInsertTexts(char* buffer, KxSize size) {
  const char* const values[] = {kFirst, kSecond};
  Fill(buffer, size, "The task %0 on the server %1 has ended, without any errors.",
       [&](Output& output, const char* behind) {
         output.Put(values[*behind - '0']);
         return behind + 1;
       });
}

void FloorInsertF(char* buffer, KxSize size) {
  InsertNumber(buffer, size, "It took %f:1 seconds.", 6, 3);
}

void FloorInsert2F(char* buffer, KxSize size) {
  InsertNumber(buffer, size, "It took %.2f seconds.", 2, 3);
}

void FloorInsertNumberAndText(char* buffer, KxSize size) {
  std::memset(buffer, 0, size);
  Fill(buffer, size, "After %d minutes the task %s has ended.",
       [](Output& output, const char* behind) {
         if (*behind == 'd') {
           output.PutNumber(kMinutes);
         } else {
           output.Put(kFirst);
         }
         return behind + 1;
       });
}

}  // namespace bench
