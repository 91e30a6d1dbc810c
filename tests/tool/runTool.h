// Runs the built zelpath as a user would, and keeps what it wrote.
#ifndef RUN_TOOL_H
#define RUN_TOOL_H

#include <cstdio>
#include <cstdlib>
#include <ostream>
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

inline const char *toolPath() {
#ifdef ZELPATH_PROGRAM
  return ZELPATH_PROGRAM;
#else
  const char *const path = std::getenv("ZELPATH_PROGRAM");
  return path != nullptr ? path : "";
#endif
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
    execv(toolPath(), argv.data());
    _exit(127);
  }
  int status = 0;
  const bool ended = child > 0 && waitpid(child, &status, 0) == child;
  Outcome outcome = {contentsOf(out), contentsOf(err), -1};
  if (ended)
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
  return outcome;
}

#endif
