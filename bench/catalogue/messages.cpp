#include "catalogue/messages.h"

#include <cstdint>
#include <cstdio>

namespace bench {

namespace {

const char* const kSubjects[] = {"BACKUP",  "ARCHIVER", "REPLICATION", "MAILBOX",
                                 "GATEWAY", "LICENSE",  "DIRECTORY",   "SCHEDULER"};
const char* const kEvents[] = {"STARTED",   "HAS_ENDED", "FAILED", "CANCELLED_BY_USER",
                               "TIMED_OUT", "WAITS_FOR", "DENIED", "NOT_FOUND"};

const char* const kPlain[] = {"server", "archive", "waiting", "for",   "the",
                              "task",   "has",     "ended",   "since", "connection"};
const char* const kAccented[] = {"r\xC3\xA9ponse",
                                 "t\xC3\xA2"
                                 "che",
                                 "gr\xC3\xB6\xC3\x9F"
                                 "er",
                                 "\xC3\xA9t\xC3\xA9",
                                 "fen\xC3\xAAtre",
                                 "\xC3\xBC"
                                 "ber",
                                 "serveur",
                                 "avec",
                                 "le",
                                 "contr\xC3\xB4le"};

/// Spreads neighbours apart, so that neighbouring keys differ in more than their digits.
std::uint64_t Mix(std::uint64_t value) {
  value = (value + 0x9E3779B97F4A7C15U) * 0xBF58476D1CE4E5B9U;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
  return value ^ (value >> 31);
}

std::string MakeKey(int number, const char* last) {
  const std::uint64_t random = Mix(static_cast<std::uint64_t>(number));
  char key[80];
  std::snprintf(key, sizeof key, "%s_%s_%07d%s", kSubjects[random % 8], kEvents[random / 8 % 8],
                number, last);
  return key;
}

}  // namespace

Message MakeMessage(int number, int variant) {
  const auto& words = number % 3 == 1 ? kAccented : kPlain;
  std::uint64_t random =
      Mix(static_cast<std::uint64_t>(number) * 1000003 + static_cast<std::uint64_t>(variant));
  const std::size_t atLeast = 50 + random % 21;
  std::string text = "Message " + std::to_string(number);
  while (text.size() < atLeast) {
    random = Mix(random);
    text.append(" ").append(words[random % 10]);
  }
  if (number % 3 == 2) text += " %1 of %0";
  return {MakeKey(number, "_A"), text + "."};
}

std::string AbsentKey(int number) { return MakeKey(number, "_Z"); }

std::string LowerCase(std::string key) {
  for (char& letter : key) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return key;
}

}  // namespace bench
