#ifndef KX_BENCH_GKEYFILE_TEXTS_H
#define KX_BENCH_GKEYFILE_TEXTS_H

#include <glib.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "support/tree.h"

namespace bench {

/// GLib's key files: text, read and taken apart.
class GKeyFileTexts {
 public:
  explicit GKeyFileTexts(int size) : file_(g_key_file_new()) {
    const std::string path = TreePath("peers/texts" + std::to_string(size) + ".ini");
    if (!g_key_file_load_from_file(file_.get(), path.c_str(), G_KEY_FILE_NONE, nullptr)) {
      throw std::runtime_error("cannot read " + path);
    }
  }

  /// It hands out copies only.
  std::unique_ptr<char, decltype(&g_free)> Find(const char* key) const {
    return {g_key_file_get_string(file_.get(), "texts", key, nullptr), &g_free};
  }

 private:
  struct Free {
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
  };
  std::unique_ptr<GKeyFile, Free> file_;
};

}  // namespace bench

#endif  // KX_BENCH_GKEYFILE_TEXTS_H
