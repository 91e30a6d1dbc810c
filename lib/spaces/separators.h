// The separator characters of the formats whose files may redefine them, as they are by default; those of the spaces
// whose names escape them. (The languages of paths add the others.)
#ifndef ZEL_SPACES_SEPARATORS_H
#define ZEL_SPACES_SEPARATORS_H

namespace zeli {

struct Separators {
  char pinDelimiter;
  char divider;
  char busOpen;
  char busClose;

  friend constexpr bool operator==(const Separators &, const Separators &) = default;
};

constexpr Separators sdfSeparators = {'/', '/', '[', ']'};
constexpr Separators spfSeparators = {':', '/', '[', ']'};
constexpr Separators spefSeparators = {'/', '/', '[', ']'};
constexpr Separators gcfSeparators = {'.', '.', '<', '>'};
constexpr Separators lefSeparators = {'/', '/', '[', ']'};
constexpr Separators defSeparators = {'/', '/', '[', ']'};

} // namespace zeli

#endif
