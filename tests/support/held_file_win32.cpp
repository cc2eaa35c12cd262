#include "support/held_file.h"

#include <windows.h>

#include <stdexcept>

#include "support/temp_tree.h"

struct HeldFile::State {
  HANDLE file;
};

HeldFile::HeldFile(const std::string& path) : state_(new State) {
  constexpr DWORD kShareNothing = 0;
  const HANDLE file = ::CreateFileW(PathFromUtf8(path).c_str(), GENERIC_READ, kShareNothing,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot hold " + path);
  state_->file = file;
}

HeldFile::~HeldFile() { ::CloseHandle(state_->file); }
