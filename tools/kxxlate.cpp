// kxxlate: the library on the command line.
//
// Exit code 0: found; 1: not found; 2: could not run. One line on standard error says why.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "CKxXlate.h"
#include "arguments.h"
#include "bundle_listing.h"
#include "commands.h"
#include "console_output.h"

namespace {

using Command = ExitCode (*)(const Request&);

/// The commands of the tool and what they need to be told.
class CommandLine {
 public:
  CommandLine() : app_("Texts of KxXlate catalogues", "kxxlate") {
    app_.allow_windows_style_options(false);  // a value may begin with "/" on every system
    app_.require_subcommand(1);
    app_.set_version_flag("--version", std::string(getProductVersion()));
    app_.add_option("--resources", request_.resources,
                    "Directory of the catalogues (otherwise the library searches for one)");
    TakesArguments(TakesKey(Add("get", Get, "Print a text with the arguments inserted")));
    AddFormat();
    TakesKey(Add("label", Label, "Print the label of a button"));
    TakesKey(Add("prompt", Prompt, "Print a text with the language's prompt suffix"));
    TakesKey(Add("directory", Directory, "Print a directory of the language"));
    TakesBundle(Add("info", Info, "Print what a translator says of itself"));
    Add("bundles", Bundles, "List the property bundles and their locales");
  }

  /// Throws CLI::Error for what is no request, help and version included.
  void Parse(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());  // as the parser wants them
    app_.parse(std::move(arguments));
  }

  void PrintMessage(const CLI::Success& success) { app_.exit(success); }

  Command Chosen() const { return command_; }
  const Request& Asked() const { return request_; }

 private:
  CLI::App* Add(const char* name, Command command, const char* description) {
    CLI::App* added = app_.add_subcommand(name, description);
    added->fallthrough();  // the common options may also stand behind the command
    added->callback([this, command] { command_ = command; });
    return added;
  }

  CLI::App* TakesBundle(CLI::App* command) {
    command->add_option("BUNDLE", request_.bundle, "Name of the bundle or component")->required();
    command->add_option("LOCALE", request_.locale, "Such as fr or fr-CA; \"\" for the default")
        ->required();
    return command;
  }

  CLI::App* TakesKey(CLI::App* command) {
    TakesBundle(command)->add_option("KEY", request_.key, "What to look up")->required();
    return command;
  }

  CLI::App* TakesArguments(CLI::App* command) {
    command->add_option("ARGUMENT", request_.arguments, "Values for the markers; after -- also -1");
    return command;
  }

  void AddFormat() {
    CLI::App* format = Add("format", Format, "The same as hosts show it; an unknown key as itself");
    TakesArguments(TakesKey(format));
    format->add_flag("--show-key", request_.showKey, "Put the key in front");
    format->add_flag("--admin-locale", request_.adminLocale,
                     "Use the administrator's locale, if there is one, instead of LOCALE");
  }

  CLI::App app_;
  Request request_;
  Command command_ = nullptr;
};

ExitCode Run(const std::vector<std::string>& arguments) {
  CommandLine line;
  try {
    line.Parse(arguments);
  } catch (const CLI::Success& success) {
    line.PrintMessage(success);
    return kFound;
  } catch (const CLI::ParseError& error) {
    return Fail(kCouldNotRun, error.what());
  }
  const std::string& resources = line.Asked().resources;
  if (!resources.empty()) {
    if (!IsDirectory(resources)) return Fail(kCouldNotRun, "not a directory: " + resources);
    CKxXlate::SetResourceDirectory(resources.c_str());
  }
  return line.Chosen()(line.Asked());
}

}  // namespace

int main(int count, char** values) {
  try {
    const ConsoleOutput console;
    const ExitCode code = Run(Utf8Arguments(count, values));
    CKxXlate::FreeCache();
    std::cout.flush();
    return std::cout ? code : Fail(kCouldNotRun, "cannot write to standard output");
  } catch (const std::exception& error) {
    return Fail(kCouldNotRun, error.what());
  }
}
