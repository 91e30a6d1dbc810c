// Runs the built zelpath as a user would, and keeps what it wrote.
#ifndef RUN_TOOL_H
#define RUN_TOOL_H

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <map>
#include <ostream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

using Words = std::vector<std::string>;
using Environment = std::vector<std::pair<std::string, std::string>>;

struct Outcome {
  std::string out;
  std::string err;
  int status = 0; // of the exit; 256 and the signal's number when one ended the process

  bool operator==(const Outcome &) const = default;
};

inline std::ostream &operator<<(std::ostream &stream, const Outcome &outcome) {
  return stream << "status " << outcome.status << "\n--- output\n" << outcome.out << "--- errors\n" << outcome.err;
}

inline std::string contentsOf(std::FILE *file) {
  std::string contents;
  std::rewind(file);
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
    contents.push_back(static_cast<char>(c));
  std::fclose(file);
  return contents;
}

// The outcome of zelpath with these arguments, in our own environment less what zelpath reads of it, plus environment.
// A process that does not end within a minute is ended by SIGALRM.
inline Outcome runTool(const Words &arguments, const Environment &environment = {}) {
  std::vector<char *> argv = {const_cast<char *>("zelpath")};
  for (const std::string &argument : arguments)
    argv.push_back(const_cast<char *>(argument.c_str()));
  argv.push_back(nullptr);
  std::FILE *const out = std::tmpfile();
  std::FILE *const err = std::tmpfile();
  if (out == nullptr || err == nullptr) {
    return {"", "no temporary file", -1};
  }
  const pid_t child = fork();
  if (child == 0) {
    dup2(fileno(out), STDOUT_FILENO);
    dup2(fileno(err), STDERR_FILENO);
    unsetenv("VRN_ALT_ZEL");
    unsetenv("ZEL_USE_VHDL87_KEYWORDS");
    for (const auto &[name, value] : environment)
      setenv(name.c_str(), value.c_str(), 1);
    alarm(60);
    execv(ZELPATH_PROGRAM, argv.data());
    _exit(127);
  }
  int status = 0;
  const bool ended = child > 0 && waitpid(child, &status, 0) == child;
  Outcome outcome = {contentsOf(out), contentsOf(err), -1};
  if (ended)
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
  return outcome;
}

// The words of a text without quotes.
inline Words wordsOf(const std::string &text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

// What zelpath prints for a path that option reads: a line for each language, its own last. In texts stands first the
// text that the languages share; then, behind "; " each, the letters of those that differ and their text.
inline std::string linesOf(const std::string &option, const std::string &texts) {
  const struct {
    char letter;
    const char *option;
    const char *label;
  } languages[] = {
      {'V', "-veri", "Verilog: "}, {'T', "-tessel", "Tessel:    "},  {'K', "-kirra", "Kirra:    "},
      {'G', "-gcf", "Gcf:    "},   {'H', "-spice", "KirraHDL:    "}, {'S', "", "Spice:    "},
      {'O', "-orka", "ORKA:    "}, {'D', "-vhdl", "VHDL:    "},
  };
  std::map<char, std::string> textOf;
  size_t end = texts.find("; ");
  for (const auto &language : languages)
    textOf[language.letter] = texts.substr(0, end);
  while (end != std::string::npos) {
    const size_t start = end + 2;
    end = texts.find("; ", start);
    const std::string differing = texts.substr(start, end == std::string::npos ? end : end - start);
    const size_t blank = differing.find(' ');
    for (const char letter : differing.substr(0, blank))
      textOf.at(letter) = differing.substr(blank + 1);
  }
  std::string others;
  std::string own;
  for (const auto &language : languages)
    (language.option == option ? own : others) += language.label + textOf.at(language.letter) + "\n";
  return others + own;
}

#endif
