// Not built: a host that copies messages, which compilers are asked to take without a warning.

#include <Xlate.h>

#include <utility>
#include <vector>

std::vector<Xlate> Copies(const Xlate& message) { return std::vector<Xlate>(3, message); }

void Assign(Xlate& message, const Xlate& other) { message = other; }

Xlate Moved(Xlate& message) { return std::move(message); }

void MoveInto(Xlate& message, Xlate& other) { message = std::move(other); }

CKxText Copied(const CKxText& text) { return text; }

void Release(Xlate& message) { ReleaseTranslator(message); }
