#pragma once
namespace kx {
class ReferenceCount {
 public:
  explicit ReferenceCount(int);
};
}  // namespace kx
