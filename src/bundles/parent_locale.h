#ifndef KX_BUNDLES_PARENT_LOCALE_H
#define KX_BUNDLES_PARENT_LOCALE_H

#include <string_view>

namespace kx {

/// Walks from a locale to ever shorter ones: it is cut at its last "-"; where no "-" is left, at
/// its last "_"; and ends with the empty locale. The whole walk takes time linear in the locale's
/// length, because a locale may come from a stranger's request.
class ParentLocales {
 public:
  explicit ParentLocales(std::string_view locale) noexcept : current_(locale) {}

  std::string_view Current() const noexcept { return current_; }

  /// Goes to the next shorter locale; false, with nothing changed, at the empty one.
  bool Next() noexcept {
    if (current_.empty()) return false;
    std::size_t cut = separator_ == '-' ? current_.rfind('-') : std::string_view::npos;
    if (cut == std::string_view::npos) {
      // No "-" is left, and none will come back: to look for one again at each "_" would make the
      // walk quadratic.
      separator_ = '_';
      cut = current_.rfind('_');
    }
    current_ = cut == std::string_view::npos ? std::string_view() : current_.substr(0, cut);
    return true;
  }

 private:
  std::string_view current_;
  char separator_ = '-';
};

}  // namespace kx

#endif  // KX_BUNDLES_PARENT_LOCALE_H
