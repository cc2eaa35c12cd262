#include "format/printf_piece.h"

namespace kx {
namespace {

using Meaning = ConversionGroup::Meaning;

void AppendBefore(ResultText& result, const ConversionGroup& group) {
  if (group.meaning == Meaning::kPercentSign) {
    result.Append('%');
  } else if (group.meaning != Meaning::kCount) {
    result.Append(group.text);
  }
}

void AppendAfter(ResultText& result, const ConversionGroup& group) {
  if (group.meaning == Meaning::kPercentSign && !group.hasStar) {
    result.Append('%');
  } else {
    result.Append(group.text);
  }
}

/// Appends text, and by `appendGroup` each group in it.
void AppendAround(ResultText& result, std::string_view text,
                  void (*appendGroup)(ResultText& result, const ConversionGroup& group)) {
  while (!text.empty()) {
    const std::string_view literal = text.substr(0, text.find('%'));
    result.Append(literal);
    text.remove_prefix(literal.size());
    if (text.empty()) break;
    const ConversionGroup group = ReadGroup(text);
    appendGroup(result, group);
    text.remove_prefix(group.text.size());
  }
}

}  // namespace

void PrintfPiece::FindConversion() {
  do {
    const auto behind = static_cast<std::size_t>(group_.text.data() - piece_.data());
    const std::size_t next = piece_.find('%', behind + group_.text.size());
    if (next == std::string_view::npos) return;
    group_ = ReadGroup(piece_.substr(next));
  } while (!HasConversion());
}

void PrintfPiece::AppendParts(ResultText& result, const ArgumentValue& value) const {
  if (!HasConversion()) {
    AppendAround(result, piece_, AppendBefore);
    return;
  }
  const auto before = static_cast<std::size_t>(group_.text.data() - piece_.data());
  AppendAround(result, piece_.substr(0, before), AppendBefore);
  AppendValue(result, group_.conversion, value);
  AppendAround(result, piece_.substr(before + group_.text.size()), AppendAfter);
}

}  // namespace kx
