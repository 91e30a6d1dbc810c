// The spaces whose separators a file may redefine: they are to be escaped in its names. Which ones those are a handle
// says, the current one during a call with a handle, and otherwise the built-in one.
#ifndef ZEL_SPACES_REDEFINABLE_H
#define ZEL_SPACES_REDEFINABLE_H

#include "spaces/exports.h"
#include "spaces/handle.h"
#include "spaces/spaces.h"

#include <type_traits>

namespace zeli {

// Puts a handle, unless it is null, in force for one call; also for what the caller's allocator asks during it. The end
// of the call puts the built-in handle in force again, and not the one before, when calls are nested.
class HandleScope {
public:
  HandleScope(zelHandle &namespaceHandle, zelHandle handle) : current(handle != nullptr ? &namespaceHandle : nullptr) {
    if (current == nullptr)
      return;
    if (!wasHandleInForce.load(std::memory_order_relaxed))
      wasHandleInForce.store(true, std::memory_order_relaxed);
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

template <const Operations &names, BackslashRules (*rulesUnder)(const Separators &), Separators defaults>
struct RedefinableRules {
  static constexpr BackslashRules builtIn = rulesUnder(defaults);
  static constexpr PlainWords plainWords() { return anyWord; } // under the built-in handle
  static constexpr auto makeRules = rulesUnder;

  // Calls ask with the rules under a handle, null standing for the current one.
  template <typename Ask> [[gnu::always_inline]] auto under(zelHandle handle, const Ask &ask) const {
    if (handle == nullptr)
      handle = handleInForce(namespaceHandle);
    if (handle == nullptr)
      return ask(builtIn);
    if (handle->names == &names)
      return ask(handle->rules == nullptr ? builtIn : *handle->rules);
    return ask(rulesUnder(handle->separators)); // the handle of another space
  }

  bool isLegal(const Name &name) const {
    return under(nullptr, [&](const BackslashRules &rules) { return rules.isLegal(name); });
  }
  Ident read(const Name &name, const Setting &setting, Text &work) const {
    return under(setting.handle, [&](const BackslashRules &rules) { return rules.read(name, setting, work); });
  }
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const {
    return under(setting.handle, [&](const BackslashRules &rules) { return rules.write(ident, setting, work); });
  }
  zelRefusal explain(const Name &name) const {
    return under(nullptr, [&](const BackslashRules &rules) { return rules.explain(name); });
  }
  bool isPlain(char c) const {
    return under(nullptr, [c](const BackslashRules &rules) { return rules.plain.has(c); });
  }
  bool isEscapable(char c) const {
    return under(nullptr, [c](const BackslashRules &rules) { return rules.escapable.has(c); });
  }

  // The current handle of the space in this thread, so that threads may map with different ones.
  static zelHandle &namespaceHandle() {
    constinit static thread_local zelHandle current = nullptr;
    return current;
  }
};

template <const auto &rules, typename Rules = std::remove_cvref_t<decltype(rules)>>
constexpr Operations redefinableOperationsOf = {
    operationsOf<rules>.isLegal, operationsOf<rules>.read, operationsOf<rules>.write, operationsOf<rules>.explain,
    rules.plainWords(),          Rules::namespaceHandle,   Rules::makeRules};

} // namespace zeli

// A test of one character under the current handle.
#define ZEL_EXPORT_CHARACTER_UNDER_HANDLE(function, test)                                                              \
  int function(int c) noexcept { return test(static_cast<char>(c)) ? 1 : 0; }

// zelIdentTo<X>WithHandle, zel<X>ToIdentWithHandle
#define ZEL_EXPORT_WRITER_WITH_HANDLE(function, rules)                                                                 \
  char *function(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {                    \
    const zeli::HandleScope scope((rules).namespaceHandle(), handle);                                                  \
    return zeli::writeName(rules, ident, alloc, context);                                                              \
  }
#define ZEL_EXPORT_READER_WITH_HANDLE(function, rules)                                                                 \
  char *function(const char *name, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {                     \
    const zeli::HandleScope scope((rules).namespaceHandle(), handle);                                                  \
    return zeli::readName(rules, name, alloc, context);                                                                \
  }

#endif
