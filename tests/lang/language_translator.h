#ifndef KX_TESTS_LANG_LANGUAGE_TRANSLATOR_H
#define KX_TESTS_LANG_LANGUAGE_TRANSLATOR_H

#include "lang/language_tree.h"

/// Its tests stand in several files: what a translator reads, how it is called, where its
/// operations stand.
class LanguageTranslator : public LanguageTree {};

/// A file that says everything.
inline constexpr char kWholeFile[] =
    "Long Name Fran\xC3\xA7"
    "ais\n"
    "Images /pictures\n"
    "Charset UTF-8\n"
    "Prompt Suffix :\n"
    "Direction RTL\n"
    "Directory help /docs\n"
    "Debug\n"
    "\n"
    "Key HELLO\n"
    "Value Bonjour\n"
    "Button OK\n"
    "Label D'accord\n";

#endif  // KX_TESTS_LANG_LANGUAGE_TRANSLATOR_H
