// Not built: tools/check_slots.sh asks a compiler how Microsoft's would lay these classes out.

#include "lang/real_kx_xlate.h"

// A constructor needs the table of its class, and the base's constructor that of the base.
CRealKxXlate::CRealKxXlate(const kx::LanguageContext& context, const char*, const char*,
                           const char*)
    : logRoot_(context.root), log_(context.log) {}

CKxXlate::CKxXlate() {}
