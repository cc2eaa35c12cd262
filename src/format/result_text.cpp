#include "format/result_text.h"

namespace kx {

void ResultText::Grow(std::size_t size) {
  const std::size_t used = Size();
  // At least doubled, so that a long result is moved a few times only.
  const std::size_t room = std::max(used + size, 2 * static_cast<std::size_t>(end_ - begin_));
  std::unique_ptr<char[]> larger(new char[room + kSlack]);
  std::memcpy(larger.get(), begin_, used);
  onHeap_ = std::move(larger);
  begin_ = onHeap_.get();
  at_ = begin_ + used;
  end_ = begin_ + room;
}

}  // namespace kx
