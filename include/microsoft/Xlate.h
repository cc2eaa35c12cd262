#ifndef XLATE_H
#define XLATE_H

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include "CKxXlate.h"

// For hosts of Microsoft's compiler, in place of the header of this name that other hosts include:
// the same message object, with strings and a table as the library, made by another compiler, looks
// at them. Source that uses it in the ways below is the same for both.

// The library's own name of CKxXlate::Format; only what includes this header may link it.
#pragma comment( \
    linker,      \
    "/alternatename:__imp_?Format@CKxXlate@@SAPEBDPEAUXlate@@PEBD@Z=__imp__ZN8CKxXlate6FormatEP5XlatePKc")

/// A text in the host's memory, which the library reads and never changes: as much of a std::string
/// as messages need. Null texts count as empty, and any text may be a part of this one.
class CKxString {
 public:
  CKxString() = default;
  CKxString(const char* text) { *this = text; }
  CKxString(const std::string& text) { *this = text; }
  CKxString(const CKxString& other) { *this = other; }
  CKxString(CKxString&& other) noexcept { swap(other); }
  ~CKxString() { delete[] block_; }

  CKxString& operator=(const char* text) { return assign(text, SizeOf(text)); }
  CKxString& operator=(const std::string& text) { return assign(text.data(), text.size()); }
  CKxString& operator=(const CKxString& other) { return assign(other.text_, other.size_); }
  CKxString& operator=(CKxString&& other) noexcept {
    swap(other);
    return *this;
  }

  CKxString& assign(const char* text, std::size_t size) { return PutAt(0, text, size); }
  CKxString& append(const char* text, std::size_t size) { return PutAt(size_, text, size); }
  CKxString& append(const char* text) { return append(text, SizeOf(text)); }
  CKxString& append(const std::string& text) { return append(text.data(), text.size()); }
  CKxString& operator+=(const char* text) { return append(text); }
  CKxString& operator+=(const std::string& text) { return append(text); }
  void push_back(char byte) { append(&byte, 1); }
  void clear() { assign("", 0); }

  void swap(CKxString& other) noexcept {
    std::swap(text_, other.text_);
    std::swap(size_, other.size_);
    std::swap(block_, other.block_);
    std::swap(capacity_, other.capacity_);
  }

  const char* c_str() const { return text_; }
  const char* data() const { return text_; }
  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  operator std::string() const { return std::string(text_, size_); }

 private:
  static std::size_t SizeOf(const char* text) { return text == nullptr ? 0 : std::strlen(text); }

  /// Makes the text end with this one, from the place on.
  CKxString& PutAt(std::size_t place, const char* text, std::size_t size) {
    const std::size_t whole = place + size;
    char* old = nullptr;
    if (whole > capacity_ || block_ == nullptr) {
      const std::size_t room = whole > 2 * capacity_ ? whole : 2 * capacity_;
      char* const block = new char[room + 1];
      std::memcpy(block, text_, place);
      old = block_;
      text_ = block_ = block;
      capacity_ = room;
    }
    if (size != 0) std::memmove(block_ + place, text, size);
    block_[whole] = '\0';
    size_ = whole;
    delete[] old;
    return *this;
  }

  // The library looks at these two.
  const char* text_ = "";
  std::size_t size_ = 0;

  char* block_ = nullptr;
  std::size_t capacity_ = 0;
};

/// A string that the library changes only through its virtual operations, which are the host's own
/// code and memory.
class CKxText final {
 public:
  CKxText() = default;

  // The library's compiler has two places for a destructor in front; it calls neither.
  virtual void UnusedPlace0() {}
  virtual void UnusedPlace1() {}

  virtual void Clear() { text.clear(); }
  virtual void Set(const char* replacement) { text = replacement; }
  virtual void Append(const char* more) { text.append(more); }
  virtual void AppendString(const CKxString& more) { text.append(more.data(), more.size()); }

  CKxString text;
};

/// A message to show: what CKxXlate::Format reads and updates, as the Xlate.h of other hosts tells.
///
///     Xlate message;
///     message.bundleName = "agent";
///     message.locale.Set("fr-CA");
///     message.args.assign("Ann\0" "3", 6);  // each text followed by its NUL
///     message.argCount = 2;
///     Show(CKxXlate::Format(&message, "WELCOME_USER"));
///     ReleaseTranslator(message);
struct Xlate {
  CKxXlate* translator = nullptr;
  std::uint64_t argCount = 0;
  CKxString args;
  CKxText output;
  CKxString bundleName;
  CKxText locale;
  bool showKeys = false;
  bool resolved = false;
  bool useAdminLocale = false;
};

/// Gives back both references that the lookup of the object's translator left, and lets the next
/// Format look it up anew. To be called before a resolved object is destroyed, copied, or given
/// another bundle or locale; one that is not resolved stays as it is.
inline void ReleaseTranslator(Xlate& xlate) {
  if (!xlate.resolved) return;
  if (xlate.translator != nullptr) {
    xlate.translator->Release();  // the object's own reference
    xlate.translator->Release();  // the one that the lookup left beyond it
  }
  xlate.translator = nullptr;
  xlate.resolved = false;
}

#endif  // XLATE_H
