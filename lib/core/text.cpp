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

Look zeli::lookAt(Bytes s) {
  if (s.empty())
    return {};
  constexpr unsigned char caseBit = 'a' - 'A';
  BlockTest word = ~BlockTest{};
  Block unlike = {}; // the bits that some letter does not have
  const auto underscoresIn = [&](Block block) {
    const BlockTest isLetter = isWithin(block | caseBit, 'a', 'z');
    const BlockTest underscore = isChar(block, '_');
    word &= anyOf(isLetter, isWithin(block, '0', '9'), underscore);
    unlike |= reinterpret_cast<Block>(isLetter) & ~block;
    return underscore;
  };
  const auto pairsFrom = [&](std::size_t i) {
    return bitsOf(underscoresIn(loadBlock(s.data() + i)) & isChar(loadBlock(s.data() + i - 1), '_'));
  };

  const bool isShort = s.size() < blockBytes;
  const Block first = isShort ? loadPart(s.data(), s.size()) : loadBlock(s.data());
  const std::uint32_t underscores = bitsOf(underscoresIn(first));
  std::uint32_t pairs = underscores & underscores >> 1;
  if (s.size() > blockBytes) {
    const std::size_t last = s.size() - blockBytes;
    for (std::size_t i = blockBytes; i < last; i += blockBytes)
      pairs |= pairsFrom(i);
    pairs |= pairsFrom(last);
  }

  const std::uint32_t unused = isShort ? allBits << s.size() & allBits : 0;
  const BlockTest isUpper = reinterpret_cast<BlockTest>((unlike & caseBit) == caseBit);
  const int traits = ((bitsOf(word) | unused) != allBits ? traitOther | kindsOfOther : 0) |
                     (bitsOf(isUpper) != 0 ? traitUpper : 0) | (pairs != 0 ? traitTwoUnderscores : 0) |
                     (digit.has(s.front()) ? traitDigitFirst : 0) | (s.front() == '_' ? traitUnderscoreFirst : 0) |
                     (s.back() == '_' ? traitUnderscoreLast : 0);
  return {static_cast<Traits>(traits), headOf(first)};
}
