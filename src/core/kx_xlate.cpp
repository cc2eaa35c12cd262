#include "CKxXlate.h"

// Defined here and not in the header, so that the table of virtual operations has one home, which
// the library exports.

CKxXlate::CKxXlate() = default;

CKxXlate::CKxXlate(const CKxXlate& /*other*/) {}

CKxXlate::~CKxXlate() = default;

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): there is nothing to assign.
CKxXlate& CKxXlate::operator=(const CKxXlate& /*other*/) { return *this; }
