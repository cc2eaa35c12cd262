#include "CKxXlate.h"

const char* getProductVersion() {
  return "Vantorel version 12.8.0801.3003 [KxXlate.dll in common]";
}
