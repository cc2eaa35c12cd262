#ifndef KX_TESTS_SCENARIOS_LANGUAGE_FILES_H
#define KX_TESTS_SCENARIOS_LANGUAGE_FILES_H

#include <string>

#include "core/language_cache.h"
#include "lang/language_tree.h"

struct Request {
  const char* name;
  const char* language;
  const char* country;
};

inline constexpr Request kFrench = {"agent", "fr", nullptr};
inline constexpr Request kCanadian = {"agent", "fr", "ca"};

inline constexpr char kCommon[] = "FR/(Common).lang";
inline constexpr char kNamed[] = "FR/agent.lang";
inline constexpr char kCommonOfCountry[] = "FR-CA/(Common).lang";
inline constexpr char kNamedOfCountry[] = "FR-CA/agent.lang";

/// A tree of files, and all that the translator of a request then says of them.
class LanguageFiles : public LanguageTree {
 protected:
  ~LanguageFiles() override { cache_.Clear(); }

  /// The request's language or, when there is none, English.
  Held Find(const Request& request) {
    Held found(cache_.FindOrLoad(request.name, request.language, request.country));
    if (found == nullptr) found.reset(cache_.FindOrLoad(request.name, "EN", nullptr));
    return found;
  }

  /// Long name, charset, images, direction and prompt suffix.
  static std::string HeaderOf(CKxXlate& translator) {
    std::string header;
    for (const char* value :
         {translator.GetLongName(), translator.GetCharset(), translator.GetImageDirectory(),
          translator.GetDirection(), translator.GetPromptSuffix()}) {
      header += (value == nullptr ? std::string("-") : value) + "|";
    }
    return header;
  }

 private:
  kx::CRealKxXlateCache cache_{context_};
};

#endif  // KX_TESTS_SCENARIOS_LANGUAGE_FILES_H
