#ifndef KX_BENCH_FLAT_TABLE_H
#define KX_BENCH_FLAT_TABLE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// The floor of a lookup: what finds a text by a key in any case with as little work as we know.
///
/// Keys and texts lie in one block and end with NUL; the table holds where. Nothing is checked that
/// generated catalogues do not need, there are no misses to remember and no seed, so this is no
/// table to use: it shows what the machine can do.
class FlatTable {
 public:
  /// @param block  holds all keys and texts
  /// @param most   how many entries will be added
  FlatTable(std::unique_ptr<char[]> block, std::size_t most);

  /// Adds a key and a text of the block. Of equal keys the last wins.
  void Add(std::uint32_t key, std::uint32_t keyLength, std::uint32_t text);

  /// The text of a key, or null.
  const char* Find(const char* key) const;

 private:
  struct Slot {
    std::uint32_t key;
    std::uint32_t keyLength;
    std::uint32_t text;
  };

  const Slot* FindSlot(std::string_view key, std::uint64_t hash) const;

  std::unique_ptr<char[]> block_;
  std::vector<std::uint64_t> groups_;
  std::vector<Slot> slots_;
  std::size_t mask_;
};

/// The table of the first messages of the generated catalogues, to look texts up by a C string.
class FloorTexts {
 public:
  explicit FloorTexts(int size);
  const char* Find(const char* key) const { return table_.Find(key); }

 private:
  FlatTable table_;
};

}  // namespace bench

#endif  // KX_BENCH_FLAT_TABLE_H
