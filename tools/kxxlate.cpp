// kxxlate: the library on the command line.
//
// Exit code 0: found; 1: not found; 2: could not run. One line on standard error says why.

#include <CLI/CLI.hpp>
#include <cstring>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "bundle_listing.h"

namespace {

enum ExitCode { kFound = 0, kNotFound = 1, kCouldNotRun = 2 };

struct Request {
  std::string resources;
  std::string bundle;
  std::string locale;
  std::string key;
  std::vector<std::string> arguments;
};

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Translator = std::unique_ptr<CKxXlate, ReleaseTranslator>;

ExitCode Fail(ExitCode code, const std::string& reason) {
  std::cerr << "kxxlate: " << reason << '\n';
  return code;
}

ExitCode NoBundle(const Request& request) {
  return Fail(kNotFound,
              "no bundle \"" + request.bundle + "\" for locale \"" + request.locale + '"');
}

Translator FindTranslator(const Request& request) {
  return Translator(CKxXlate::GetBundle(request.bundle.c_str(), request.locale.c_str()));
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

ExitCode Get(const Request& request) {
  const Translator translator = FindTranslator(request);
  if (translator == nullptr) return NoBundle(request);
  const char* text = translator->GetText(request.key.c_str());
  if (text == nullptr) {
    return Fail(kNotFound, "no key \"" + request.key + "\" in bundle \"" + request.bundle +
                               "\" for locale \"" + request.locale + '"');
  }
  std::cout << WithArguments(text, request.arguments) << '\n';
  return kFound;
}

void PrintValue(const char* name, const char* value) {
  std::cout << name << (value == nullptr ? "(none)" : value) << '\n';
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
  if (listing.empty()) return Fail(kNotFound, "no bundles found");
  for (const auto& [bundle, locales] : listing) {
    std::cout << bundle << ':';
    for (const std::string& locale : locales) {
      std::cout << ' ' << (locale.empty() ? "(default)" : locale);
    }
    std::cout << '\n';
  }
  return kFound;
}

using Command = ExitCode (*)(const Request&);

/// The command that the arguments ask for; fills `request`. Throws CLI::ParseError.
Command ParseArguments(CLI::App& app, int count, char** values, Request& request) {
  app.require_subcommand(1);
  app.add_option("--resources", request.resources,
                 "Directory of the bundle files (otherwise the library searches for one)");

  CLI::App* get = app.add_subcommand("get", "Print a text with the arguments inserted");
  CLI::App* info = app.add_subcommand("info", "Print what a translator says of itself");
  CLI::App* bundles = app.add_subcommand("bundles", "List the bundles and their locales");
  for (CLI::App* command : {get, info}) {
    command->add_option("BUNDLE", request.bundle, "Name of the bundle")->required();
    command->add_option("LOCALE", request.locale, "Such as fr or fr-CA; \"\" for the default")
        ->required();
  }
  get->add_option("KEY", request.key, "Key of the text")->required();
  get->add_option("ARGUMENT", request.arguments, "Values for the markers; after -- also -1");
  for (CLI::App* command : {get, info, bundles}) command->fallthrough();

  app.parse(count, values);
  return get->parsed() ? Get : info->parsed() ? Info : Bundles;
}

ExitCode Run(int count, char** values) {
  CLI::App app("Texts of KxXlate catalogues", "kxxlate");
  Request request;
  try {
    const Command command = ParseArguments(app, count, values, request);
    if (!request.resources.empty()) {
      if (!IsDirectory(request.resources)) {
        return Fail(kCouldNotRun, "not a directory: " + request.resources);
      }
      CKxXlate::SetResourceDirectory(request.resources.c_str());
    }
    return command(request);
  } catch (const CLI::Success& help) {
    app.exit(help);
    return kFound;
  } catch (const CLI::ParseError& error) {
    return Fail(kCouldNotRun, error.what());
  }
}

}  // namespace

int main(int count, char** values) {
  try {
    const ExitCode code = Run(count, values);
    std::cout.flush();
    return std::cout ? code : Fail(kCouldNotRun, "cannot write to standard output");
  } catch (const std::exception& error) {
    return Fail(kCouldNotRun, error.what());
  }
}
