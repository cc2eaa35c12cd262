#include <unicode/msgfmt.h>
#include <unicode/resbund.h>
#include <unicode/unistr.h>

#include <iostream>
#include <string>

int main(int, char** values) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale(values[1]);
  const icu::ResourceBundle texts(KX_CATALOGUES "/icu", locale, status);
  const icu::MessageFormat format(texts.getStringEx("WELCOME", status), locale, status);
  const icu::Formattable arguments[] = {"Ann", "alpha"};
  icu::UnicodeString line;
  icu::FieldPosition ignored;
  format.format(arguments, 2, line, ignored, status);
  std::string text;
  std::cout << line.toUTF8String(text) << '\n';
  return U_FAILURE(status);
}
