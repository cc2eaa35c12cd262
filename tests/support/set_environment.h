#ifndef KX_TESTS_SUPPORT_SET_ENVIRONMENT_H
#define KX_TESTS_SUPPORT_SET_ENVIRONMENT_H

#include <string>

/// Sets a variable of this process; an empty value is set, too. Texts are UTF-8. Throws when that
/// is not possible.
void SetVariable(const std::string& name, const std::string& value);

/// Removes a variable of this process, if it is set.
void RemoveVariable(const std::string& name);

#endif  // KX_TESTS_SUPPORT_SET_ENVIRONMENT_H
