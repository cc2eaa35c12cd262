#ifndef KX_XLATE_HPP
#define KX_XLATE_HPP

// The face of the library for hosts in C++17 and later: translators that count themselves, texts
// that know their length, insertion that never writes past a buffer, and the choice of a locale.
//
// Header-only: it asks the library for nothing but what CKxXlate.h and Xlate.h declare, so that a
// host may use both side by side and move over one call at a time. All names stand in namespace kx;
// what stands in kx::detail is not for hosts.

#include "CKxXlate.h"
#include "KxXlateVersion.h"
#include "Xlate.h"
#include "kxxlate/fallback_chain.hpp"
#include "kxxlate/insert.hpp"
#include "kxxlate/insert_typed.hpp"
#include "kxxlate/insert_variable.hpp"
#include "kxxlate/locales.hpp"
#include "kxxlate/message.hpp"
#include "kxxlate/negotiate.hpp"
#include "kxxlate/translator.hpp"

#endif  // KX_XLATE_HPP
