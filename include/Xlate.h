#ifndef XLATE_H
#define XLATE_H

#include <cstdint>
#include <string>

#include "CKxXlate.h"

/// A string that the library changes only through its virtual operations, so that each change is
/// made by the host's own code and memory, whatever the library was built with.
///
/// Header-only and owned by the hosts: the library neither makes nor destroys one. Null texts count
/// as empty.
class CKxText {
 public:
  CKxText() = default;
  CKxText(const CKxText& other) = default;
  CKxText(CKxText&& other) = default;
  CKxText& operator=(const CKxText& other) = default;
  CKxText& operator=(CKxText&& other) = default;
  virtual ~CKxText() = default;

  /// Makes the text empty.
  virtual void Clear() { text.clear(); }

  /// Replaces the text.
  virtual void Set(const char* replacement) { text = replacement == nullptr ? "" : replacement; }

  /// Puts a text behind.
  virtual void Append(const char* more) {
    if (more != nullptr) text += more;
  }

  /// The same with a string, which may hold NULs.
  virtual void AppendString(const std::string& more) { text += more; }

  /// The text itself, for hosts to read; the library changes it only through the operations.
  std::string text;
};

/// A message to show: what CKxXlate::Format reads and updates. The fields and their order are
/// agreed with the library, which looks at them by position.
///
/// One object must not be formatted by two threads at once. One that is resolved must not be copied
/// or moved: both would point at a translator that one of them holds.
///
///     Xlate message;
///     message.bundleName = "agent";
///     message.locale.Set("fr-CA");
///     message.args.assign("Ann\0" "3", 6);  // each text followed by its NUL
///     message.argCount = 2;
///     Show(CKxXlate::Format(&message, "WELCOME_USER"));
///     ReleaseTranslator(message);
struct Xlate {
  /// The translator that Format found, or null. Format leaves two references on it, this object's
  /// own and one more, which ReleaseTranslator gives back. Hosts do not set it.
  CKxXlate* translator = nullptr;

  /// Number of texts in `args`; Format uses 16 at most.
  std::uint64_t argCount = 0;

  /// The argument texts, one after another, each followed by its NUL. The string's own terminator
  /// counts as one: the last text may do without a NUL of its own, and behind the last NUL there is
  /// one more text, an empty one.
  std::string args;

  /// The result of the last Format.
  CKxText output;

  /// The bundle's name, in its exact case.
  std::string bundleName;

  /// As CKxXlate::GetBundle takes it.
  CKxText locale;

  /// Put the key in brackets in front of each result, such as "[K1] Hello".
  bool showKeys = false;

  /// The translator has been looked up. A host that changes `bundleName` or `locale` clears it by
  /// ReleaseTranslator.
  bool resolved = false;

  /// Replace `locale` by the administrator's locale before the translator is looked up.
  bool useAdminLocale = false;
};

/// Gives back what the lookup of the object's translator left, and lets the next Format look it up
/// anew. For objects whose translator Format found.
///
/// To be called before a resolved object is destroyed, copied, or given another bundle or locale;
/// otherwise its translator is never destroyed. An object that is not resolved stays as it is: a
/// host that clears `resolved` by hand loses a reference with each further lookup, which takes only
/// the object's own one off the old translator.
///
/// Neither the translator nor a text obtained from it may be used afterwards, unless the host holds
/// a reference of its own; the object's `output` stays. Any thread, as Format.
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
