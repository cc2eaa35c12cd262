#include "platform/admin_locale.h"

#include <windows.h>

#include "platform/locale_name_win32.h"

std::optional<std::string> KxGetAdminLocale() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH];
  const int length = ::GetSystemDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
  if (length <= 1) return std::nullopt;
  return kx::LocaleFromSystemName({name, static_cast<std::size_t>(length) - 1});
}
