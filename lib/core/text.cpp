// What the bytes of a name are, found in blocks.
#include "core/text.h"

using namespace zeli;

Traits zeli::kindsIn(Bytes s) {
  BlockTest mark = {};
  BlockTest backslash = {};
  BlockTest isGraphic = ~BlockTest{};
  forEachBlock(s, [&](Block block, std::size_t) {
    mark |= isChar(block, '#') | isChar(block, '%');
    backslash |= isChar(block, '\\');
    isGraphic &= isWithin(block, '!', '~') | isChar(block, '\0'); // no name holds a zero
  });
  return static_cast<Traits>((bitsOf(mark) != 0 ? traitMark : 0) | (bitsOf(backslash) != 0 ? traitBackslash : 0) |
                             (bitsOf(isGraphic) != allBits ? traitNotGraphic : 0));
}

Look zeli::lookAt(Bytes s) { return lookHere(s); }
