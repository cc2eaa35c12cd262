#ifndef KX_LOG_LOG_CHOICE_H
#define KX_LOG_LOG_CHOICE_H

#include <string>

namespace kx {

/// Where whoever operates a host wants the lines of the log.
struct LogChoice {
  enum class Place {
    kUsual,           ///< nothing was said: under the root of the first line
    kNowhere,         ///< no line is written, and no file or directory made
    kStandardErrors,  ///< beside the problems in property files
    kFile,
  };

  Place place = Place::kUsual;
  std::string path = {};  ///< of the file; UTF-8

  friend bool operator==(const LogChoice&, const LogChoice&) = default;
};

/// What a value says: null and "" nothing; "off" and "stderr", in exactly these letters, what they
/// are called; anything else is the path of a file.
LogChoice ParseLogChoice(const char* value);

/// What the variable KXXLATE_LOG says; nothing in a program that runs with more rights than its
/// caller (see CKxGetEnv), and nothing where there is no memory to read it: the library is being
/// loaded. Later would be too late, since a host may change its environment by then.
LogChoice LogChoiceOfEnvironment() noexcept;

}  // namespace kx

#endif  // KX_LOG_LOG_CHOICE_H
