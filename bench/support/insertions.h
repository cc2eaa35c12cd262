#ifndef KX_BENCH_INSERTIONS_H
#define KX_BENCH_INSERTIONS_H

#include "CKxXlate.h"

namespace bench {

// The texts and the values of the insertions. They stand in no header as constants, so that no
// contender's compiler sees through them.
extern const char* const kFirst;
extern const char* const kSecond;
extern const int kMinutes;
extern const double kSeconds;

/// Two strings into a text of 60 bytes, in both styles.
void InsertPercent(char* buffer, KxSize size);
void InsertBrace(char* buffer, KxSize size);

/// A number with six decimals.
void InsertVariableF(char* buffer, KxSize size);

/// A number with two decimals; an integer and a string.
void InsertVA2F(char* buffer, KxSize size);
void InsertVATexts(char* buffer, KxSize size);

/// The same jobs by the C library.
void PrintTexts(char* buffer, KxSize size);
void PrintF(char* buffer, KxSize size);
void Print2F(char* buffer, KxSize size);
void PrintNumberAndText(char* buffer, KxSize size);

}  // namespace bench

#endif  // KX_BENCH_INSERTIONS_H
