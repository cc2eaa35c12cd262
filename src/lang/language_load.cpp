#include "lang/language_load.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "lang/lang_problems.h"
#include "lang/shared_languages.h"
#include "log/problem_sink.h"
#include "log/translation_log.h"
#include "platform/given_text.h"
#include "platform/utf8_text.h"

namespace kx {
namespace {

constexpr char kDefaultCharset[] = "ISO-8859-1";

constexpr char kEnglish[] = "EN";

std::string DisplayName(const std::string& languageCode, const char* country, const char* name) {
  std::string displayName = languageCode;
  if (IsGiven(country)) displayName.append("-").append(country);
  return displayName.append(" (").append(name).append(")");
}

// A file with more is no catalogue, and is read for each region: its lines are not kept.
constexpr std::size_t kMostSharedProblems = 1000;

/// Notes what it passes on, up to one line more than are shared.
class NotingSink final : public ProblemSink {
 public:
  NotingSink(ProblemSink& next, std::vector<std::string>& noted) : next_(next), noted_(noted) {}
  void Line(const std::string& text) override {
    if (noted_.size() <= kMostSharedProblems) noted_.push_back(text);
    next_.Line(text);
  }

 private:
  ProblemSink& next_;
  std::vector<std::string>& noted_;
};

void SetDefaults(LanguageContents& contents) {
  if (contents.charset.empty()) contents.charset = kDefaultCharset;
}

/// Reads what is there of a language's own files, and records both. One file is open at a time: a
/// host may have hardly any left to open. Null when none is there.
std::shared_ptr<SharedLanguage> ReadOwnFiles(const LanguageContext& context,
                                             const LanguageNames& names,
                                             SharedLanguage::Files& files) {
  std::shared_ptr<SharedLanguage> read;
  LogSink log(context);
  const std::string none;
  auto file = files.begin();
  for (const std::string* const name : {&none, &names.name}) {
    LangSource source(context, {names.languageCode, none, *name});
    if (source.IsOpen()) {
      if (read == nullptr) read = std::make_shared<SharedLanguage>();
      NotingSink problems(log, read->problems);
      source.Read(context.strings, problems, read->contents);
    }
    *file++ = {source.TakeCandidate(), source.IsWithin(), source.Seen()};
  }
  return read;
}

void Share(const std::shared_ptr<const SharedLanguage>& language, LoadedLanguage& loaded) {
  loaded.contents = SharedContents(language, &language->contents);
  loaded.anyFileFound = true;
  auto candidate = loaded.candidates.begin();
  for (const SharedLanguage::File& file : language->files) *candidate++ = file.candidate;
}

void LoadOwnFiles(const LanguageContext& context, const LanguageNames& names,
                  LoadedLanguage& loaded) {
  if (context.shared != nullptr) {
    if (auto shared = context.shared->FindUnchanged({names.languageCode, names.name})) {
      LogSink log(context);
      for (const std::string& line : shared->problems) log.Line(line);
      return Share(shared, loaded);
    }
  }
  SharedLanguage::Files files;
  if (const auto read = ReadOwnFiles(context, names, files)) {
    SetDefaults(read->contents);
    read->files = std::move(files);
    const bool isSettled =
        std::none_of(read->files.begin(), read->files.end(),
                     [](const SharedLanguage::File& file) { return file.candidate.isUnsettled; });
    if (read->problems.size() > kMostSharedProblems) {
      read->problems = {};
    } else if (context.shared != nullptr && isSettled) {
      context.shared->Remember({names.languageCode, names.name}, read);
    }
    return Share(read, loaded);
  }
  auto candidate = loaded.candidates.begin();
  for (SharedLanguage::File& file : files) *candidate++ = std::move(file.candidate);
}

/// The language's own files and those of the region, merged.
void LoadAllFiles(const LanguageContext& context, const LanguageNames& names,
                  LoadedLanguage& loaded) {
  const auto contents = std::make_shared<LanguageContents>();
  const std::string none;
  auto candidate = loaded.candidates.begin();
  // Each later file overrides the ones before it, so the most specific comes last.
  for (const std::string* const country : {&none, &names.countryCode}) {
    for (const std::string* const name : {&none, &names.name}) {
      LangCandidate& next = *candidate++;
      // One that could not be opened a moment ago is not waited for twice.
      if (next.isUnsettled) continue;
      loaded.anyFileFound |=
          LoadLangFile(context, {names.languageCode, *country, *name}, *contents, next);
    }
  }
  SetDefaults(*contents);
  if (loaded.anyFileFound) loaded.contents = contents;
}

/// Looks for the region's own files, most of which are not there, and records them up to the first
/// one that is there or may be found at a later request; false when there is none.
bool IsAnythingRegional(const LanguageContext& context, const LanguageNames& names,
                        LoadedLanguage& loaded) {
  const std::string none;
  auto candidate = loaded.candidates.begin() + kOwnCandidates;
  for (const std::string* const name : {&none, &names.name}) {
    LangSource source(context, {names.languageCode, names.countryCode, *name});
    const bool isAny = source.IsOpen() || source.Candidate().isUnsettled;
    *candidate++ = source.TakeCandidate();
    if (isAny) return true;
  }
  return false;
}

void LoadFiles(const LanguageContext& context, const LanguageNames& names, LoadedLanguage& loaded) {
  const bool isRegion = !names.countryCode.empty();
  if (isRegion && IsAnythingRegional(context, names, loaded)) {
    return LoadAllFiles(context, names, loaded);
  }
  LoadOwnFiles(context, names, loaded);
}

}  // namespace

LanguageNames::LanguageNames(const char* givenName, const char* language, const char* country)
    : name(givenName),
      languageCode(CKxUTF8ToUpper(language).Text()),
      displayName(DisplayName(languageCode, country, givenName)) {
  if (IsGiven(country)) countryCode = CKxUTF8ToUpper(country).Text();
}

SharedContents EmptyContents() {
  const auto contents = std::make_shared<LanguageContents>();
  SetDefaults(*contents);
  return contents;
}

LoadedLanguage LoadLanguage(const LanguageContext& context, const LanguageNames& names) {
  LoadedLanguage loaded;
  LoadFiles(context, names, loaded);
  // Nor is it known of a file that cannot be opened for the moment that there is none.
  const bool isSettled = std::none_of(loaded.candidates.begin(), loaded.candidates.end(),
                                      [](const LangCandidate& each) { return each.isUnsettled; });
  if (!loaded.anyFileFound && isSettled && names.languageCode != kEnglish) {
    context.log.WriteLine(context.paths.root, {NoFilesLine(names.displayName)});
  }
  return loaded;
}

}  // namespace kx
