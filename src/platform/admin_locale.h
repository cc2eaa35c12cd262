#ifndef KX_PLATFORM_ADMIN_LOCALE_H
#define KX_PLATFORM_ADMIN_LOCALE_H

#include <optional>
#include <string>

/// The administrator's locale, such as "fr_CA"; nothing when there is none.
///
/// On Linux that is the system's locale, without its encoding, from the first of the variables
/// LC_ALL, LC_MESSAGES and LANG that is set and not empty; "C" and "POSIX" are no locale. On
/// Windows it is the system's default locale. Any thread, while no other changes the environment.
std::optional<std::string> KxGetAdminLocale();

#endif  // KX_PLATFORM_ADMIN_LOCALE_H
