// Not built: tools/check_slots.sh asks a compiler how Microsoft's would lay these classes out.

#include "Xlate.h"
#include "lang/real_kx_xlate.h"

// The type is a part of decorated names, its size a part of every call.
static_assert(__is_same(KxSize, unsigned long) && sizeof(KxSize) == 4);
static_assert(sizeof(CKxXlate) == 8, "a translator is its table, and what derived classes add");
static_assert(sizeof(CKxText) == 40 && alignof(CKxText) == 8, "a table and a string");

// The library finds the fields of a message object by their places.
#define KX_FIELD_IS(field, place, size) \
  static_assert(__builtin_offsetof(Xlate, field) == (place) && sizeof(Xlate::field) == (size))
KX_FIELD_IS(translator, 0, 8);
KX_FIELD_IS(argCount, 8, 8);
KX_FIELD_IS(args, 16, 32);
KX_FIELD_IS(output, 48, 40);
KX_FIELD_IS(bundleName, 88, 32);
KX_FIELD_IS(locale, 120, 40);
KX_FIELD_IS(showKeys, 160, 1);
KX_FIELD_IS(resolved, 161, 1);
KX_FIELD_IS(useAdminLocale, 162, 1);
static_assert(sizeof(Xlate) == 168 && alignof(Xlate) == 8);

// A constructor needs the table of its class, and the base's constructor that of the base.
CRealKxXlate::CRealKxXlate(const kx::LanguageContext& context, const char*, const char*,
                           const char*)
    : logRoot_(context.root), log_(context.log) {}

CKxXlate::CKxXlate() {}
