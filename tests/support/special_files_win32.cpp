#include <stdexcept>

#include "support/special_files.h"

// Tests that need these are left out on Windows: see windows_exceptions.cmake. One that is not
// fails here instead of passing for a wrong reason.

void MakeNamedPipe(const std::string& /*path*/) {
  throw std::logic_error("directories of this system hold no pipes");
}

bool IsSuperUser() { return false; }

Restricted::Restricted(const std::string& /*path*/, std::filesystem::perms /*permissions*/) {
  throw std::logic_error("this system's permissions are others");
}

Restricted::~Restricted() = default;
