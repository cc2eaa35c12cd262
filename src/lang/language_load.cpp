#include "lang/language_load.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
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

/// The two files of a language, or of a language in a country.
class Sources {
 public:
  Sources(const LanguageContext& context, const LanguageNames& names, const std::string& country)
      : common_(context, {names.languageCode, country, std::string()}),
        named_(context, {names.languageCode, country, names.name}) {}

  std::array<LangSource*, kOwnCandidates> All() { return {&common_, &named_}; }

  bool IsAnyOpen() const { return common_.IsOpen() || named_.IsOpen(); }

  /// Whether there is anything to read at a later request.
  bool IsAnyUnsettled() const {
    return common_.Candidate().isUnsettled || named_.Candidate().isUnsettled;
  }

 private:
  LangSource common_;
  LangSource named_;
};

/// Notes what it passes on.
class NotingSink final : public ProblemSink {
 public:
  NotingSink(ProblemSink& next, std::vector<std::string>& noted) : next_(next), noted_(noted) {}
  void Line(const std::string& text) override {
    noted_.push_back(text);
    next_.Line(text);
  }

 private:
  ProblemSink& next_;
  std::vector<std::string>& noted_;
};

void SetDefaults(LanguageContents& contents) {
  if (contents.charset.empty()) contents.charset = kDefaultCharset;
}

std::shared_ptr<const SharedLanguage> ReadOwnFiles(const LanguageContext& context,
                                                   const LanguageNames& names, Sources& sources) {
  const auto read = std::make_shared<SharedLanguage>();
  LogSink log(context);
  NotingSink problems(log, read->problems);
  auto file = read->files.begin();
  for (LangSource* const source : sources.All()) {
    if (source->IsOpen()) source->Read(context.strings, problems, read->contents);
    *file++ = {source->Candidate(), source->IsWithin(), source->Seen()};
  }
  SetDefaults(read->contents);
  if (context.shared != nullptr && !sources.IsAnyUnsettled()) {
    context.shared->Remember({names.languageCode, names.name}, read);
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
  Sources sources(context, names, std::string());
  if (sources.IsAnyOpen()) return Share(ReadOwnFiles(context, names, sources), loaded);
  auto candidate = loaded.candidates.begin();
  for (LangSource* const source : sources.All()) *candidate++ = source->TakeCandidate();
}

/// The language's own files and those of the region, merged.
void LoadAllFiles(const LanguageContext& context, const LanguageNames& names, Sources& regional,
                  LoadedLanguage& loaded) {
  const auto contents = std::make_shared<LanguageContents>();
  const std::string none;
  auto candidate = loaded.candidates.begin();
  // Each later file overrides the ones before it, so the most specific comes last.
  for (const std::string* const name : {&none, &names.name}) {
    loaded.anyFileFound |=
        LoadLangFile(context, {names.languageCode, none, *name}, *contents, *candidate++);
  }
  LogSink problems(context);
  for (LangSource* const source : regional.All()) {
    loaded.anyFileFound |= source->IsOpen();
    if (source->IsOpen()) source->Read(context.strings, problems, *contents);
    *candidate++ = source->TakeCandidate();
  }
  SetDefaults(*contents);
  if (loaded.anyFileFound) loaded.contents = contents;
}

void LoadFiles(const LanguageContext& context, const LanguageNames& names, LoadedLanguage& loaded) {
  std::optional<Sources> regional;
  if (!names.countryCode.empty()) regional.emplace(context, names, names.countryCode);
  if (regional && (regional->IsAnyOpen() || regional->IsAnyUnsettled())) {
    return LoadAllFiles(context, names, *regional, loaded);
  }
  LoadOwnFiles(context, names, loaded);
  if (!regional) return;
  auto candidate = loaded.candidates.begin() + kOwnCandidates;
  for (LangSource* const source : regional->All()) *candidate++ = source->TakeCandidate();
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
