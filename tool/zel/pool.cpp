#include "pool.h"

#include <new>

namespace tool {

namespace {

void doWork(const Work &work, Block &block) {
  block.output.size = 0;
  block.names = 0;
  block.refusals.clear();
  block.isStopped = false;
  block.hasFailed = false;
  try {
    work(block);
  } catch (const std::bad_alloc &) {
    block.hasFailed = true;
  }
}

} // namespace

Pool::Pool(std::vector<Work> poolWorks) : works(std::move(poolWorks)) {
  if (works.size() > 1)
    for (const Work &work : works)
      threads.emplace_back([this, &work] { run(work); });
}

Pool::~Pool() {
  {
    const std::lock_guard lock(mutex);
    isEnding = true;
    waiting = {};
  }
  added.notify_all();
  for (std::thread &thread : threads)
    thread.join();
}

void Pool::run(const Work &work) {
  std::unique_lock lock(mutex);
  for (;;) {
    added.wait(lock, [this] { return isEnding || !waiting.empty(); });
    if (waiting.empty())
      return;
    Block &block = *waiting.front();
    waiting.pop();
    lock.unlock();
    doWork(work, block);
    lock.lock();
    block.isDone = true;
    done.notify_one();
  }
}

void Pool::add(Block &block) {
  if (threads.empty()) {
    doWork(works.front(), block);
    block.isDone = true;
    return;
  }
  {
    const std::lock_guard lock(mutex);
    block.isDone = false;
    waiting.push(&block);
  }
  added.notify_one();
}

void Pool::wait(const Block &block) {
  std::unique_lock lock(mutex);
  done.wait(lock, [&block] { return block.isDone; });
}

bool Pool::isDone(const Block &block) {
  const std::lock_guard lock(mutex);
  return block.isDone;
}

void runBlocks(const std::vector<std::string> &files, const LineFormat &format, std::vector<Work> works,
               const std::function<bool(const LineReader &, Block &)> &prepare,
               const std::function<bool(const LineReader &, Block &)> &finish, bool &hasFailed) {
  // As many as keep every thread busy while the first is written and another is read.
  std::vector<Block> ring(works.size() > 1 ? 2 * works.size() + 2 : 1);
  Pool pool(std::move(works));
  std::size_t first = 0;
  std::size_t last = 0;
  bool goesOn = true;
  const LineReader *source = nullptr;
  const auto finishFirst = [&] {
    Block &block = ring[first % ring.size()];
    pool.wait(block);
    ++first;
    goesOn = goesOn && finish(*source, block);
  };
  LineReader reader(files, format, [&] {
    while (first != last)
      finishFirst();
  });
  source = &reader;
  while (goesOn) {
    while (first != last && (last - first == ring.size() || pool.isDone(ring[first % ring.size()])))
      finishFirst();
    Block &block = ring[last % ring.size()];
    // cppcheck-suppress knownConditionTrueFalse ; finishFirst ends it
    if (!goesOn || !reader.next(block) || !goesOn || !prepare(reader, block))
      break;
    ++last;
    pool.add(block);
  }
  // cppcheck-suppress knownConditionTrueFalse
  while (first != last && goesOn)
    finishFirst();
  hasFailed = hasFailed || reader.hasFailed();
}

} // namespace tool
