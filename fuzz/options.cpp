// The option scanner on any command line.
#include "fuzz.h"
#include "zptOpt.h"

#include <vector>

using namespace fuzz;

namespace {

// By counting instead of by order: the code of the one row that begins with word, if no row is the word itself.
int32_t lookupByCounting(const std::string &word) {
  int32_t code = zptNoMatch;
  for (const zptOption *row = zptOptions; row->name != nullptr; ++row) {
    if (word == row->name)
      return row->code;
    if (std::strncmp(row->name, word.c_str(), word.size()) == 0)
      code = code == zptNoMatch ? row->code : zptAmbiguous;
  }
  return code;
}

bool isOneOf(const std::vector<const char *> &words, const char *word) {
  for (const char *candidate : words)
    if (candidate == word)
      return true;
  return word == nullptr;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  return std::freopen("/dev/null", "w", stdout) != nullptr ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  std::vector<std::string> storage = {"zelpath"};
  while (input.remaining_bytes() != 0)
    storage.push_back(input.ConsumeRandomLengthString(16).c_str());
  std::vector<const char *> words;
  words.reserve(storage.size());
  for (const std::string &word : storage)
    words.push_back(word.c_str());

  zptPath = zptMutatePath = fromSpace = toSpace = nullptr;
  zptPathType = zptVerilog;
  zptExplode = zptGroup = zptDoHelp = zptParse = zptNoRepeat = zptNoComplex = zptTop = zptMap = false;
  zptParseCmd(static_cast<int>(words.size()), words.data());
  require(zptPathType >= zptVerilog && zptPathType <= zptGcf, "path type");
  for (const char *taken : {zptPath, zptMutatePath, fromSpace, toSpace})
    require(isOneOf(words, taken), "what is taken is an argument");
  require((fromSpace == nullptr) == (toSpace == nullptr), "map takes two spaces");

  for (const std::string &word : storage) {
    // Every byte below the letters or above them sorts before or behind all rows, as it counts.
    const bool isLowered = word.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos;
    if (isLowered)
      require(zptLookup(word.c_str()) == lookupByCounting(word), "an option is found by its unique prefixes");
  }
  return 0;
}
