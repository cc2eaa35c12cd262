#include "format/positional_insertion.h"

#include <algorithm>
#include <cstring>

namespace kx {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t DigitValue(char c) { return static_cast<std::size_t>(c - '0'); }

/// One run of the engine over one text.
class Insertion {
 public:
  Insertion(std::string& result, std::size_t count, const char* const* arguments)
      : result_(result), count_(arguments == nullptr ? 0 : count), arguments_(arguments) {}

  void Run(const char* text) {
    const char* place = std::strpbrk(text, "%{");
    while (place != nullptr) {
      marker_ = *place;
      result_.append(text, place);
      text = TakeMarker(place + 1);
      place = std::strchr(text, marker_);
    }
    result_ += text;
    AppendLeftovers();
  }

 private:
  bool InBraces() const { return marker_ == '{'; }

  // These take what follows a marker character, beginning at `next`, and answer where the text goes
  // on.

  const char* TakeMarker(const char* next) {
    if (*next == '\0') {
      result_ += marker_;
      return next;
    }
    if (*next == marker_) {
      result_ += marker_;
      return next + 1;
    }
    if (IsDigit(*next)) return TakeNumber(next);
    return InBraces() ? TakeOrdinaryBrace(next) : TakeSequential(next);
  }

  const char* TakeNumber(const char* next) {
    std::size_t index = DigitValue(*next);
    char last = *next++;
    if (IsDigit(*next)) {
      index = index * 10 + DigitValue(*next);
      last = *next++;
    }
    if (InBraces()) {
      if (*next != '}') return TakeUnclosedBrace(index, last, next);
      ++next;
    }
    Insert(index, last);
    return next;
  }

  // The text comes back as a number, not as written: "{05x" loses its 0, and catalogues count on
  // it.
  const char* TakeUnclosedBrace(std::size_t index, char last, const char* next) {
    result_ += '{';
    if (index >= 10) result_ += static_cast<char>('0' + index / 10);
    result_ += last;
    if (*next == '\0') return next;
    result_ += *next;
    return next + 1;
  }

  const char* TakeOrdinaryBrace(const char* next) {
    result_ += '{';
    result_ += *next;
    return next + 1;
  }

  const char* TakeSequential(const char* next) {
    char last = *next++;
    if (last == 'l' && *next != '\0') last = *next++;
    Insert(highMark_, last);
    return next;
  }

  // An absent argument gives back only the marker's last byte ("%12" becomes "%2"), but counts as
  // named all the same.
  void Insert(std::size_t index, char last) {
    highMark_ = std::max(highMark_, index + 1);
    if (index < count_ && arguments_[index] != nullptr) {
      result_ += arguments_[index];
      return;
    }
    result_ += marker_;
    result_ += last;
    if (InBraces()) result_ += '}';
  }

  void AppendLeftovers() {
    if (highMark_ >= count_) return;
    result_ += result_.empty() ? "(" : " (";
    for (std::size_t index = highMark_; index < count_; ++index) {
      if (index != highMark_) result_ += ", ";
      if (arguments_[index] != nullptr) result_ += arguments_[index];
    }
    result_ += ')';
  }

  std::string& result_;
  const std::size_t count_;
  const char* const* const arguments_;
  char marker_ = '\0';
  std::size_t highMark_ = 0;  // one more than the highest argument that a marker has named
};

}  // namespace

void InsertArguments(std::string& result, const char* text, std::size_t count,
                     const char* const* arguments) {
  result.clear();
  Insertion(result, count, arguments).Run(text == nullptr ? "" : text);
}

}  // namespace kx
