// What the bytes of a name are, found in blocks.
#include "core/text.h"

using namespace zeli;

namespace {

// Gives look the bytes of s in blocks, with zeros behind fewer bytes than a block's. The last block may begin before
// the end of the one before it; isNext tells that it does not.
template <typename LookAtBlock> void forEachBlock(Bytes s, LookAtBlock look) {
  if (s.size() < blockBytes) {
    look(loadPart(s.data(), s.size()), true);
    return;
  }
  const std::size_t last = s.size() - blockBytes;
  std::size_t i = 0;
  for (; i < last; i += blockBytes)
    look(loadBlock(s.data() + i), true);
  look(loadBlock(s.data() + last), i == last);
}

} // namespace

Traits zeli::kindsIn(Bytes s) {
  BlockTest mark = {};
  BlockTest backslash = {};
  BlockTest isGraphic = ~BlockTest{};
  forEachBlock(s, [&](Block block, bool) {
    mark |= isChar(block, '#') | isChar(block, '%');
    backslash |= isChar(block, '\\');
    isGraphic &= isWithin(block, '!', '~') | isChar(block, '\0'); // no name holds a zero
  });
  return static_cast<Traits>((bitsOf(mark) != 0 ? traitMark : 0) | (bitsOf(backslash) != 0 ? traitBackslash : 0) |
                             (bitsOf(isGraphic) != allBits ? traitNotGraphic : 0));
}

Look zeli::lookAt(Bytes s) {
  if (s.empty())
    return {};
  constexpr unsigned char caseBit = 'a' - 'A';
  BlockTest word = ~BlockTest{};
  Block unlike = {}; // the bits that some letter does not have
  std::uint32_t pairs = 0;
  std::uint32_t carried = 0; // the last underscore of the block before
  forEachBlock(s, [&](Block block, bool isNext) {
    const BlockTest isLetter = isWithin(block | caseBit, 'a', 'z');
    const BlockTest underscore = isChar(block, '_');
    word &= isLetter | isWithin(block, '0', '9') | underscore;
    unlike |= reinterpret_cast<Block>(isLetter) & ~block;
    const std::uint32_t bits = bitsOf(underscore);
    pairs |= bits & (bits << 1 | (isNext ? carried : 0));
    carried = bits >> (blockBytes - 1);
  });

  const std::uint32_t unused = s.size() < blockBytes ? allBits << s.size() & allBits : 0;
  const BlockTest isUpper = reinterpret_cast<BlockTest>((unlike & caseBit) == caseBit);
  const int traits = ((bitsOf(word) | unused) != allBits ? traitOther | kindsOfOther : 0) |
                     (bitsOf(isUpper) != 0 ? traitUpper : 0) | (pairs != 0 ? traitTwoUnderscores : 0) |
                     (digit.has(s.front()) ? traitDigitFirst : 0) | (s.front() == '_' ? traitUnderscoreFirst : 0) |
                     (s.back() == '_' ? traitUnderscoreLast : 0);
  return {static_cast<Traits>(traits), headWord(s.data(), s.size())};
}
