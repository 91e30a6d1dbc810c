// Files as blocks of whole lines.
#ifndef ZEL_TOOL_LINES_H
#define ZEL_TOOL_LINES_H

#include "buffer.h"
#include "refusals.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tool {

// Some lines on their way from input to output.
struct Block {
  const char *file = "";
  Buffer input;
  std::size_t size = 0;
  std::uint64_t firstLine = 1;
  bool beginsFile = false;
  std::size_t headerSize = 0; // of what stands in front of the lines and is no line to map
  std::uint32_t field = 0;    // to be mapped, from 1; 0 for the whole line

  Output output;
  std::uint64_t names = 0;
  Refusals refusals;
  bool isStopped = false; // what follows is not to be written
  bool hasFailed = false; // for lack of memory
  bool isDone = false;

  std::string_view text() const { return {input.data(), size}; }
};

// How lines end.
struct LineFormat {
  char end = '\n';
  bool isCsv = false; // a line end between quotes is none
  char delimiter = '\t';
};

// What a record of comma-separated values looks like at a place.
enum class CsvState : std::uint8_t { fieldStart, plain, quoted, quoteInQuoted };
CsvState nextCsvState(CsvState state, char c, char delimiter);

class LineReader {
public:
  // Called before a wait for input that may be long. The files' names are kept.
  using Idle = std::function<void()>;
  LineReader(const std::vector<std::string> &fileNames, const LineFormat &lineFormat, Idle idle);
  LineReader(const LineReader &) = delete;
  LineReader &operator=(const LineReader &) = delete;
  ~LineReader();

  // Fills the input of a block; false behind the last.
  bool next(Block &block);

  bool hasFailed() const { return failed; }
  std::uint64_t bytesRead() const { return total; }
  // Of all files, or 0 when one of them does not say.
  std::uint64_t bytesInAll() const;

private:
  bool open();
  void close();
  void fail(const char *what);
  bool isReady() const;
  bool fill(Block &block, std::size_t &lineEnd);
  void findEnd(const Block &block, std::size_t from, std::size_t &lineEnd);

  const std::vector<std::string> &files;
  LineFormat format;
  Idle onIdle;
  std::size_t nextFile = 0;
  int descriptor = -1;
  bool isNewFile = false;
  bool failed = false;
  std::uint64_t line = 1;
  std::uint64_t total = 0;
  CsvState state = CsvState::fieldStart;
  std::string rest; // begins the next block
};

} // namespace tool

#endif
