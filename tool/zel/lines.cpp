// Blocks of about a megabyte, cut behind their last line.
#include "lines.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tool {

namespace {

constexpr std::size_t blockSize = std::size_t{1} << 20;

bool isStandardInput(const std::string &name) { return name == "-"; }

} // namespace

CsvState nextCsvState(CsvState state, char c, char delimiter) {
  if (state == CsvState::quoted)
    return c == '"' ? CsvState::quoteInQuoted : CsvState::quoted;
  if (c == '"' && state == CsvState::fieldStart)
    return CsvState::quoted;
  if (c == '"' && state == CsvState::quoteInQuoted)
    return CsvState::quoted;
  return c == delimiter || c == '\n' ? CsvState::fieldStart : CsvState::plain;
}

LineReader::LineReader(const std::vector<std::string> &fileNames, const LineFormat &lineFormat, Idle idle)
    : files(fileNames), format(lineFormat), onIdle(std::move(idle)) {}

LineReader::~LineReader() { close(); }

void LineReader::close() {
  if (descriptor > STDIN_FILENO)
    ::close(descriptor);
  descriptor = -1;
}

void LineReader::fail(const char *what) {
  std::fprintf(stderr, "zel: %s: %s\n", what, std::strerror(errno));
  failed = true;
}

std::uint64_t LineReader::bytesInAll() const {
  std::uint64_t sum = 0;
  for (const std::string &file : files) {
    struct stat status = {};
    const int error = isStandardInput(file) ? ::fstat(STDIN_FILENO, &status) : ::stat(file.c_str(), &status);
    if (error != 0 || !S_ISREG(status.st_mode))
      return 0;
    sum += static_cast<std::uint64_t>(status.st_size);
  }
  return sum;
}

// The next file that can be opened.
bool LineReader::open() {
  while (nextFile < files.size()) {
    const std::string &name = files[nextFile++];
    descriptor = isStandardInput(name) ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
      isNewFile = true;
      line = 1;
      state = CsvState::fieldStart;
      return true;
    }
    fail(name.c_str());
  }
  return false;
}

bool LineReader::isReady() const {
  pollfd ask = {descriptor, POLLIN, 0};
  return ::poll(&ask, 1, 0) != 0;
}

// Where the last line that is whole ends, of the bytes from a place on.
void LineReader::findEnd(const Block &block, std::size_t from, std::size_t &lineEnd) {
  const char *const bytes = block.input.data();
  if (!format.isCsv) {
    if (const void *last = ::memrchr(bytes + from, format.end, block.size - from); last != nullptr)
      lineEnd = static_cast<std::size_t>(static_cast<const char *>(last) - bytes) + 1;
    return;
  }
  for (std::size_t i = from; i < block.size; ++i) {
    if (bytes[i] == '\n' && state != CsvState::quoted)
      lineEnd = i + 1;
    state = nextCsvState(state, bytes[i], format.delimiter);
  }
}

// Reads until the block is full; false at the end of the file. What is there already when more is to be waited for
// makes a block, so that a program which asks line by line is answered.
bool LineReader::fill(Block &block, std::size_t &lineEnd) {
  while (block.size < blockSize || lineEnd == 0) {
    if (!isReady()) {
      if (lineEnd != 0)
        return true;
      onIdle();
    }
    if (block.size == block.input.capacity())
      block.input.reserve(2 * block.size);
    const ssize_t count = ::read(descriptor, block.input.data() + block.size, block.input.capacity() - block.size);
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
      continue;
    if (count < 0)
      fail(files[nextFile - 1].c_str());
    if (count <= 0)
      return false;
    const std::size_t from = block.size;
    block.size += static_cast<std::size_t>(count);
    total += static_cast<std::uint64_t>(count);
    findEnd(block, from, lineEnd);
  }
  return true;
}

bool LineReader::next(Block &block) {
  while (descriptor >= 0 || open()) {
    block.file = files[nextFile - 1].c_str();
    block.firstLine = line;
    block.input.reserve(std::max(blockSize, rest.size()));
    rest.copy(block.input.data(), rest.size());
    block.size = rest.size();
    rest.clear();
    // The rest of a block holds no line end.
    std::size_t lineEnd = 0;
    if (fill(block, lineEnd)) {
      rest.assign(block.input.data() + lineEnd, block.size - lineEnd);
      block.size = lineEnd;
    } else {
      close();
    }
    if (block.size == 0)
      continue;
    block.beginsFile = isNewFile;
    isNewFile = false;
    line += static_cast<std::uint64_t>(std::count(block.input.data(), block.input.data() + block.size, format.end));
    return true;
  }
  return false;
}

} // namespace tool
