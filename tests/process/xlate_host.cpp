// A host of the library for the process tests. Its arguments are steps, done one after another:
//
//   text BUNDLE LOCALE KEY         prints the text, by GetBundle
//   language BUNDLE LANGUAGE REGION KEY   prints the text, by GetLanguage
//   copy BUNDLE LOCALE SIZE KEY DEFAULT   prints what GetText into a buffer answers, and the buffer
//   info BUNDLE LOCALE             prints name, language and country
//   use DIRECTORY                  prints what SetResourceDirectory answers
//   keep BUNDLE LOCALE             gets a translator and keeps it
//   kept KEY                       prints a text of the one kept last
//   same BUNDLE LOCALE             prints whether GetBundle answers the one kept last again
//   release                        releases the one kept last
//   label BUNDLE LOCALE KEY        prints a label
//   prompt BUNDLE LOCALE KEY DEFAULT   prints what GetPrompt answers, and the prompt
//   directory BUNDLE LOCALE NAME   prints a directory
//   header BUNDLE LOCALE           prints name, language, country, long name, charset, image
//                                  directory, direction and prompt suffix, each followed by "|"
//   id BUNDLE LOCALE               prints the translator's identifier
//   remove FILE                    removes a file
//   set NAME VALUE                 sets a variable of its environment
//   shell COMMAND                  lets the system's shell run a command; prints whether it
//   succeeded buffer                         gives standard error a large buffer, as some runtimes
//   do vanish                         ends the process without anything that an orderly end does
//   threads COUNT BUNDLE LOCALE KEY   COUNT threads, started together, look the text up; prints the
//                                  number of different translators they got
//   misses COUNT BUNDLE LOCALE     COUNT threads ask the one translator for the same 50 absent keys
//   locales COUNT BUNDLE           COUNT threads ask for many locales; prints "done"
//   churn COUNT BUNDLE LOCALE KEY FILE   COUNT threads look up a present and absent keys while
//                                  others change the file's time and call FreeCache; prints "done"
//
// Every host knows some more: see host_steps.h.
//
// "(null)" as an argument passes a null pointer; a null answer is printed as "(null)". Kept
// translators are released at the end.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "process/host_steps.h"
#include "support/set_environment.h"

namespace {

class Host {
 public:
  ~Host() {
    for (CKxXlate* translator : kept_) {
      if (translator != nullptr) translator->Release();
    }
    // Else the leak checker sees the languages that the cache leaves behind at the end.
    CKxXlate::FreeCache();
  }

  /// The steps; they refer to this object.
  HostSteps Steps();

 private:
  static void PrintText(CKxXlate* translator, const std::string& key) {
    Print(translator == nullptr ? nullptr : translator->GetText(Pointer(key)));
    if (translator != nullptr) translator->Release();
  }

  static void PrintInfo(CKxXlate* translator) {
    if (translator == nullptr) return Print(nullptr);
    std::cout << translator->GetName() << '|' << translator->GetLanguageCode() << '|'
              << translator->GetCountryCode() << std::endl;
    translator->Release();
  }

  void Keep(const Arguments& a) {
    kept_.push_back(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
  }

  /// Ends the program when nothing is kept.
  CKxXlate* LastKept() const { return kept_.at(kept_.size() - 1); }

  void ReleaseLast() {
    LastKept()->Release();
    kept_.pop_back();
  }

  static void PrintLabel(const Arguments& a) {
    const Held translator(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
    Print(translator->GetLabel(Pointer(a[2])));
  }

  static void PrintPrompt(const Arguments& a) {
    const Held translator(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
    char prompt[256];
    const bool found = translator->GetPrompt(prompt, sizeof prompt, Pointer(a[2]), Pointer(a[3]));
    std::cout << (found ? "true " : "false ") << prompt << std::endl;
  }

  static void PrintCopy(const Arguments& a) {
    const Held translator(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
    std::vector<char> buffer(std::stoul(a[2]), 'Z');
    const bool found = translator->GetText(buffer.data(), static_cast<KxSize>(buffer.size()),
                                           Pointer(a[3]), Pointer(a[4]));
    std::cout << (found ? "true " : "false ") << buffer.data() << std::endl;
  }

  static void PrintDirectory(const Arguments& a) {
    const Held translator(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
    Print(translator->GetDirectory(Pointer(a[2])));
  }

  static void PrintHeader(const Arguments& a) {
    const Held translator(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
    for (const char* value :
         {translator->GetName(), translator->GetLanguageCode(), translator->GetCountryCode(),
          translator->GetLongName(), translator->GetCharset(), translator->GetImageDirectory(),
          translator->GetDirection(), translator->GetPromptSuffix()}) {
      std::cout << (value == nullptr ? "(null)" : value) << '|';
    }
    std::cout << std::endl;
  }

  static void PrintId(const Arguments& a) {
    const Held translator(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])));
    std::cout << translator->GetId() << std::endl;
  }

  void PrintSame(const Arguments& a) {
    CKxXlate* translator = CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1]));
    PrintTruth(translator == LastKept());
    if (translator != nullptr) translator->Release();
  }

  std::vector<CKxXlate*> kept_;
};

HostSteps Host::Steps() {
  return {
      {"text",
       {3,
        [](const auto& a) { PrintText(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1])), a[2]); }}},
      {"language",
       {4,
        [](const auto& a) {
          PrintText(CKxXlate::GetLanguage(Pointer(a[0]), Pointer(a[1]), Pointer(a[2])), a[3]);
        }}},
      {"info",
       {2, [](const auto& a) { PrintInfo(CKxXlate::GetBundle(Pointer(a[0]), Pointer(a[1]))); }}},
      {"use",
       {1, [](const auto& a) { PrintTruth(CKxXlate::SetResourceDirectory(Pointer(a[0]))); }}},
      {"keep", {2, [this](const auto& a) { Keep(a); }}},
      {"kept", {1, [this](const auto& a) { Print(LastKept()->GetText(Pointer(a[0]))); }}},
      {"same", {2, [this](const auto& a) { PrintSame(a); }}},
      {"release", {0, [this](const auto&) { ReleaseLast(); }}},
      {"label", {3, [](const auto& a) { PrintLabel(a); }}},
      {"prompt", {4, [](const auto& a) { PrintPrompt(a); }}},
      {"copy", {5, [](const auto& a) { PrintCopy(a); }}},
      {"directory", {3, [](const auto& a) { PrintDirectory(a); }}},
      {"header", {2, [](const auto& a) { PrintHeader(a); }}},
      {"id", {2, [](const auto& a) { PrintId(a); }}},
      {"remove", {1, [](const auto& a) { std::filesystem::remove(HostPath(a[0])); }}},
      {"set", {2, [](const auto& a) { SetVariable(a[0], a[1]); }}},
      {"shell", {1, [](const auto& a) { PrintTruth(std::system(a[0].c_str()) == 0); }}},
      {"buffer", {0, [](const auto&) { std::setvbuf(stderr, nullptr, _IOFBF, 1U << 16U); }}},
      {"vanish", {0, [](const auto&) { std::_Exit(0); }}},
      {"threads", {4, [](const auto& a) { LookUpInThreads(a); }}},
      {"misses", {3, [](const auto& a) { MissInThreads(a); }}},
      {"locales", {2, [](const auto& a) { AskForLocalesInThreads(a); }}},
      {"churn", {5, [](const auto& a) { ChurnInThreads(a); }}},
  };
}

}  // namespace

int main(int count, char** values) {
  Host host;
  return TakeSteps(host.Steps(), count, values);
}
