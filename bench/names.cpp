#include "names.h"

#include <cstdint>
#include <iterator>
#include <unordered_set>

namespace bench {

namespace {

constexpr std::size_t count = 10000;
constexpr std::size_t shortest = 5;
constexpr std::size_t longest = 40;

// The same numbers in every run and with every standard library.
class Random {
public:
  std::size_t below(std::size_t limit) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return (state >> 33) % limit;
  }

private:
  std::uint64_t state = 1;
};

constexpr const char *words[] = {"clk",  "data",  "addr",  "valid", "ready", "fifo", "core", "alu",  "u1",  "reg0",
                                 "ctrl", "state", "wdata", "rx",    "tx",    "mux",  "sum",  "dout", "mem", "pad"};

std::string word(Random &random) { return words[random.below(std::size(words))]; }

// Words and numbers up to a length, the parts joined by one of the separators; letters at both ends.
std::string text(Random &random, std::size_t length, const std::string &separators) {
  std::string result = word(random);
  while (result.size() < length) {
    result += separators[random.below(separators.size())];
    result += random.below(3) == 0 ? std::to_string(random.below(100)) : word(random);
  }
  result.resize(length);
  result.back() = 'x';
  return result;
}

std::string identifier(Random &random, std::size_t length) { return text(random, length, "_"); }

std::string netlistText(Random &random, std::size_t length) {
  const std::string index = std::string("[") + std::to_string(random.below(64)) + "]";
  return text(random, length - index.size(), "_/_/.") + index;
}

// As many different names as a set has; make(random, length, i) gives the next.
template <typename Make> Names different(Make make) {
  Random random;
  Names names;
  std::unordered_set<std::string> seen;
  while (names.size() < count) {
    const std::size_t length = shortest + random.below(longest - shortest + 1);
    const std::string name = make(random, length, names.size());
    if (seen.insert(name).second)
      names.add(name);
  }
  return names;
}

// Room for the index, and for what the spelling adds.
std::size_t escapedLength(std::size_t length) { return length < 10 ? 10 : length - 2; }

} // namespace

Names identifiers() {
  return different([](Random &random, std::size_t length, std::size_t) { return identifier(random, length); });
}

Names escaped(Spelling spell) {
  return different([=](Random &random, std::size_t length, std::size_t) {
    return spell(netlistText(random, escapedLength(length)));
  });
}

Names mixed(Spelling spellPlain, Spelling spellEscaped) {
  return different([=](Random &random, std::size_t length, std::size_t i) {
    return i % 4 == 3 ? spellEscaped(netlistText(random, escapedLength(length)))
                      : spellPlain(identifier(random, length));
  });
}

Names halfKeywords(const std::vector<const char *> &keywords) {
  Random random;
  const Names others = identifiers();
  Names names;
  for (std::size_t i = 0; i < others.size(); ++i)
    names.add(random.below(2) == 0 ? keywords[random.below(keywords.size())] : others[i]);
  return names;
}

Names bitPaths() {
  return different([](Random &random, std::size_t, std::size_t) {
    return "top.u_" + word(random) + "." + word(random) + "_" + std::to_string(random.below(64)) + "." + word(random) +
           "[" + std::to_string(random.below(32)) + "]";
  });
}

Names busPaths() {
  return different([](Random &random, std::size_t, std::size_t) {
    return "u_" + word(random) + std::to_string(random.below(100)) + "." + word(random) +
           std::to_string(random.below(100)) + "[63:0]";
  });
}

Names ofLength(std::size_t length, bool hasEscapes) {
  constexpr std::size_t volume = 200000;
  Random random;
  Names names;
  while (names.size() * length < volume) {
    std::string name = identifier(random, length);
    for (std::size_t i = 2; hasEscapes && i + 1 < name.size(); i += 5) {
      name[i] = '\\';
      name[i + 1] = "/[].:"[random.below(5)];
    }
    names.add(name);
  }
  return names;
}

} // namespace bench
