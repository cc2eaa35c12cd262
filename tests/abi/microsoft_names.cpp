// Not built: check_microsoft_names.py asks a compiler by which names a host of Microsoft's would
// link all that the header has.

#include "CKxXlate.h"

void CallAll(char* buffer, KxSize size, const char* text, const char** texts,
             const std::string* strings, std::va_list values, Xlate* message) {
  CKxXlate::GetBundle(text, text);
  CKxXlate::GetLanguage(text, text, text);
  CKxXlate::FreeCache();
  CKxXlate::Insert(buffer, size, text);
  CKxXlate::FormatMessageA(buffer, size, text, 0, texts);
  CKxXlate::FormatMessageA(buffer, size, text, 0, strings);
  CKxXlate::Format(message, text);
  CKxXlate::InsertVariable(buffer, size, text, 1, 2.0);
  CKxXlate::InsertVariableVA(buffer, size, text, values);
  CKxXlate::SetResourceDirectory(text);
  getProductVersion();
}

/// Assignment is public; the rest is what only a class derived from it needs.
void Assign(CKxXlate& translator, const CKxXlate& other) { translator = other; }

class Derived : public CKxXlate {
 public:
  Derived();
  Derived(const Derived& other);
  ~Derived() override;
};

Derived::Derived() = default;
Derived::Derived(const Derived& other) = default;
Derived::~Derived() = default;
