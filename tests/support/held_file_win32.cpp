#include "support/held_file.h"

#include <windows.h>

#include <stdexcept>

#include "support/temp_tree.h"

HeldFile::HeldFile(const std::string& path) {
  constexpr DWORD kShareNothing = 0;
  const HANDLE file = ::CreateFileW(PathFromUtf8(path).c_str(), GENERIC_READ, kShareNothing,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot hold " + path);
  state_ = reinterpret_cast<std::intptr_t>(file);
}

HeldFile::~HeldFile() { ::CloseHandle(reinterpret_cast<HANDLE>(state_)); }
