#pragma once
namespace kx {
class CriticalSection {};
}  // namespace kx
