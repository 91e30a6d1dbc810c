// The current handle of a space whose separators a file may redefine: they are to be escaped in its names.
#ifndef ZEL_SPACES_CURRENTHANDLE_H
#define ZEL_SPACES_CURRENTHANDLE_H

#include "core/byteSet.h"
#include "core/handle.h"

#include <initializer_list>

namespace zeli {

constexpr ByteSet separatorSet(std::initializer_list<char> separators) {
  ByteSet set;
  for (const char c : separators)
    set.add(c);
  return set;
}

// Every module keeps its own, `thread_local` so that threads may map with different handles. Null stands for the
// built-in handle of the space.
inline const Separators &separatorsInForce(zelHandle current, zelHandle builtIn) {
  return (current != nullptr ? current : builtIn)->separators;
}

// Puts a handle, unless it is null, in force for one call; also for what the caller's allocator asks during it. The end
// of the call puts the built-in handle in force again, and not the one before, when calls are nested.
class HandleScope {
public:
  HandleScope(zelHandle &namespaceHandle, zelHandle handle) : current(handle != nullptr ? &namespaceHandle : nullptr) {
    if (current != nullptr)
      *current = handle;
  }
  ~HandleScope() {
    if (current != nullptr)
      *current = nullptr;
  }
  HandleScope(const HandleScope &) = delete;
  HandleScope &operator=(const HandleScope &) = delete;

private:
  zelHandle *current;
};

} // namespace zeli

#endif
