#ifndef CKX_XLATE_H
#define CKX_XLATE_H

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <string>

#include "KxXlateExport.h"
#include "KxXlateValues.h"

/// Size of a caller's buffer in bytes, the terminating NUL included; 32 bits on every platform.
#if defined(_WIN32)
using KxSize = unsigned long;
#else
using KxSize = std::uint32_t;
#endif

struct Xlate;

/// The texts of one bundle (a named set of messages) in one language.
///
/// Translators come from GetBundle and GetLanguage, are shared by everybody who asked for the same
/// texts, and are counted: each pointer that the library hands out carries one reference, which
/// its holder gives back with Release. Never delete a translator.
///
/// Every `const char*` that a translator answers belongs to it and stays valid for as long as the
/// caller holds its reference. Texts are byte strings, UTF-8 or the character set that GetCharset
/// names, and end with NUL.
///
/// All operations are safe from any thread while the caller holds a reference. Lookups report
/// nothing to the caller but "not found"; only std::bad_alloc may leave an operation.
///
/// Lookups into a caller's buffer share a rule: at most `size` - 1 bytes are copied, a longer text
/// is cut (possibly inside a UTF-8 sequence), and `dst` always ends with NUL. `size` counts that
/// NUL; a null `dst` or a size of 0 writes nothing and answers false. The result tells whether the
/// key was found, never whether the text fitted. Null keys are never found, nor are empty ones in
/// language files. A key that is not found is kept and logged, once for each translator and kind of
/// lookup (of property bundles only texts, without language files nothing), without bound: a host
/// should look up no strangers' keys.
///
/// Hosts call the virtual operations by their position in the table, in the order below (slots 0
/// to 18), so the order is frozen.
///
///     if (CKxXlate* texts = CKxXlate::GetBundle("agent", "fr-CA")) {
///       char line[128];
///       texts->GetText(line, sizeof line, "LOGIN_PROMPT", "User name");
///       texts->Release();
///     }
class KXXLATE_API CKxXlate {
 public:
  /// Gives one reference back. The last one destroys the translator: neither it nor any text
  /// obtained from it may be used afterwards. Slot 0.
  virtual void Release() = 0;

  /// Takes one more reference, to be given back with Release. Slot 1.
  virtual void AddRef() = 0;

  /// The bundle's name. Never null. Slot 2.
  virtual const char* GetName() = 0;

  /// The language code: upper case from language files ("FR"), as the file's name spells it from a
  /// property bundle ("fr"), "" from a bundle's default. Slot 3.
  virtual const char* GetLanguageCode() = 0;

  /// The country code, in the same spelling; "" when there is none. Slot 4.
  virtual const char* GetCountryCode() = 0;

  /// The language's name for people, or null. Slot 5.
  virtual const char* GetLongName() = 0;

  /// The character set of the texts, or null, which means UTF-8. Slot 6.
  virtual const char* GetCharset() = 0;

  /// New whenever a language was read again; 0 for texts that never change. Slot 7.
  virtual std::uint32_t GetId() = 0;

  /// Where the language's images lie, or null. Slot 8.
  virtual const char* GetImageDirectory() = 0;

  /// The writing direction, "LTR" or "RTL"; "" or null when not given. Slot 9.
  virtual const char* GetDirection() = 0;

  /// The text put behind prompts, such as ":", or null. Slot 10.
  virtual const char* GetPromptSuffix() = 0;

  // Slots 11 to 16 are three pairs of overloads: the first of a pair answers a pointer, the second
  // copies into the caller's buffer. Microsoft's compiler lays overloads of one name out in reverse
  // order of declaration, all others in the order of declaration; hence the two blocks.
#if defined(_MSC_VER)
  virtual bool GetDirectory(char* dst, KxSize size, const char* name) = 0;              // 12
  virtual const char* GetDirectory(const char* name) = 0;                               // 11
  virtual bool GetText(char* dst, KxSize size, const char* key, const char* dflt) = 0;  // 14
  virtual const char* GetText(const char* key) = 0;                                     // 13
  virtual bool GetLabel(char* dst, KxSize size, const char* key) = 0;                   // 16
  virtual const char* GetLabel(const char* key) = 0;                                    // 15
#else
  /// The path listed under `name` (any case); null when absent. Slot 11.
  virtual const char* GetDirectory(const char* name) = 0;
  /// The same into a buffer: "" and false when absent. Slot 12.
  virtual bool GetDirectory(char* dst, KxSize size, const char* name) = 0;
  /// The message text of `key` (any case); null when absent. Slot 13.
  virtual const char* GetText(const char* key) = 0;
  /// The same into a buffer: when absent `dflt`, or "" if that is null, and false. Slot 14.
  virtual bool GetText(char* dst, KxSize size, const char* key, const char* dflt) = 0;
  /// The button label of `key` (any case); null when absent. Slot 15.
  virtual const char* GetLabel(const char* key) = 0;
  /// The same into a buffer: "" and false when absent. Slot 16.
  virtual bool GetLabel(char* dst, KxSize size, const char* key) = 0;
#endif

