#ifndef KX_LANG_BODY_CLAUSES_H
#define KX_LANG_BODY_CLAUSES_H

#include "lang/lang_file_parser.h"
#include "lang/language_contents.h"

namespace kx {

/// Takes the parser's line, which is not empty, as a line of the body.
void ParseBodyClause(LangFileParser& parser, LanguageContents& contents);

/// Stores the open pair when it is complete, reports it when it lacks its value, and forgets it.
void CommitPendingPair(LangFileParser& parser, LanguageContents& contents);

}  // namespace kx

#endif  // KX_LANG_BODY_CLAUSES_H
