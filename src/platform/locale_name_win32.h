#ifndef KX_PLATFORM_LOCALE_NAME_WIN32_H
#define KX_PLATFORM_LOCALE_NAME_WIN32_H

#include <string>
#include <string_view>

#include "platform/wide_path_win32.h"

namespace kx {

/// A locale by the system's name, without the sort order that may stand behind it: "es-ES" for
/// "es-ES_tradnl".
inline std::string LocaleFromSystemName(std::wstring_view name) {
  return ToUtf8(name.substr(0, name.find(L'_')));
}

}  // namespace kx

#endif  // KX_PLATFORM_LOCALE_NAME_WIN32_H
