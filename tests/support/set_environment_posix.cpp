#include <stdlib.h>

#include <stdexcept>

#include "support/set_environment.h"

void SetVariable(const std::string& name, const std::string& value) {
  if (::setenv(name.c_str(), value.c_str(), 1) != 0) throw std::runtime_error("cannot set " + name);
}

void RemoveVariable(const std::string& name) {
  if (::unsetenv(name.c_str()) != 0) throw std::runtime_error("cannot remove " + name);
}
