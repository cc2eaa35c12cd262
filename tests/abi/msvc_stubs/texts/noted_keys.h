#pragma once
namespace kx {
class NotedKeys {};
}  // namespace kx
