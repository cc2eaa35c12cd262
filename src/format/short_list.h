#ifndef KX_FORMAT_SHORT_LIST_H
#define KX_FORMAT_SHORT_LIST_H

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace kx {

/// A list that asks for no memory up to kInPlace items, which is what messages have: allocations
/// were half of the time of an insertion.
template <class Item, std::size_t kInPlace>
class ShortList {
  static_assert(std::is_trivially_copyable_v<Item>);
  static_assert(alignof(Item) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);

 public:
  ShortList() noexcept
      : items_(std::launder(reinterpret_cast<Item*>(inPlace_))),
        end_(items_),
        limit_(items_ + kInPlace) {}
  ShortList(const ShortList&) = delete;
  ShortList& operator=(const ShortList&) = delete;

  std::size_t Size() const noexcept { return static_cast<std::size_t>(end_ - items_); }
  const Item* begin() const noexcept { return items_; }
  const Item* end() const noexcept { return end_; }
  Item& operator[](std::size_t index) noexcept { return items_[index]; }
  const Item& operator[](std::size_t index) const noexcept { return items_[index]; }

  /// Makes an item where it stays: to make it elsewhere and copy it takes longer than to make it.
  template <class... Values>
  void Add(const Values&... values) {
    if (end_ == limit_) Grow();
    std::construct_at(end_, values...);
    ++end_;
  }

 private:
  void Grow() {
    const std::size_t size = Size();
    std::unique_ptr<std::byte[]> larger(new std::byte[2 * size * sizeof(Item)]);
    std::memcpy(larger.get(), items_, size * sizeof(Item));
    onHeap_ = std::move(larger);
    items_ = std::launder(reinterpret_cast<Item*>(onHeap_.get()));
    end_ = items_ + size;
    limit_ = end_ + size;
  }

  // Bytes, so that no item is made before it is added.
  alignas(Item) std::byte inPlace_[kInPlace * sizeof(Item)];
  Item* items_;
  Item* end_;
  Item* limit_;
  std::unique_ptr<std::byte[]> onHeap_;
};

}  // namespace kx

#endif  // KX_FORMAT_SHORT_LIST_H
