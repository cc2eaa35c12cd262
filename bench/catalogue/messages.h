#ifndef KX_BENCH_MESSAGES_H
#define KX_BENCH_MESSAGES_H

#include <string>

namespace bench {

/// One message of the generated catalogues.
struct Message {
  std::string key;   ///< about 27 bytes, capitals
  std::string text;  ///< about 66 bytes of UTF-8
};

/// The message of a number, the same on every machine. Of three in a row one has letters outside
/// ASCII and one has markers.
///
/// @param variant  another number gives other texts for the same keys, as another language would
Message MakeMessage(int number, int variant = 0);

/// A key that no generated catalogue has; it looks like those that are there.
std::string AbsentKey(int number);

/// The same key as a careless caller writes it.
std::string LowerCase(std::string key);

}  // namespace bench

#endif  // KX_BENCH_MESSAGES_H