  /// As GetText into a buffer; then the prompt suffix is appended if there is one, `dst` is not
  /// empty, and both fit whole. Translators of property bundles have no prompts: they answer "" and
  /// false and do not use `dflt`. Slot 17.
  virtual bool GetPrompt(char* dst, KxSize size, const char* key, const char* dflt) = 0;

  /// Copies nothing: a translator has no state that could be assigned from outside.
  CKxXlate& operator=(const CKxXlate& other);
  /// Copies nothing either.
  CKxXlate(const CKxXlate& other);

  /// Finds the translator of a bundle for a locale.
  ///
  /// The property bundles are asked first, with fallback (fr-CA, fr, then the bundle's default);
  /// then the language files of that language and region; then the English ones. So any name has
  /// a translator, and an unknown one is noticed only later, by lookups that find nothing.
  ///
  /// @param name    bundle name, in its exact case; null or "" answers null
  /// @param locale  "fr", "fr-CA" or "fr_CA", in any case; null or "" asks for a property bundle's
  ///                default or for English language files. "-" and "_" are not always the same:
  ///                agent_fil_PH.properties answers fil_PH, not fil-PH; hy_fr-CA is the language
  ///                hy_fr in CA, hy-fr-CA the language hy.
  /// @return one reference for the caller, to be given back with Release; null only for no name
  ///
  /// Any thread, at any time. A property file is read by the first call for it, while other callers
  /// of that file wait, and never again. The first call for a language, and the first after one of
  /// its files changed, reads files while all other calls wait that have a language to read; a
  /// language already read costs up to four file-status calls and waits for nobody.
  ///
  /// A language is read anew when a file that it was read from has vanished, or has another time of
  /// last change (to the finest unit that the system gives) or another size; a file that was not
  /// there is not looked for. A language without any file is looked for again by each call, but not
  /// English, nor one whose files have all vanished: these have no texts until FreeCache. A file
  /// that cannot be opened for the moment, as when another program keeps it to itself, settles
  /// nothing: a language keeps the translator that it has, and the next call tries again. What was
  /// read for a locale is kept until FreeCache, so a host should pass only locales that it knows.
  ///
  /// Problems in the files go to translate.log or, for property files, to standard error. Throws
  /// std::bad_alloc only.
  static CKxXlate* GetBundle(const char* name, const char* locale);

  /// As GetBundle, for a language and a region given apart; "-" joins them for property bundles.
  ///
  /// @param name      the bundle's name, in its exact case; null or "" answers null
  /// @param language  null or "" means "en"
  /// @param region    null or "" means no region
  static CKxXlate* GetLanguage(const char* name, const char* language, const char* region);

  /// Drops the library's own references on the translators read from language files, so that those
  /// that no caller holds are destroyed. Later lookups read the files anew.
  ///
  /// For hosts whose language files are added or come back while they run (GetBundle says which are
  /// not found otherwise), that have asked for many locales, or that unload the library.
  /// Translators of property bundles stay. Any thread, at any time.
  static void FreeCache();

  /// Inserts up to 13 strings into a message text.
  ///
  /// The first '%' or '{' of the text decides which of the two marks places; the other is ordinary
  /// text. Markers are %0 to %99, or {0} to {99}, counted from 0; in percent style '%' with any
  /// other byte behind it (as in %s) takes the argument after the highest one used so far. A
  /// doubled marker stands for itself. Arguments behind the highest one that the text names are
  /// appended in brackets, so that no value is lost: "Cannot open (a.txt, denied)".
  ///
  /// @param buffer  receives the result and its NUL; null writes nothing. May be the same memory as
  ///                the text or an argument.
  /// @param size    the buffer's size in bytes; 0 writes nothing. A longer result is cut to
  ///                `size` - 1 bytes. CAUTION: a result of exactly `size` bytes is written whole,
  ///                with its NUL in the byte behind the buffer: pass one byte less than you own.
  /// @param format  the text; null is the empty text
  /// @param a0      to a12: the arguments; they end with the last that is not null, and a null
  ///                among them is an absent argument, whose marker stays in the text
  ///
  /// Reentrant, takes no lock. Throws std::bad_alloc only.
  ///
  ///     char line[64];
  ///     CKxXlate::Insert(line, sizeof line - 1, "%1 of %0", "ten", "three");  // "three of ten"
  static void Insert(char* buffer, KxSize size, const char* format, const char* a0 = nullptr,
                     const char* a1 = nullptr, const char* a2 = nullptr, const char* a3 = nullptr,
                     const char* a4 = nullptr, const char* a5 = nullptr, const char* a6 = nullptr,
                     const char* a7 = nullptr, const char* a8 = nullptr, const char* a9 = nullptr,
                     const char* a10 = nullptr, const char* a11 = nullptr,
                     const char* a12 = nullptr);

  /// As Insert, for an array of any length.
  ///
  /// @param count      number of arguments; all of them count, null ones included
  /// @param arguments  `count` pointers, of which any may be null; a null array is an empty one
  static void FormatMessageA(char* buffer, KxSize size, const char* format, std::size_t count,
                             const char** arguments);

