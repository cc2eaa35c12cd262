// A host as Microsoft's compiler makes it: uses everything that such hosts may, and writes what it
// gets, which run.sh compares.

#include <CKxXlate.h>
#include <Xlate.h>

#include <cstdarg>
#include <cstdio>

#include "lines.h"

// The places at which the library looks.
static_assert(sizeof(KxSize) == 4 && sizeof(CKxXlate) == 8);
static_assert(sizeof(CKxString) == 32 && sizeof(CKxText) == 40 && sizeof(Xlate) == 168);
static_assert(__builtin_offsetof(Xlate, argCount) == 8);
static_assert(__builtin_offsetof(Xlate, args) == 16);
static_assert(__builtin_offsetof(Xlate, output) == 48);
static_assert(__builtin_offsetof(Xlate, bundleName) == 88);
static_assert(__builtin_offsetof(Xlate, locale) == 120);
static_assert(__builtin_offsetof(Xlate, showKeys) == 160);
static_assert(__builtin_offsetof(Xlate, resolved) == 161);
static_assert(__builtin_offsetof(Xlate, useAdminLocale) == 162);

namespace {

void WriteSlots(CKxXlate* translator) {
  GuardedBuffer copy;
  Line("2", translator->GetName());
  Line("3", translator->GetLanguageCode());
  Line("4", translator->GetCountryCode());
  Line("5", translator->GetLongName());
  Line("6", translator->GetCharset());
  Number("7", translator->GetId());
  Line("8", translator->GetImageDirectory());
  Line("9", translator->GetDirection());
  Line("10", translator->GetPromptSuffix());
  Line("11", translator->GetDirectory("help"));
  copy.Line("12", translator->GetDirectory(copy.Data(), copy.Size(), "help"));
  Line("13", translator->GetText("K"));
  copy.Line("14", translator->GetText(copy.Data(), copy.Size(), "K", "other"));
  copy.Line("14 absent", translator->GetText(copy.Data(), copy.Size(), "no", "other"));
  Line("15", translator->GetLabel("B"));
  copy.Line("16", translator->GetLabel(copy.Data(), copy.Size(), "B"));
  copy.Line("17", translator->GetPrompt(copy.Data(), copy.Size(), "K", "other"));
  translator->AddRef();   // 1
  translator->Release();  // 0
  Line("2 after 1 and 0", translator->GetName());
}

void WriteInsertions() {
  GuardedBuffer line;
  CKxXlate::Insert(line.Data(), line.Size() - 1, "%1 of %0", "ten", "three");
  line.Line("Insert");
  CKxXlate::Insert(line.Data(), line.Size() - 1, "%12%11%10%9%8%7%6%5%4%3%2%1%0", "a", "b", "c",
                   "d", "e", "f", "g", "h", "i", "j", "k", "l", "m");
  line.Line("Insert 13");
  const char* arguments[] = {"a", nullptr, "c"};
  CKxXlate::FormatMessageA(line.Data(), line.Size() - 1, "{2}{0}", 3, arguments);
  line.Line("FormatMessageA");
}

void InsertTyped(char* buffer, KxSize size, const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  CKxXlate::InsertVariableVA(buffer, size, format, values);
  va_end(values);
}

// More values than there are registers for, of each kind.
void WriteVariables() {
  GuardedBuffer line;
  CKxXlate::InsertVariable(line.Data(), line.Size(), "%s:6 %f:5 %x:4 %d:3 %s:2 %f:1", "one", 2.5,
                           0xFFFFFFFCU, -4, "five", -6.25);
  line.Line("InsertVariable");
  InsertTyped(line.Data(), line.Size(), "%.2f:5 %lld:4 %s:3 %5.1f:2 %d:1 %c:6", -1, 2.5, "three",
              0x400000000LL, 5.125, 'x');
  line.Line("InsertVariableVA");
}

void WriteMessages() {
  Xlate message;
  message.bundleName = "agent";
  message.locale.Set("fr-CA");
  message.args.assign("Ann\0\xC3\x89va", 8);
  message.argCount = 2;
  Line("Format", CKxXlate::Format(&message, "LONG"));
  message.showKeys = true;
  Line("Format, keys", CKxXlate::Format(&message, "K"));
  Line("Format, absent", CKxXlate::Format(&message, "%1 is no key"));
  Line("output", message.output.text.c_str());
  Number("output's size", message.output.text.size());
  Number("resolved", message.resolved ? 1 : 0);
  ReleaseTranslator(message);
  Number("resolved, released", message.resolved ? 1 : 0);
}

void WriteTranslators() {
  CKxXlate* const properties = CKxXlate::GetBundle("agent", "fr-CA");
  WriteSlots(properties);
  CKxXlate* const language = CKxXlate::GetLanguage("disk", "fr", "ca");
  WriteSlots(language);
  Number("assigned", &(*properties = *language) == properties ? 1 : 0);
  Line("after it", properties->GetName());
  properties->Release();
  language->Release();
  Number("no name", CKxXlate::GetBundle("", "fr") == nullptr ? 1 : 0);
}

}  // namespace

int main() {
  Line("getProductVersion", getProductVersion());
  Number("SetResourceDirectory", CKxXlate::SetResourceDirectory("resources") ? 1 : 0);
  Number("SetResourceDirectory again", CKxXlate::SetResourceDirectory("resources") ? 1 : 0);
  WriteTranslators();
  WriteInsertions();
  WriteVariables();
  WriteMessages();
  CKxXlate::FreeCache();
  return 0;
}
