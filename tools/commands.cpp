#include "commands.h"

#include <cstddef>
#include <cstring>
#include <iostream>
#include <memory>
#include <utility>

#include "CKxXlate.h"
#include "Xlate.h"
#include "bundle_listing.h"

namespace {

constexpr std::size_t kMostFormatArguments = 16;  // CKxXlate::Format uses no more

struct GiveReferenceBack {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Translator = std::unique_ptr<CKxXlate, GiveReferenceBack>;

/// Whether no file stands behind the translator: the library answers an empty English one for any
/// name. (A language file has at least one line of header.)
bool IsEmpty(CKxXlate& translator) {
  return translator.GetId() != 0 && translator.GetLongName() == nullptr &&
         translator.GetImageDirectory() == nullptr && translator.GetPromptSuffix() == nullptr &&
         *translator.GetDirection() == '\0' &&
         std::strcmp(translator.GetCharset(), "ISO-8859-1") == 0;
}

/// The translator that was asked for; null when there are no files for it.
Translator FindTranslator(const Request& request) {
  Translator found(CKxXlate::GetBundle(request.bundle.c_str(), request.locale.c_str()));
  return found == nullptr || IsEmpty(*found) ? nullptr : std::move(found);
}

/// How the request calls the translator that it did not find, or the one that it found.
std::string NameOf(const Request& request) {
  return "bundle \"" + request.bundle + "\" for locale \"" + request.locale + '"';
}

ExitCode NoBundle(const Request& request) { return Fail(kNotFound, "no " + NameOf(request)); }

/// Prints what a look-up answered.
ExitCode PrintFound(const Request& request, const char* kind, const char* found) {
  if (found == nullptr) {
    return Fail(kNotFound,
                std::string("no ") + kind + " \"" + request.key + "\" in " + NameOf(request));
  }
  std::cout << found << '\n';
  return kFound;
}

std::string WithArguments(const char* text, const std::vector<std::string>& arguments) {
  std::vector<const char*> pointers;
  pointers.reserve(arguments.size());
  for (const std::string& argument : arguments) pointers.push_back(argument.c_str());
  // A result that does not fit is cut, not refused: one that fills its buffer may be a cut one.
  for (std::size_t size = 256;; size *= 2) {
    std::string buffer(size + 1, '\0');
    CKxXlate::FormatMessageA(buffer.data(), static_cast<KxSize>(size), text, pointers.size(),
                             pointers.data());
    const std::size_t length = std::strlen(buffer.c_str());
    if (length + 1 < size) return buffer.substr(0, length);
  }
}

void PrintValue(const char* name, const char* value) {
  std::cout << name << (value == nullptr ? "(none)" : value) << '\n';
}

}  // namespace

ExitCode Fail(ExitCode code, const std::string& reason) {
  std::cerr << "kxxlate: " << reason << '\n';
  return code;
}

ExitCode Get(const Request& request) {
  const Translator translator = FindTranslator(request);
  if (translator == nullptr) return NoBundle(request);
  const char* text = translator->GetText(request.key.c_str());
  if (text == nullptr) return PrintFound(request, "key", text);
  return PrintFound(request, "key", WithArguments(text, request.arguments).c_str());
}

ExitCode Format(const Request& request) {
  if (request.arguments.size() > kMostFormatArguments) {
    return Fail(kCouldNotRun,
                "a message takes at most " + std::to_string(kMostFormatArguments) + " arguments");
  }
  Xlate message;
  message.bundleName = request.bundle;
  message.locale.Set(request.locale.c_str());
  message.showKeys = request.showKey;
  message.useAdminLocale = request.adminLocale;
  for (const std::string& argument : request.arguments) message.args += argument + '\0';
  message.argCount = request.arguments.size();
  std::cout << CKxXlate::Format(&message, request.key.c_str()) << '\n';
  if (message.translator == nullptr) return NoBundle(request);
  const bool found = message.translator->GetText(request.key.c_str()) != nullptr;
  ReleaseTranslator(message);
  return found ? kFound : PrintFound(request, "key", nullptr);
}

ExitCode Label(const Request& request) {
  const Translator translator = FindTranslator(request);
  if (translator == nullptr) return NoBundle(request);
  return PrintFound(request, "label", translator->GetLabel(request.key.c_str()));
}

ExitCode Prompt(const Request& request) {
  const Translator translator = FindTranslator(request);
  if (translator == nullptr) return NoBundle(request);
  const char* text = translator->GetText(request.key.c_str());
  const char* suffix = translator->GetPromptSuffix();
  const std::size_t room =
      (text == nullptr ? 0 : std::strlen(text)) + (suffix == nullptr ? 0 : std::strlen(suffix)) + 1;
  std::string prompt(room, '\0');
  const bool found =
      translator->GetPrompt(prompt.data(), static_cast<KxSize>(room), request.key.c_str(), nullptr);
  return PrintFound(request, "prompt", found ? prompt.c_str() : nullptr);
}

ExitCode Directory(const Request& request) {
  const Translator translator = FindTranslator(request);
  if (translator == nullptr) return NoBundle(request);
  return PrintFound(request, "directory", translator->GetDirectory(request.key.c_str()));
}

ExitCode Info(const Request& request) {
  const Translator translator = FindTranslator(request);
  if (translator == nullptr) return NoBundle(request);
  PrintValue("Name:            ", translator->GetName());
  PrintValue("Language:        ", translator->GetLanguageCode());
  PrintValue("Country:         ", translator->GetCountryCode());
  PrintValue("Long name:       ", translator->GetLongName());
  PrintValue("Charset:         ", translator->GetCharset());
  PrintValue("Direction:       ", translator->GetDirection());
  PrintValue("Image directory: ", translator->GetImageDirectory());
  PrintValue("Prompt suffix:   ", translator->GetPromptSuffix());
  PrintValue("Id:              ", std::to_string(translator->GetId()).c_str());
  return kFound;
}

ExitCode Bundles(const Request& request) {
  const std::string directory =
      request.resources.empty() ? FoundResourceDirectory() : request.resources;
  const BundleListing listing = ListBundles(directory);
  for (const auto& [bundle, locales] : listing.bundles) {
    std::cout << bundle << ':';
    for (const std::string& locale : locales) {
      std::cout << ' ' << (locale.empty() ? "(default)" : locale);
    }
    std::cout << '\n';
  }
  for (const UnservedFile& file : listing.unserved) {
    std::cout << "(not served) " << file.name << ": "
              << (file.servedBy.empty() ? "a bundle without a name cannot be asked for"
                                        : "its locale is served by " + file.servedBy)
              << '\n';
  }
  return listing.bundles.empty() ? Fail(kNotFound, "no bundles found") : kFound;
}