  /// As Insert, for an array of strings, each up to its first NUL. The first 13 are used.
  static void FormatMessageA(char* buffer, KxSize size, const char* format, std::size_t count,
                             const std::string* arguments);

  /// Finds the text of a message, inserts its arguments and answers the result.
  ///
  /// The first call for an object looks its translator up (GetBundle with the object's bundle name
  /// and locale) and keeps it in the object, also when there is none; later calls use it until
  /// `resolved` is cleared. A key that the translator lacks is itself the text, so the user sees
  /// the key with its arguments inserted.
  ///
  /// @param xlate  read and updated; null answers null. At most 16 of its arguments are used, and
  ///               none that begins behind the terminator of `args`.
  /// @param key    null is the empty text
  /// @return the text of the object's `output`, valid until it is formatted again or destroyed
  ///
  /// Each lookup of the translator leaves two references, the object's own and one more, which
  /// ReleaseTranslator (Xlate.h) gives back; without it the translator is never destroyed. Any
  /// thread, but one object must not be formatted by two threads at once. Throws std::bad_alloc,
  /// and what the virtual operations of the object's texts throw.
  static const char* Format(Xlate* xlate, const char* key);

  /// Inserts typed values into a message text, by the numbers of its conversions.
  ///
  /// The conversions %d %i (int), %o %x (unsigned), %f (double) and %s (terminated text) are each
  /// followed by ":" and a digit from 1 to 9: "%d:2 items in %s:1". The values are taken in the
  /// order in which the conversions stand in the text; the digit says which of them, counted in
  /// that order, is inserted in its place. A conversion without its digit takes its value all the
  /// same and vanishes with the byte behind it, or with two if the first is ":". What else begins
  /// with "%" takes no value and vanishes with the byte behind it. A tenth conversion takes none.
  ///
  /// @param buffer  filled with zeros, then with the result, cut to `size` - 1 bytes; a null
  ///                buffer or a size of 0 writes nothing
  /// @param format  the text; null is the empty text
  ///
  /// CAUTION: the values must be those that the text says, in number and type. Nothing can check
  /// that, and a %s that meets a number may end the host: who writes texts for this function or the
  /// next must be trusted like who writes the host. A null text counts as empty. Reentrant, takes
  /// no lock. Throws std::bad_alloc only.
  ///
  ///     char line[64];
  ///     CKxXlate::InsertVariable(line, sizeof line, "%s:1 has %d:2 files", "disk", 12);
  static void InsertVariable(char* buffer, KxSize size, const char* format, ...);

  /// An object among the values, such as a std::string, does not compile.
  template <class... Values, KxRefused<Values...> = 0>
  static void InsertVariable(char*, KxSize, const char*, const Values&...);

  /// Inserts typed values into a message text, each in the form that its conversion asks for.
  ///
  /// A conversion is that of printf, with flags, width, precision and length, and ends with one of
  /// c d i o p u x f s. ":" and a digit behind it number its value from 1 (0 is the tenth), so that
  /// translations can reorder and repeat values. One without takes the value behind that of the
  /// last one without (the first of them the first value), whatever numbered ones take. A value
  /// that none takes is stepped over, on Linux only if it is no floating value. There is no "%%".
  ///
  /// The lengths are h hh l ll j z t L, and on every system I64 I32 I w; a conversion with another
  /// is text, and its value stepped over as an integer. docs/markers.md has all the rules.
  ///
  /// @param arguments  the values, which must have the types that the conversions say; used up
  ///
  /// Buffer, text and the rest as with InsertVariable. "%n" and "*" do nothing, widths and
  /// precisions above 16,383 act as that, and one value is cut at 16,383 bytes.
  static void InsertVariableVA(char* buffer, KxSize size, const char* format,
                               std::va_list arguments);

  /// Serves all later property lookups from the bundle files of another directory.
  ///
  /// The directory is read now: files that come or go later are not noticed. It need not exist; one
  /// without bundle files is a directory without bundles. Translators handed out before keep
  /// working. Language files are looked for here, too, if none have been looked for yet;
  /// docs/lang-files.md has the exception.
  ///
  /// When it was loaded the library searched by itself (docs/operating.md), in a program with more
  /// rights than its caller (set-user-ID, set-group-ID, file capabilities) only near the
  /// executable: environment and working directory are the caller's choice. Nothing tells it so.
  ///
  /// @param directory  UTF-8; null answers false. A relative path is followed anew whenever a file
  ///                   is opened or looked at: a host that changes its working directory passes a
  ///                   full one, also where the library found "./resources" by itself.
  /// @return false, with nothing changed, when a directory has been replaced before: the process
  ///         can replace one directory, once. (If none was found when the library was loaded, the
  ///         first call replaces nothing and a second one can succeed.)
  ///
  /// To be called while no other thread looks up bundles: a lookup at the same time is safe, but
  /// may still be answered from the old directory.
  static bool SetResourceDirectory(const char* directory);

 protected:
  CKxXlate();

  /// Slot 18. Only Release destroys a translator.
  virtual ~CKxXlate();
};

/// The library's version banner, always the same pointer.
extern "C" KXXLATE_API const char* getProductVersion();

#endif  // CKX_XLATE_H
