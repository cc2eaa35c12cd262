#ifndef KX_TEXTS_LINE_READER_H
#define KX_TEXTS_LINE_READER_H

#include <cstddef>
#include <limits>
#include <memory>
#include <streambuf>
#include <string_view>

namespace kx {

/// Hands out the lines of a source where they lie in one block of it, without copying them.
class LineReader {
 public:
  /// @param source     must outlive this object
  /// @param mostBytes  lines that are longer are not handed out
  explicit LineReader(std::streambuf& source,
                      std::size_t mostBytes = std::numeric_limits<std::size_t>::max())
      : source_(source), mostBytes_(mostBytes) {}
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  enum class Kind {
    kLine,     ///< ended by a line feed
    kLast,     ///< ended by the end of the source; empty behind a last line feed
    kTooLong,  ///< the beginning of a line that is too long
  };

  struct Line {
    std::string_view text;  ///< without the line feed; valid until the next call
    Kind kind;
  };

  /// The next line; behind the last one, an empty last one again. Throws std::bad_alloc only: where
  /// the source throws anything else it ends, as at any read that fails.
  Line Next();

  /// Bytes of the lines that were handed out, and of their line feeds.
  std::size_t BytesTaken() const noexcept { return taken_; }

  /// Whether there is a NUL in what was read so far, so that lines of files without any need not be
  /// searched for one.
  bool HasNul() const noexcept { return hasNul_; }

 private:
  Line Take(std::size_t size, Kind kind);
  void ReadMore();
  std::streamsize Read(char* bytes, std::streamsize size);

  std::streambuf& source_;
  const std::size_t mostBytes_;
  std::unique_ptr<char[]> block_;
  std::size_t room_ = 0;      ///< bytes of the block
  std::size_t begin_ = 0;     ///< of what was not handed out
  std::size_t end_ = 0;       ///< of what was read
  std::size_t searched_ = 0;  ///< of these, the bytes in which no line feed is
  std::size_t taken_ = 0;
  bool hasNul_ = false;
  bool isAtEnd_ = false;  ///< the source has no more
};

}  // namespace kx

#endif  // KX_TEXTS_LINE_READER_H
