#include <KxXlate.hpp>

#include <iostream>

int main(int, char** values) {
  const kx::Translator texts = kx::Translator::find("greeting", values[1]);
  std::cout << texts.format("WELCOME", "Ann", "alpha") << '\n';
}
