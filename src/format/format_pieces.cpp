#include "format/format_pieces.h"

namespace kx {
namespace {

constexpr std::size_t kTenthArgument = 9;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::vector<FormatPiece> CutIntoPieces(std::string_view text) {
  std::vector<FormatPiece> pieces;
  std::size_t sequential = 0;
  while (!text.empty()) {
    const std::string_view literal = text.substr(0, text.find('%'));
    if (!literal.empty()) pieces.push_back({true, literal, 0});
    text.remove_prefix(literal.size());
    const std::size_t letter = text.find_first_of("cdiopuxfs");
    if (letter == std::string_view::npos) break;
    FormatPiece conversion{false, text.substr(0, letter + 1), 0};
    text.remove_prefix(conversion.text.size());
    if (text.size() >= 2 && text[0] == ':' && IsDigit(text[1])) {
      conversion.argIndex =
          text[1] == '0' ? kTenthArgument : static_cast<std::size_t>(text[1] - '1');
      text.remove_prefix(2);
    } else {
      conversion.argIndex = sequential++;
    }
    pieces.push_back(conversion);
  }
  return pieces;
}

}  // namespace kx
