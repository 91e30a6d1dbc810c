// What the bytes of a name are, found in blocks.
#include "core/text.h"

using namespace zeli;

namespace {

// Gives look the bytes of s in blocks, with zeros behind fewer bytes than a block's. The last block may begin before
// the end of the one before it.
template <typename LookAtBlock> void forEachBlock(Bytes s, LookAtBlock look) {
  if (s.size() < blockBytes) {
    look(loadPart(s.data(), s.size()));
    return;
  }
  const std::size_t last = s.size() - blockBytes;
  for (std::size_t i = 0; i < last; i += blockBytes)
    look(loadBlock(s.data() + i));
  look(loadBlock(s.data() + last));
}

} // namespace

Traits zeli::kindsIn(Bytes s) {
  BlockTest mark = {};
  BlockTest backslash = {};
  BlockTest isGraphic = ~BlockTest{};
  forEachBlock(s, [&](Block block) {
    mark |= isChar(block, '#') | isChar(block, '%');
    backslash |= isChar(block, '\\');
    isGraphic &= isWithin(block, '!', '~') | isChar(block, '\0'); // no name holds a zero
  });
  return static_cast<Traits>((bitsOf(mark) != 0 ? traitMark : 0) | (bitsOf(backslash) != 0 ? traitBackslash : 0) |
                             (bitsOf(isGraphic) != allBits ? traitNotGraphic : 0));
}

Look zeli::lookAt(Bytes s) { return lookHere(s); }
