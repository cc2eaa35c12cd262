#include "platform/executable_path.h"

#include <windows.h>

#include <utility>

#include "platform/wide_path_win32.h"

CKxExecutablePath::CKxExecutablePath() {
  constexpr DWORD kFirstRoom = 260;
  constexpr DWORD kMostRoom = 64 * 1024;
  // The call cuts a path that is too long: one that fills its room may be cut.
  for (DWORD room = kFirstRoom; room <= kMostRoom; room *= 2) {
    std::wstring path(room, L'\0');
    const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), room);
    if (length == 0) return;
    if (length == room) continue;
    path.resize(length);
    path_ = kx::ToUtf8(kx::WithoutLongPrefix(std::move(path)));
    return;
  }
}
