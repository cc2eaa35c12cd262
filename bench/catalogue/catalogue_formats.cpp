#include "catalogue/catalogue_formats.h"

#include "catalogue/messages.h"

namespace bench {

namespace {

/// What stands around the keys and the texts of a format. No generated message needs an escape in
/// any of them.
struct Pattern {
  const char* head;
  const char* beforeKey;
  const char* beforeText;
  const char* afterText;
  const char* tail;
};

std::string Write(const Pattern& pattern, int size, int variant = 0) {
  std::string file = pattern.head;
  for (int number = 0; number < size; ++number) {
    const Message message = MakeMessage(number, variant);
    file.append(pattern.beforeKey).append(message.key);
    file.append(pattern.beforeText).append(message.text).append(pattern.afterText);
  }
  return file + pattern.tail;
}

}  // namespace

std::string AsProperties(int size) { return Write({"", "", " = ", "\n", ""}, size); }

std::string AsLang(int size, int variant) {
  return Write({"Name French\nCharset UTF-8\n\n", "Key ", "\nValue ", "\n", ""}, size, variant);
}

std::string AsJson(int size) {
  // The last member has no comma behind it, so one more closes the object.
  return Write({"{\n", "\"", "\": \"", "\",\n", "\"\": \"\"}\n"}, size);
}

std::string AsPo(int size) {
  const char* head =
      "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
      "\"Content-Transfer-Encoding: 8bit\\n\"\n\n";
  return Write({head, "msgid \"", "\"\nmsgstr \"", "\"\n\n", ""}, size);
}

std::string AsIni(int size) { return Write({"[texts]\n", "", "=", "\n", ""}, size); }

std::string AsResourceBundle(int size) {
  return Write({"fr {\n", "  ", " { \"", "\" }\n", "}\n"}, size);
}

}  // namespace bench
