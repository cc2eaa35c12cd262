#include <boost/locale.hpp>
#include <iostream>
#include <string>

int main(int, char** values) {
  boost::locale::generator generator;
  generator.add_messages_path(KX_CATALOGUES "/locale");
  generator.add_messages_domain("greeting");
  const std::locale locale = generator(std::string(values[1]) + ".UTF-8");
  std::cout.imbue(locale);
  std::cout << boost::locale::format(boost::locale::translate("Welcome to {2}, {1}.")) % "Ann" %
                   "alpha"
            << '\n';
}
