// Does one thing many times, for a counter of instructions: raw, and by the face.
//
//   kxxlate_bench_face_cost OPERATION TIMES

#include <cstdlib>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "KxXlate.hpp"

namespace {

using Operation = void (*)(long times);

/// Lets the compiler neither know nor drop a value.
template <class T>
void Keep(const T& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

/// The same for a pointer, in a register.
void Keep(const char* text) { asm volatile("" : : "r"(text)); }

// Hosts hold a translator for longer than a call, in memory, raw or not. Each lookup loads it from
// there, as each request would.

CKxXlate* Raw() { return CKxXlate::GetBundle("agent", "fr-CA"); }

const char* Key() {
  static const char* volatile key = "WELCOME_USER";
  return key;
}

void Nothing(long times) {
  for (; times > 0; --times) Keep(times);
}

void HitRaw(long times) {
  CKxXlate* texts = Raw();
  for (const char* key = Key(); times > 0; --times) {
    Keep<CKxXlate*>(texts);
    Keep(texts->GetText(key));
  }
  texts->Release();
}

void HitFacePointer(long times) {
  const kx::Translator texts = kx::Translator::adopt(Raw());
  for (const char* key = Key(); times > 0; --times) {
    Keep(texts);
    Keep(texts.c_text(key));
  }
}

void HitRawLength(long times) {
  CKxXlate* texts = Raw();
  for (const char* key = Key(); times > 0; --times) {
    Keep<CKxXlate*>(texts);
    const char* const text = texts->GetText(key);
    Keep(text == nullptr ? std::string_view() : std::string_view(text));
  }
  texts->Release();
}

void HitFaceLength(long times) {
  const kx::Translator texts = kx::Translator::adopt(Raw());
  for (const char* key = Key(); times > 0; --times) {
    Keep(texts);
    Keep(texts.text_or(key, std::string_view()));
  }
}

void HitRawOptional(long times) {
  CKxXlate* texts = Raw();
  for (const char* key = Key(); times > 0; --times) {
    Keep<CKxXlate*>(texts);
    const char* const text = texts->GetText(key);
    Keep(text == nullptr ? std::nullopt : std::optional<std::string_view>(text));
  }
  texts->Release();
}

void HitFaceOptional(long times) {
  const kx::Translator texts = kx::Translator::adopt(Raw());
  for (const char* key = Key(); times > 0; --times) {
    Keep(texts);
    Keep(texts.text(key));
  }
}

void AcquireRaw(long times) {
  for (; times > 0; --times) {
    CKxXlate* const texts = CKxXlate::GetBundle("agent", "fr-CA");
    Keep<CKxXlate*>(texts);
    if (texts != nullptr) texts->Release();
  }
}

void AcquireFace(long times) {
  for (; times > 0; --times) {
    const kx::Translator texts = kx::Translator::find("agent", "fr-CA");
    Keep(texts);
  }
}

void InsertRaw(long times) {
  char line[512];
  for (const char* text = "Welcome, %0 (%1)"; times > 0; --times) {
    CKxXlate::Insert(line, sizeof line - 1, text, "Ann", "3");
    Keep(line);
  }
}

void InsertRawString(long times) {
  char line[512];
  for (const char* text = "Welcome, %0 (%1)"; times > 0; --times) {
    CKxXlate::Insert(line, sizeof line - 1, text, "Ann", "3");
    const std::string copy(line);
    Keep(copy);
  }
}

void InsertFaceBuffer(long times) {
  char line[512];
  for (const char* text = "Welcome, %0 (%1)"; times > 0; --times) {
    Keep(kx::insert_into(line, text, "Ann", "3"));
  }
}

void InsertFaceString(long times) {
  for (const char* text = "Welcome, %0 (%1)"; times > 0; --times) {
    Keep(kx::insert(text, "Ann", "3"));
  }
}

const std::map<std::string, Operation> kOperations = {
    {"nothing", Nothing},
    {"hit.raw", HitRaw},
    {"hit.face", HitFacePointer},
    {"length.raw", HitRawLength},
    {"length.face", HitFaceLength},
    {"optional.raw", HitRawOptional},
    {"optional.face", HitFaceOptional},
    {"acquire.raw", AcquireRaw},
    {"acquire.face", AcquireFace},
    {"insert_buffer.raw", InsertRaw},
    {"insert_buffer.face", InsertFaceBuffer},
    {"insert_string.raw", InsertRawString},
    {"insert_string.face", InsertFaceString},
};

}  // namespace

int main(int count, char** values) {
  const auto operation = kOperations.find(count == 3 ? values[1] : "");
  if (operation == kOperations.end()) {
    for (const auto& [name, unused] : kOperations) std::cout << name << '\n';
    return 2;
  }
  operation->second(std::strtol(values[2], nullptr, 10));
  return 0;
}
