#pragma once
namespace kx {
class LangCandidates {};
}  // namespace kx
