// What one pass over a name tells, sixteen bytes at a time, against one byte at a time.
#include "core/text.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>

namespace {

// A copy with nothing before and behind it that could be read.
struct Alone {
  std::unique_ptr<char[]> bytes;
  zeli::Bytes view;
  explicit Alone(const std::string &text) : bytes(new char[text.size()]), view(bytes.get(), text.size()) {
    text.copy(bytes.get(), text.size());
  }
};

zeli::Traits traitsOf(const std::string &name) {
  int traits = 0;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    const bool isUpper = c >= 'A' && c <= 'Z';
    const bool isDigit = c >= '0' && c <= '9';
    traits |= isUpper ? zeli::traitUpper : 0;
    traits |= c == '_' && i + 1 < name.size() && name[i + 1] == '_' ? zeli::traitTwoUnderscores : 0;
    traits |= isUpper || isDigit || (c >= 'a' && c <= 'z') || c == '_' ? 0 : zeli::traitOther;
    traits |= (c >= '!' && c <= '~') || c == '\0' ? 0 : zeli::traitNotGraphic; // no name holds a zero
    traits |= c == '#' || c == '%' ? zeli::traitMark : c == '\\' ? zeli::traitBackslash : 0;
    traits |= i == 0 && (c == 'E' || c == 'K') ? zeli::traitPrefixLetter : 0; // ESC_, KEYWORD_
    traits |= i == 0 ? (isDigit ? zeli::traitDigitFirst : c == '_' ? zeli::traitUnderscoreFirst : 0) : 0;
    traits |= i + 1 == name.size() && c == '_' ? zeli::traitUnderscoreLast : 0;
  }
  return static_cast<zeli::Traits>(traits);
}
std::uint64_t headOf(const std::string &name) {
  std::uint64_t head = 0;
  for (std::size_t i = std::min<std::size_t>(name.size(), 8); i-- > 0;)
    head = head << 8 | static_cast<unsigned char>(name[i]);
  return head;
}
void expectSeen(const std::string &name) {
  const Alone alone(name);
  const zeli::Look look = zeli::Name(alone.view).withKinds().look;
  if (testing::Test::HasFailure())
    return; // others would say the same
  EXPECT_TRUE(look.traits == traitsOf(name) && look.head == headOf(name)) << testing::PrintToString(name);
}

} // namespace

TEST(Look, SeesEveryByteEverywhere) {
  for (std::size_t size = 0; size <= 70; ++size) {
    expectSeen(std::string(size, 'a'));
    for (std::size_t at = 0; at < size; ++at) {
      std::string name(size, 'a');
      for (int c = 0; c < 256; ++c) {
        name[at] = static_cast<char>(c);
        expectSeen(name);
      }
      name[at] = '_';
      if (at + 1 < size)
        name[at + 1] = '_';
      expectSeen(name);
    }
  }
}

TEST(Look, SeesAnyMixture) {
  std::mt19937 random(1);
  for (int i = 0; i < 50000; ++i) {
    const zeli::Bytes alphabet = i % 2 == 0 ? "abcxyz019AZ_" : "a_a_b\\#%[A0.";
    std::string name(random() % 71, 'a');
    for (char &c : name)
      c = alphabet[random() % alphabet.size()];
    expectSeen(name);
  }
}

TEST(Block, GathersOneBitAByte) {
  for (std::uint32_t bits = 0; bits < 0x10000 && !testing::Test::HasFailure(); ++bits) {
    zeli::BlockTest test = {};
    for (std::size_t i = 0; i < zeli::blockBytes; ++i)
      test[i] = (bits >> i & 1) != 0 ? -1 : 0;
    EXPECT_EQ(zeli::bitsOf(test), bits);
    EXPECT_EQ(zeli::portableBits(test), bits);
  }
}

TEST(Block, LoadsNoByteAround) {
  const std::string bytes = "\xff\x80\x7f\x01"
                            "abcdefghijkl";
  for (std::size_t size = 0; size <= zeli::blockBytes; ++size) {
    const std::string part = bytes.substr(0, size);
    const Alone alone(part);
    EXPECT_EQ(zeli::headWord(alone.view.data(), size), headOf(part)) << size;
    if (size == zeli::blockBytes)
      break;
    const zeli::Block block = zeli::loadPart(alone.view.data(), size);
    for (std::size_t i = 0; i < zeli::blockBytes; ++i)
      EXPECT_EQ(block[i], i < size ? static_cast<unsigned char>(part[i]) : 0) << size << " " << i;
  }
}
