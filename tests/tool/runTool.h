// Runs the built zelpath as a user would, and keeps what it wrote.
#ifndef RUN_TOOL_H
#define RUN_TOOL_H

#include <cstdio>
#include <cstdlib>
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

// What zelpath prints for a path that option reads: a line for each language, its own last. In texts stands first the
// text that the languages share; then, behind "; " each, the short names of those that differ and their text.
inline std::string linesOf(const std::string &option, const std::string &texts) {
  const std::pair<std::string, std::string> languages[] = {
      {"veri", "Verilog: "},     {"tessel", "Tessel:    "}, {"kirra", "Kirra:    "}, {"gcf", "Gcf:    "},
      {"hdl", "KirraHDL:    "}, {"spice", "Spice:    "},   {"orka", "ORKA:    "},   {"vhdl", "VHDL:    "},
  };
  std::map<std::string, std::string> textOf;
  size_t end = texts.find("; ");
  for (const auto &[name, label] : languages)
    textOf[name] = texts.substr(0, end);
  while (end != std::string::npos) {
    const size_t start = end + 2;
    end = texts.find("; ", start);
    const std::string differing = texts.substr(start, end == std::string::npos ? end : end - start);
    const size_t blank = differing.find(' ');
    std::istringstream names(differing.substr(0, blank));
    for (std::string name; std::getline(names, name, ',');)
      textOf.at(name) = differing.substr(blank + 1);
  }
  const std::string input = option == "-spice" ? "hdl" : option.substr(1);
  std::string lines;
  std::string own;
  for (const auto &[name, label] : languages)
    (name == input ? own : lines) += label + textOf.at(name) + "\n";
  return lines + own;
}

#endif
