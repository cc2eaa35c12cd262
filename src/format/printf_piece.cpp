#include "format/printf_piece.h"

#include <algorithm>

#include "format/print_value.h"

namespace kx {
namespace {

using Meaning = ConversionGroup::Meaning;

void AppendBefore(std::string& result, const ConversionGroup& group) {
  if (group.meaning == Meaning::kPercentSign) {
    result += '%';
  } else if (group.meaning != Meaning::kCount) {
    result += group.text;
  }
}

void AppendAfter(std::string& result, const ConversionGroup& group) {
  if (group.meaning == Meaning::kPercentSign && !group.hasStar) {
    result += '%';
  } else {
    result += group.text;
  }
}

/// Appends text, and by `appendGroup` each group in it.
void AppendAround(std::string& result, std::string_view text,
                  void (*appendGroup)(std::string& result, const ConversionGroup& group)) {
  while (!text.empty()) {
    const std::string_view literal = text.substr(0, text.find('%'));
    result += literal;
    text.remove_prefix(literal.size());
    if (text.empty()) break;
    const ConversionGroup group = ReadGroup(text);
    appendGroup(result, group);
    text.remove_prefix(group.text.size());
  }
}

}  // namespace

PrintfPiece::PrintfPiece(std::string_view piece) : before_(piece) {
  std::size_t place = piece.find('%');
  while (place != std::string_view::npos) {
    const ConversionGroup group = ReadGroup(piece.substr(place));
    const std::size_t next = place + group.text.size();
    if (group.meaning == Meaning::kConversion) {
      before_ = piece.substr(0, place);
      conversion_ = group.conversion;
      after_ = piece.substr(next);
      break;
    }
    place = piece.find('%', next);
  }
}

ArgumentKind PrintfPiece::Kind() const {
  return conversion_.letter == '\0' ? ArgumentKind::kUnread : conversion_.Kind();
}

void PrintfPiece::AppendTo(std::string& result, const ArgumentValue& value) const {
  const std::size_t start = result.size();
  AppendAround(result, before_, AppendBefore);
  if (conversion_.letter != '\0') AppendValue(result, conversion_, value);
  AppendAround(result, after_, AppendAfter);
  result.resize(std::min(result.size(), start + kMaxPieceBytes));
}

}  // namespace kx
