#include <windows.h>

#include <filesystem>
#include <stdexcept>

#include "support/set_environment.h"

namespace {

std::wstring Wide(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end())).native();
}

}  // namespace

void SetVariable(const std::string& name, const std::string& value) {
  if (::SetEnvironmentVariableW(Wide(name).c_str(), Wide(value).c_str()) == 0) {
    throw std::runtime_error("cannot set " + name);
  }
}

void RemoveVariable(const std::string& name) {
  ::SetEnvironmentVariableW(Wide(name).c_str(), nullptr);
}
