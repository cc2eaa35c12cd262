#include "platform/admin_locale.h"

#include "platform/environment.h"

std::optional<std::string> KxGetAdminLocale() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    CKxGetEnv environment;
    const char* value = environment.set(variable);
    if (value == nullptr || *value == '\0') continue;
    const std::string locale = value;
    // The encoding stands behind a "."; a variant, such as "@euro", behind that.
    std::string plain = locale.substr(0, locale.find_first_of(".@"));
    if (plain.empty() || plain == "C" || plain == "POSIX") return std::nullopt;
    return plain;
  }
  return std::nullopt;
}
