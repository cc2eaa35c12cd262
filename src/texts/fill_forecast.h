#ifndef KX_TEXTS_FILL_FORECAST_H
#define KX_TEXTS_FILL_FORECAST_H

#include <cstddef>

namespace kx {

/// Tells a table how many keys it will have once a file has been read, by what there was in the
/// part that has been read.
///
/// @tparam Table  has Size() and Expect(), as KeyBuckets
template <class Table>
class FillForecast {
 public:
  /// Lines between two forecasts.
  static constexpr std::size_t kLines = 512;

  /// @param table      must outlive this object
  /// @param fileBytes  0 when not known
  FillForecast(Table& table, std::size_t fileBytes)
      : table_(table), fileBytes_(fileBytes), before_(table.Size()) {}

  /// @param bytesTaken  of the file, so far
  void Update(std::size_t bytesTaken) {
    if (bytesTaken == 0 || bytesTaken >= fileBytes_) return;
    const double share = static_cast<double>(fileBytes_) / static_cast<double>(bytesTaken);
    const auto added = static_cast<double>(table_.Size() - before_);
    table_.Expect(before_ + static_cast<std::size_t>(added * share));
  }

 private:
  Table& table_;
  const std::size_t fileBytes_;
  const std::size_t before_;
};

}  // namespace kx

#endif  // KX_TEXTS_FILL_FORECAST_H
