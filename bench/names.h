// The names that the benchmarks map: 10,000 different ones of 5 to 40 characters a set, the same in every run.
#ifndef ZEL_BENCH_NAMES_H
#define ZEL_BENCH_NAMES_H

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

// Names in the order of their use, one behind the other as in a file that was read, so that what is measured is not the
// wait for memory.
class Names {
public:
  void add(const std::string &name) {
    starts.push_back(bytes.size());
    bytes.append(name).push_back('\0');
  }
  std::size_t size() const { return starts.size(); }
  const char *operator[](std::size_t i) const { return bytes.data() + starts[i]; }
  std::size_t length(std::size_t i) const {
    const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : bytes.size();
    return end - starts[i] - 1;
  }

private:
  std::string bytes;
  std::vector<std::size_t> starts;
};

// Makes a name of the text that a generator gave.
using Spelling = std::string (*)(const std::string &text);

// Identifiers such as data_valid_12, plain in every space.
Names identifiers();

// Texts such as u1/alu/reg[3], to be escaped in most languages, in some spelling.
Names escaped(Spelling spell);

// Three in four as identifiers, one as escaped: what a synthesised netlist holds.
Names mixed(Spelling spellPlain, Spelling spellEscaped);

// Identifiers, every other one replaced by a word of the list.
Names halfKeywords(const std::vector<const char *> &keywords);

// Verilog paths such as top.u_core.alu_1.data[31], or with a range of 64 bits behind two levels.
Names bitPaths();
Names busPaths();

// 200,000 bytes of names that all have one length, plain or with a backslash before every fifth character.
Names ofLength(std::size_t length, bool hasEscapes);

} // namespace bench

#endif
