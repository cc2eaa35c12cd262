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
  virtual ~CKxText() = default;

  virtual void Clear() { text.clear(); }
  virtual void Set(const char* replacement) { text = replacement == nullptr ? "" : replacement; }
  virtual void Append(const char* more) {
    if (more != nullptr) text += more;
  }
  virtual void AppendString(const std::string& more) { text += more; }

  std::string text;
};

/// A message to show: what CKxXlate::Format reads and updates. The fields and their order are
/// agreed with the library, which looks at them by position.
///
/// One object must not be formatted by two threads at once.
///
///     Xlate message;
///     message.bundleName = "agent";
///     message.locale.Set("fr-CA");
///     message.args.assign("Ann\0" "3", 6);  // each text followed by its NUL
///     message.argCount = 2;
///     Show(CKxXlate::Format(&message, "WELCOME_USER"));
struct Xlate {
  /// The translator that Format found, or null. This object owns a reference on it, which the host
  /// gives back with Release when it is done.
  CKxXlate* translator = nullptr;

  /// Number of texts in `args`; Format uses 16 at most.
  std::uint64_t argCount = 0;

  /// The argument texts, one after another, each followed by its NUL.
  std::string args;

  /// The result of the last Format.
  CKxText output;

  std::string bundleName;

  /// As CKxXlate::GetBundle takes it.
  CKxText locale;

  /// Put the key in brackets in front of each result, such as "[K1] Hello".
  bool showKeys = false;

  /// The translator has been looked up. A host that changes `bundleName` or `locale` clears it.
  bool resolved = false;

  /// Replace `locale` by the administrator's locale before the translator is looked up.
  bool useAdminLocale = false;
};

#endif  // XLATE_H
