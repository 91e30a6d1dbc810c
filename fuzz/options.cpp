// The option scanner on any command line.
#include "fuzz.h"
#include "zptOpt.h"

#include <list>

namespace {

// By counting instead of by order: the code of the one row that begins with word, if no row is the word itself.
int32_t lookupByCounting(const std::string &word) {
  int32_t code = zptNoMatch;
  for (const zptOption *row = zptOptions; row->name != nullptr; ++row) {
    if (word == row->name)
      return row->code;
    if (std::string(row->name).starts_with(word))
      code = code == zptNoMatch ? row->code : zptAmbiguous;
  }
  return code;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static const bool isSilent = std::freopen("/dev/null", "w", stdout) != nullptr;
  require(isSilent, "the complaints are thrown away");
  FuzzedDataProvider input(data, size);
  std::list<std::string> arguments = {"zelpath"};
  std::vector<const char *> words = {arguments.front().c_str()};
  while (input.remaining_bytes() != 0)
    words.push_back(arguments.emplace_back(input.ConsumeRandomLengthString(16)).c_str());

  zptPath = zptMutatePath = fromSpace = toSpace = nullptr;
  zptPathType = zptVerilog;
  zptExplode = zptGroup = zptDoHelp = zptParse = zptNoRepeat = zptNoComplex = zptTop = zptMap = false;
  zptParseCmd(static_cast<int>(words.size()), words.data());
  for (const char *taken : {zptPath, zptMutatePath, fromSpace, toSpace})
    require(taken == nullptr || std::count(words.begin(), words.end(), taken) == 1, "what is taken is an argument");
  require((fromSpace == nullptr) == (toSpace == nullptr), "map takes two spaces");

  for (std::string word : words) {
    const int32_t code = zptLookup(word.c_str());
    zelToLowerCopy(word.data(), word.c_str());
    require(code == lookupByCounting(word), "an option is found by its unique prefixes, in any case");
  }
  return 0;
}
