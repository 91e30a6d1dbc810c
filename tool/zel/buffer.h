// Memory that is kept from block to block and not filled.
#ifndef ZEL_TOOL_BUFFER_H
#define ZEL_TOOL_BUFFER_H

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

namespace tool {

class Buffer {
public:
  Buffer() = default;
  Buffer(const Buffer &) = delete;
  Buffer &operator=(const Buffer &) = delete;
  ~Buffer() { std::free(bytes); }

  char *data() const { return bytes; }
  std::size_t capacity() const { return room; }

  // Makes room for size bytes in all; what is there stays.
  void reserve(std::size_t size) {
    if (size <= room)
      return;
    const std::size_t wanted = size < 2 * room ? 2 * room : size;
    void *grown = std::realloc(bytes, wanted);
    if (grown == nullptr)
      throw std::bad_alloc();
    bytes = static_cast<char *>(grown);
    room = wanted;
  }

private:
  char *bytes = nullptr;
  std::size_t room = 0;
};

// Output in the making.
struct Output {
  Buffer buffer;
  std::size_t size = 0;

  std::string_view text() const { return {buffer.data(), size}; }
  void reserveMore(std::size_t more) { buffer.reserve(size + more); }
  // Where room has been made.
  void put(const char *from, std::size_t count) {
    std::memcpy(buffer.data() + size, from, count);
    size += count;
  }
  void append(std::string_view more) {
    if (more.empty())
      return;
    reserveMore(more.size());
    put(more.data(), more.size());
  }
};

} // namespace tool

#endif
