// Standard output and standard error of a command on their way.
#ifndef ZEL_TOOL_OUTPUT_H
#define ZEL_TOOL_OUTPUT_H

#include "lines.h"

#include <chrono>

namespace tool {

enum class Written : std::uint8_t { all, closed, failed };

// Writes to standard output; a failure is reported, but for a closed pipe.
Written writeAll(std::string_view bytes);

// Flushes what stdio holds and closes standard output.
Written closeOutput();

// Writes the blocks of a command that maps in order, reports what is refused, and shows how far it is.
class Progress {
public:
  Progress(bool isQuietOption, bool showsRefusals, char lineEnd);

  // False when nothing more can or should be written.
  bool finish(const LineReader &reader, const Block &block);

  // The last words: how many lines were not shown, and the numbers when they are wanted.
  void end(bool hasStats, std::uint64_t bytes);

  bool isRefused() const { return refused != 0; }
  bool hasFailed() const { return failed; }

private:
  void showBar(const LineReader &reader);
  void clearBar();
  double seconds() const;

  bool isQuiet;
  bool showsLines;
  char end_;
  bool hasBar;
  bool hasColour;
  bool isBarShown = false;
  bool isEndOpen = false; // the last line written has no end
  bool failed = false;
  std::uint64_t names = 0;
  std::uint64_t refused = 0;
  std::uint64_t reported = 0;
  std::uint64_t total = 0; // bytes of all input, once it is known
  std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
  double lastBar = 0;
};

} // namespace tool

#endif
