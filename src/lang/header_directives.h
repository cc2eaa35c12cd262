#ifndef KX_LANG_HEADER_DIRECTIVES_H
#define KX_LANG_HEADER_DIRECTIVES_H

#include "lang/lang_file_parser.h"
#include "lang/language_contents.h"

namespace kx {

/// Takes the parser's line, which is not empty, as a line of the header.
///
/// @return true when it is a directive, also when its value is of no use
bool ParseHeaderDirective(LangFileParser& parser, LanguageContents& contents);

}  // namespace kx

#endif  // KX_LANG_HEADER_DIRECTIVES_H
