#ifndef KX_LANG_LANG_LOADER_H
#define KX_LANG_LANG_LOADER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "lang/language_contents.h"
#include "lang/language_paths.h"

namespace kx {

/// A file that a language may be read from.
struct LangCandidate {
  std::string path;           ///< also when there is no such file; empty when it was not looked for
  std::int64_t modified = 0;  ///< its last change, in seconds, when it was read; 0 when it was not
};

/// The common file and the named file of the language, then those of the language in the country.
constexpr std::size_t kLangCandidates = 4;
using LangCandidates = std::array<LangCandidate, kLangCandidates>;

/// The name of a language file within the language directory, such as "FR-CA/(Common).lang".
///
/// @param language, country  upper-case codes; the country may be empty
/// @param name               of the component; empty for the common file
std::string LangFileName(const std::string& language, const std::string& country,
                         const std::string& name);

/// Whether `relative` stays in the directory that it is relative to, whatever its ".." do. "/" and
/// "\" both count as separators.
bool StaysInDirectory(const std::string& relative);

/// Reads one candidate into `contents` and records it in `candidate`.
///
/// @param relative  its name within the language directory, and in problem lines
/// @return whether there is a regular file of that name, within the directory, that can be read
bool LoadLangFile(const LanguageContext& context, const std::string& relative,
                  LanguageContents& contents, LangCandidate& candidate);

}  // namespace kx

#endif  // KX_LANG_LANG_LOADER_H
