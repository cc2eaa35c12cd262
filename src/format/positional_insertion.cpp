#include "format/positional_insertion.h"

#include <algorithm>

#include "format/marked_text.h"

namespace kx {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t DigitValue(char c) { return static_cast<std::size_t>(c - '0'); }

/// One run of the engine over one text.
class Insertion {
 public:
  Insertion(ResultText& result, std::size_t count, const char* const* arguments)
      : result_(result), count_(arguments == nullptr ? 0 : count), arguments_(arguments) {}

  void Run(const MarkedText& text) {
    const char* place = text.CopyUpTo(result_, text.Begin(), '%', '{');
    while (place != text.End()) {
      marker_ = *place;
      const char* const next = TakeMarker(place + 1);
      place = text.CopyUpTo(result_, next, marker_, marker_);
    }
    AppendLeftovers();
  }

 private:
  bool InBraces() const { return marker_ == '{'; }

  // These take what follows a marker character, beginning at `next`, and answer where the text goes
  // on.

  const char* TakeMarker(const char* next) {
    if (*next == '\0') {
      result_.Append(marker_);
      return next;
    }
    if (*next == marker_) {
      result_.Append(marker_);
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
    result_.Append('{');
    if (index >= 10) result_.Append(static_cast<char>('0' + index / 10));
    result_.Append(last);
    if (*next == '\0') return next;
    result_.Append(*next);
    return next + 1;
  }

  const char* TakeOrdinaryBrace(const char* next) {
    result_.Append('{');
    result_.Append(*next);
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
      result_.Append(arguments_[index]);
      return;
    }
    result_.Append(marker_);
    result_.Append(last);
    if (InBraces()) result_.Append('}');
  }

  void AppendLeftovers() {
    if (highMark_ >= count_) return;
    result_.Append(result_.Size() == 0 ? "(" : " (");
    for (std::size_t index = highMark_; index < count_; ++index) {
      if (index != highMark_) result_.Append(", ");
      if (arguments_[index] != nullptr) result_.Append(arguments_[index]);
    }
    result_.Append(')');
  }

  ResultText& result_;
  const std::size_t count_;
  const char* const* const arguments_;
  char marker_ = '\0';
  std::size_t highMark_ = 0;  // one more than the highest argument that a marker has named
};

}  // namespace

void InsertArguments(ResultText& result, const char* text, std::size_t count,
                     const char* const* arguments) {
  Insertion(result, count, arguments).Run(MarkedText(text == nullptr ? "" : text));
}

void InsertArguments(std::string& result, const char* text, std::size_t count,
                     const char* const* arguments) {
  ResultText whole;
  InsertArguments(whole, text, count, arguments);
  result = whole.View();
}

}  // namespace kx
