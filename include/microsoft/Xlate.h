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

/// A text in the host's memory, which the library reads and never changes. Null texts count as
/// empty.
class CKxString {
 public:
  CKxString() = default;
  CKxString(const char* text) { *this = text; }
  CKxString(const std::string& text) { assign(text.data(), text.size()); }
  CKxString(const CKxString& other) { assign(other.text_, other.size_); }
  CKxString(CKxString&& other) noexcept { swap(other); }
  ~CKxString() { delete[] block_; }

  CKxString& operator=(const char* text) {
    return text == nullptr ? assign("", 0) : assign(text, std::strlen(text));
  }
  CKxString& operator=(const std::string& text) { return assign(text.data(), text.size()); }
  CKxString& operator=(const CKxString& other) { return assign(other.text_, other.size_); }
  CKxString& operator=(CKxString&& other) noexcept {
    swap(other);
    return *this;
  }

  /// The text may be a part of this one.
  CKxString& assign(const char* text, std::size_t size) {
    return Replace(new char[size + 1], "", 0, text, size);
  }
  CKxString& append(const char* text, std::size_t size) {
    return Replace(new char[size_ + size + 1], text_, size_, text, size);
  }

  void clear() { *this = CKxString(); }
  void swap(CKxString& other) noexcept {
    std::swap(text_, other.text_);
    std::swap(size_, other.size_);
    std::swap(block_, other.block_);
  }

  const char* c_str() const { return text_; }
  const char* data() const { return text_; }
  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  operator std::string() const { return std::string(text_, size_); }

 private:
  CKxString& Replace(char* block, const char* first, std::size_t firstSize, const char* second,
                     std::size_t secondSize) {
    std::memcpy(block, first, firstSize);
    std::memcpy(block + firstSize, second, secondSize);
    block[firstSize + secondSize] = '\0';
    delete[] block_;
    text_ = block_ = block;
    size_ = firstSize + secondSize;
    return *this;
  }

  // The library looks at these two.
  const char* text_ = "";
  std::size_t size_ = 0;

  char* block_ = nullptr;
  [[maybe_unused]] void* rest_ = nullptr;
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
  virtual void Append(const char* more) {
    if (more != nullptr) text.append(more, std::strlen(more));
  }
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
