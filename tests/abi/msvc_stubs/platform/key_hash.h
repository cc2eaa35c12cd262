#pragma once
namespace kx {
class KeyHash {};
class KeyEqual {};
}  // namespace kx
