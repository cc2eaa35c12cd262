#pragma once
namespace kx {
class LanguageTable;
class LanguageContents {};
}  // namespace kx
