// Starts, shows the last text of a catalogue of so many messages, and ends.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "CKxXlate.h"
#include "catalogue/messages.h"

int main(int argc, char** argv) {
  const std::string size = argc == 2 ? argv[1] : "100";
  CKxXlate* const texts = CKxXlate::GetBundle(("texts" + size).c_str(), "fr");
  const char* text = texts->GetText(bench::MakeMessage(std::atoi(size.c_str()) - 1).key.c_str());
  const bool shown = text != nullptr && std::puts(text) >= 0;
  texts->Release();
  return shown ? 0 : 1;
}
