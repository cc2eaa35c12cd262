#pragma once
namespace kx {
class LanguageTable;
class SharedContents {};
}  // namespace kx
