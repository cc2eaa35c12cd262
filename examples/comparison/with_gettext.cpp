#include <libintl.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

int main(int, char** values) {
  // One language for the whole process: another thread's request would change it for all.
  setenv("LANGUAGE", values[1], 1);
  std::setlocale(LC_ALL, "C.UTF-8");
  bindtextdomain("greeting", KX_CATALOGUES "/locale");
  // The catalogue is a format string that must be trusted.
  std::printf(dgettext("greeting", "Welcome to %2$s, %1$s."), "Ann", "alpha");
  std::puts("");
}
