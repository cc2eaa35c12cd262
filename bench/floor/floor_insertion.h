#ifndef KX_BENCH_FLOOR_INSERTION_H
#define KX_BENCH_FLOOR_INSERTION_H

#include "CKxXlate.h"

namespace bench {

// The floors of the insertions: one pass over the text, values straight into the caller's buffer.
// They know the markers of the measured texts and no others.
void FloorInsertTexts(char* buffer, KxSize size);
void FloorInsertF(char* buffer, KxSize size);
void FloorInsert2F(char* buffer, KxSize size);
void FloorInsertNumberAndText(char* buffer, KxSize size);

}  // namespace bench

#endif  // KX_BENCH_FLOOR_INSERTION_H
