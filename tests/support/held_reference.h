#ifndef KX_TESTS_SUPPORT_HELD_REFERENCE_H
#define KX_TESTS_SUPPORT_HELD_REFERENCE_H

#include <memory>

struct GiveReferenceBack {
  template <class Translator>
  void operator()(Translator* translator) const {
    translator->Release();
  }
};

/// One reference on a translator, which is released at the end. A new CRealKxXlate carries none, so
/// that releasing it once destroys it.
template <class Translator>
using HeldReference = std::unique_ptr<Translator, GiveReferenceBack>;

#endif  // KX_TESTS_SUPPORT_HELD_REFERENCE_H
