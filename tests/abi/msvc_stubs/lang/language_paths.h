#pragma once
#include <string>
namespace kx {
class TranslationLog;
struct LanguageContext {
  const std::string& root;
  TranslationLog& log;
};
}  // namespace kx
