#ifndef KX_LOG_TRANSLATION_LOG_H
#define KX_LOG_TRANSLATION_LOG_H

#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

#include "log/log_choice.h"
#include "platform/caller_trust.h"
#include "platform/critical_section.h"
#include "platform/thread_annotations.h"

namespace kx {

/// The diagnostic log: one line a problem, in "translate.log".
///
/// The first line decides where the file lies, for all lines that follow: in the directory "log"
/// under the first writer's root, which is made when missing; in the root itself when that cannot
/// be done; and when no file can be opened there, all lines go to standard output. When the file
/// cannot be opened for a reason that passes, only this line does, and the next one tries again.
///
/// In a program that runs with more rights than its caller no log is opened below the working
/// directory, which the caller chose: the lines go to standard output.
///
/// Whoever operates the host may have chosen another place (LogChoice). A file that was chosen is
/// used as it is named, without a directory being made; when it cannot be opened, lines go to
/// standard output as above.
///
/// The stream stays open for the rest of the process: it is neither closed nor freed here.
///
/// One object of this class serves the process (ProcessLog); tests make their own. Its lock is the
/// innermost of the library: nothing else is locked while it is held.
class TranslationLog {
 public:
  /// @param choice                  what the operator chose; nothing unless told otherwise
  /// @param trustsWorkingDirectory  whether a log that nobody chose may lie below it: see
  ///                                KxTrustsWorkingDirectory
  explicit TranslationLog(LogChoice choice = {},
                          bool trustsWorkingDirectory = KxTrustsWorkingDirectory())
      : choice_(std::move(choice)), trustsWorkingDirectory_(trustsWorkingDirectory) {}
  TranslationLog(const TranslationLog&) = delete;
  TranslationLog& operator=(const TranslationLog&) = delete;

  /// Writes one line and flushes it. Any thread; lines never mix.
  ///
  /// @param root    the directory to put the log under, if this line is the first; "" means "."
  /// @param pieces  written one after another, without separators. A line feed or carriage return
  ///                in them is written as the two characters \n or \r: one problem is one line.
  ///
  /// A line that cannot be written is lost silently. Throws std::bad_alloc only.
  void WriteLine(const std::string& root, std::initializer_list<std::string_view> pieces)
      KX_EXCLUDES(lock_);

 private:
  std::ostream& OpenTranslationLog(const std::string& root) KX_REQUIRES(lock_);
  std::ostream& OpenLogFile(const std::string& root) KX_REQUIRES(lock_);
  /// Empty when no file may be opened.
  std::string PathOfFile(const std::string& root) const;
  std::ostream& StandardOutput() KX_REQUIRES(lock_);

  const LogChoice choice_;
  const bool trustsWorkingDirectory_;

  CriticalSection lock_;
  std::ostream* stream_ KX_GUARDED_BY(lock_) = nullptr;
  std::ostream* standardOutput_ KX_GUARDED_BY(lock_) = nullptr;
  std::string path_ KX_GUARDED_BY(lock_);
};

/// The log of this process. Lives in core/process_state.cpp.
TranslationLog& ProcessLog();

}  // namespace kx

#endif  // KX_LOG_TRANSLATION_LOG_H
