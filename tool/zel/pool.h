// Blocks worked on by several threads, and handed on in order.
#ifndef ZEL_TOOL_POOL_H
#define ZEL_TOOL_POOL_H

#include "lines.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <queue>
#include <thread>
#include <vector>

namespace tool {

// What a thread does with a block; it has something of its own to do it with.
using Work = std::function<void(Block &)>;

class Pool {
public:
  // One thread for each work; with a single one no thread, and add does it.
  explicit Pool(std::vector<Work> works);
  Pool(const Pool &) = delete;
  Pool &operator=(const Pool &) = delete;
  ~Pool();

  void add(Block &block);
  // Returns when a block that was added is done.
  void wait(const Block &block);
  bool isDone(const Block &block);

private:
  void run(const Work &work);

  std::vector<Work> works;
  std::mutex mutex;
  std::condition_variable added;
  std::condition_variable done;
  std::queue<Block *> waiting;
  bool isEnding = false;
  std::vector<std::thread> threads;
};

// Reads every block, has it worked on, and calls finish for one after the other until that says false. prepare may
// refuse a block that was read, which ends the reading.
void runBlocks(const std::vector<std::string> &files, const LineFormat &format, std::vector<Work> works,
               const std::function<bool(const LineReader &, Block &)> &prepare,
               const std::function<bool(const LineReader &, Block &)> &finish, bool &hasFailed);

} // namespace tool

#endif
