// The mapping of names between spaces.
#include "spaces/spaces.h"

using namespace zeli;

namespace {

// Whether a name without the barred traits is a word that a space takes as it stands. In the default mapping state
// only, which this must not determine.
inline bool takesWord(const Operations &space, const Name &name, Traits barred) {
  return !name.has(traitOther | barred) && !hasPrefix(name.look.traits, name.head()) &&
         zelMapState.load(std::memory_order_relaxed) == ZEL_MAP_DEFAULT && !space.plainWords.isKeyword(name) &&
         handleInForce(space) == nullptr;
}

// Whether it is so in both.
inline bool isPlain(const Name &name, const Operations &from, const Operations &to) {
  return takesWord(from, name, barredBetween(from.plainWords, to.plainWords)) && !to.plainWords.isKeyword(name) &&
         handleInForce(to) == nullptr;
}

// The Ident of a word that stands as it is.
Ident identOfWord(const Name &word, const PlainWords &words) {
  const char marker = words.readAs;
  return marker != '\0' ? Ident{marker, word} : identByCase(word);
}

// By way of the Ident.
[[gnu::noinline]] char *mapGeneral(const Name &given, const Space &from, const Space &to, zelAllocFunc alloc,
                                   void *context) {
  Text readWork;
  const Ident ident = from.names->read(given, {}, readWork);
  if (to.id == SpaceId::Ident && ident.body.data() != nullptr)
    return makeIdent(ident, alloc, context, maxName - 1); // the marker counts
  if (!isNameLength(ident.body))
    return makeString(refuse(), alloc, context);
  Text writeWork;
  return makeSpelled(to.names->write(ident, {}, writeWork), writeWork, alloc, context);
}

} // namespace

char *zelMapName(const char *fromName, const char *toName, const char *name, zelAllocFunc alloc,
                 void *context) noexcept {
  const SpaceId fromId = recognise(fromName);
  const SpaceId toId = recognise(toName);
  if (fromId == SpaceId::none || toId == SpaceId::none)
    return nullptr;
  const Space &from = spaceOf(fromId);
  const Space &to = spaceOf(toId);
  if (fromId == SpaceId::Ident)
    return to.descriptor.identToName(name, alloc, context);

  const Bytes bytes = nameBytes(name);
  const Name given(bytes, lookHere(bytes));
  if (alloc == nullptr && isNameLength(given)) {
    if (toId != SpaceId::Ident && isPlain(given, *from.names, *to.names))
      return makeString(given, alloc, context);
    if (toId == SpaceId::Ident && given.size() < maxName &&
        takesWord(*from.names, given, from.names->plainWords.notRead))
      return makeIdent(identOfWord(given, from.names->plainWords), alloc, context);
  }
  return mapGeneral(given, from, to, alloc, context);
}
char *zelMapper(zelNameToIdentFunc nameToIdent, zelIdentToNameFunc identToName, const char *name, zelAllocFunc alloc,
                void *context) noexcept {
  if (nameToIdent == nullptr || identToName == nullptr)
    return nullptr;
  char ident[maxName + 2];
  return identToName(nameToIdent(name, nullptr, ident), alloc, context);
}
