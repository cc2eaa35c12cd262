#ifndef KX_LANG_LANG_LOADER_H
#define KX_LANG_LANG_LOADER_H

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "lang/language_contents.h"
#include "lang/language_paths.h"
#include "log/problem_sink.h"
#include "platform/file_handle.h"
#include "platform/file_status.h"

namespace kx {

/// A file that a language may be read from.
struct LangCandidate {
  std::string path;     ///< also when there is no such file; empty when it was not looked for
  KxFileStatus status;  ///< before it was opened; a time of 0 when it was not read
  /// It exists, but could not be opened or read to its end, for a reason that passes.
  bool isUnsettled = false;

  /// Whether the file that was read has changed or vanished since.
  bool IsStale() const;
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

/// Which file a candidate is: see LangFileName.
struct LangFile {
  const std::string& language;
  const std::string& country;
  const std::string& name;
};

/// Whether a language, region or component's name can be a part of a path without leading anywhere
/// but below the directory that it is joined to: see KxIsPlainComponent. "/" and "\" both separate
/// its components.
///
/// To count how often ".." leads up and other names down would not do: a name may be that of a link
/// to another place, beside which ".." then leads.
bool StaysInDirectory(std::string_view part);

/// A candidate that has been looked for and, when it is there, is open.
///
/// Looked for with one question to the system and one piece of memory, since most candidates of
/// most requests are not there.
class LangSource {
 public:
  LangSource(const LanguageContext& context, const LangFile& file);
  ~LangSource();
  LangSource(const LangSource&) = delete;
  LangSource& operator=(const LangSource&) = delete;

  /// Whether there is a regular file of that name, within the directory, that could be opened.
  bool IsOpen() const noexcept { return file_ != kNoFile; }

  /// Reads the file, which must be open, into `contents`. Once.
  void Read(InternTable& strings, ProblemSink& problems, LanguageContents& contents);

  /// What is recorded of it; that it was read only when it was.
  const LangCandidate& Candidate() const noexcept { return candidate_; }
  LangCandidate TakeCandidate() noexcept { return std::move(candidate_); }

  /// Whether it may be looked for: see StaysInDirectory.
  bool IsWithin() const noexcept { return isWithin_; }

  /// The status of whatever has the name; as it is made when nothing has.
  const KxFileStatus& Seen() const noexcept { return seen_; }

 private:
  const std::size_t directorySize_;
  LangCandidate candidate_;
  bool isWithin_ = false;
  KxFileStatus seen_;
  FileHandle file_ = kNoFile;
};

/// Writes problems to the log.
class LogSink final : public ProblemSink {
 public:
  explicit LogSink(const LanguageContext& context) : log_(context.log), root_(context.paths.root) {}
  void Line(const std::string& text) override;

 private:
  TranslationLog& log_;
  const std::string& root_;
};

/// Reads one candidate into `contents` and records it in `candidate`.
///
/// @return whether there is a regular file of that name, within the directory, that can be opened
bool LoadLangFile(const LanguageContext& context, const LangFile& file, LanguageContents& contents,
                  LangCandidate& candidate);

}  // namespace kx

#endif  // KX_LANG_LANG_LOADER_H
