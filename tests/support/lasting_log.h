#ifndef KX_TESTS_SUPPORT_LASTING_LOG_H
#define KX_TESTS_SUPPORT_LASTING_LOG_H

#include <memory>
#include <vector>

#include "log/translation_log.h"

/// A new log that lives as long as the process: a log never frees its stream, and the leak checker
/// has to see somebody who still holds it.
inline kx::TranslationLog& LastingLog(bool trustsWorkingDirectory = true,
                                      const kx::LogChoice& choice = {}) {
  static auto& logs = *new std::vector<std::unique_ptr<kx::TranslationLog>>;
  return *logs.emplace_back(std::make_unique<kx::TranslationLog>(choice, trustsWorkingDirectory));
}

#endif  // KX_TESTS_SUPPORT_LASTING_LOG_H
