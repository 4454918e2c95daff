// A function of Poppler's that a drawing hands each of its characters to, found before its own as those of
// cairo_calls.cpp. It is no part of Poppler's interface: a version that has it under another name, which
// holds the types of its arguments, never finds this one and collects.
#include "programs/taken_call.h"
#include "worker/drawing/uncollected_text.h"

#define NORVEX_ADD_CHARACTER "_ZN10ActualText7addCharEPK8GfxStateddddjiPKji"

NORVEX_STANDS_IN void addCharacter(void* text, const void* state, double x, double y, double dx, double dy,
                                   unsigned code, int bytes, const unsigned* unicode,
                                   int length) __asm__(NORVEX_ADD_CHARACTER);

void addCharacter(void* text, const void* state, double x, double y, double dx, double dy, unsigned code,
                  int bytes, const unsigned* unicode, int length) {
  static const auto popplers = norvex::librarysOwn(&addCharacter, NORVEX_ADD_CHARACTER);
  if (!norvex::engine::UncollectedText::isActive())
    popplers(text, state, x, y, dx, dy, code, bytes, unicode, length);
}
