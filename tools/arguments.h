#ifndef KX_TOOLS_ARGUMENTS_H
#define KX_TOOLS_ARGUMENTS_H

#include <string>
#include <vector>

/// The arguments of this process in UTF-8, without the program's name.
///
/// @param count, values  what main was given; on Windows not used, because those are in the code
///                       page, which lacks most characters
std::vector<std::string> Utf8Arguments(int count, char** values);

#endif  // KX_TOOLS_ARGUMENTS_H
