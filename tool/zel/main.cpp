// zel: names between the languages and file formats of chip design, for files of them and one by one.
#include "settings.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <map>
#include <new>

namespace {

using namespace tool;

const std::map<std::string, std::int32_t> kinds = {
    {"net", ZEL_KIND_NET}, {"port", ZEL_KIND_PORT}, {"instance", ZEL_KIND_INSTANCE}, {"pin", ZEL_KIND_PIN}};
const std::map<std::string, std::int32_t> levels = {{"all", ZEL_LEVELS_ALL}, {"last", ZEL_LEVELS_LAST}};
const std::map<std::string, std::int32_t> states = {{"default", ZEL_MAP_DEFAULT},
                                                    {"match", ZEL_MAP_MATCH},
                                                    {"vhdl", ZEL_MAP_VHDL},
                                                    {"tandem", ZEL_MAP_TANDEM},
                                                    {"process", ZEL_MAP_PROCESS}};
const std::map<std::string, OnError> onErrors = {
    {"empty", OnError::empty}, {"keep", OnError::keep}, {"skip", OnError::skip}, {"stop", OnError::stop}};

// An option whose value is one of a few words.
template <typename Value>
void addChoice(CLI::App &command, const std::string &name, Value &value, const std::map<std::string, Value> &words,
               const std::string &shown, const std::string &description) {
  command
      .add_option_function<std::string>(
          name,
          [&value, &words, name, shown](const std::string &word) {
            const auto found = words.find(word);
            if (found == words.end())
              throw CLI::ValidationError(name, word + " is none of " + shown);
            value = found->second;
          },
          description)
      ->type_name(shown);
}

// What map, check and explain mean alike.
void addMappingOptions(CLI::App &command, MappingSettings &settings) {
  command.add_flag("--names", settings.isNames, "Single names; otherwise paths where the spaces have them");
  addChoice(command, "--kind", settings.kind, kinds, "net|port|instance|pin", "What the last level is (net)");
  command.add_option("--element", settings.element, "The element letter of instances in SPICE")->type_name("LETTER");
  addChoice(command, "--levels", settings.levels, levels, "all|last", "Which levels carry the element letter (all)");
  addChoice(command, "--state", settings.mapState, states, "default|match|vhdl|tandem|process",
            "The mapping state; process: that of the environment (default)");
  command.add_option("--keywords", settings.keywords, "A revision whose words are reserved, too: 1800-2017, ...")
      ->type_name("REV");
  command.add_option("--from-separators", settings.fromSeparators, "Separators, as divider=/,pin=:,bus=[]")
      ->type_name("LIST");
  command.add_option("--from-like", settings.fromLike, "Separators as the header of a file declares them")
      ->type_name("FILE");
}

void addLineOptions(CLI::App &command, LineSettings &settings) {
  command.add_option("FILE", settings.files, "Files of one name a line; '-' and none: standard input");
  command.add_option("--field", settings.field, "The field of each line, from 1; with --csv also a column's name")
      ->type_name("N");
  command.add_option("--delimiter", settings.delimiter, "What divides fields (a tab, with --csv a comma)")
      ->type_name("C");
  command.add_flag("--csv", settings.isCsv, "Fields may stand between quotes");
  command.add_flag("--null", settings.isNull, "Lines end with NUL");
  command.add_option("--jobs", settings.jobs, "How many threads (as many as there are cores)")
      ->type_name("N")
      ->check(CLI::Range(1U, 256U));
  command.add_flag("--quiet", settings.isQuiet, "Do not report refused lines");
}

int run(int argc, char **argv) {
  CLI::App app("Maps names between the languages and file formats of chip design.", "zel");
  app.set_version_flag("--version", "zel " ZEL_TOOL_VERSION);
  app.require_subcommand(1);
  app.footer("Example:\n  zel map Verilog VHDL names.txt\n\n`zel COMMAND --help` describes a command.");

  MappingSettings mapping;
  LineSettings lines;
  std::string name;

  CLI::App &map = *app.add_subcommand("map", "Map names or paths, a line for a line");
  map.add_option("FROM", mapping.from, "The space that is read")->required();
  map.add_option("TO", mapping.to, "The space that is written")->required();
  addLineOptions(map, lines);
  addMappingOptions(map, mapping);
  map.add_option("--to-separators", mapping.toSeparators, "The same of the results")->type_name("LIST");
  map.add_option("--to-like", mapping.toLike, "The same of the results")->type_name("FILE");
  map.add_flag("--explode", mapping.isExploded, "Write every bit as a name of its own");
  map.add_flag("--group", mapping.isGrouped, "Write one grouping expression");
  map.add_flag("--norepeat", mapping.isUnrepeated, "Write no repeat notation");
  map.add_flag("--top", mapping.isTop, "Write paths as the top of the hierarchy");
  map.add_flag("--lenient", mapping.isLenient, "Leave out what does not convert, as zelPathMapperEx");
  addChoice(map, "--on-error", lines.onError, onErrors, "empty|keep|skip|stop",
            "What becomes of refused lines (empty)");
  map.add_flag("--check", lines.isChecked, "Read every result back; refuse what is then another object");
  map.add_flag("--stats", lines.hasStats, "Say how many names were mapped in which time");
  map.footer("Example:\n  zel map Spef Verilog --kind pin pins.txt     # U1:A becomes U1.A");

  CLI::App &explain = *app.add_subcommand("explain", "Show one name in every space, and why it is spelt so");
  explain.add_option("NAME", name, "A name or path")->required();
  explain.add_option("--from", mapping.from, "The space that reads it; otherwise all that can are listed")
      ->type_name("SPACE");
  addMappingOptions(explain, mapping);
  explain.add_option("--to-separators", mapping.toSeparators, "Those of the spaces that let a file choose them")
      ->type_name("LIST");
  explain.add_option("--to-like", mapping.toLike, "The same, as the header of a file declares them")->type_name("FILE");
  explain.footer("Example:\n  zel explain --from Verilog 'top.\\u1/Pad .data[3]'");

  CLI::App &check = *app.add_subcommand("check", "List the lines that are no legal names or paths");
  check.add_option("SPACE", mapping.from, "The space whose rules are asked")->required();
  addLineOptions(check, lines);
  addMappingOptions(check, mapping);
  check.footer("Example:\n  zel check Verilog --names --keywords 1800-2017 names.txt");

  CLI::App &spaces = *app.add_subcommand("spaces", "List the name spaces");
  spaces.footer("Example:\n  zel spaces");

  const auto isAsked = [&](const CLI::App *command) { return command->get_name() == argv[1]; };
  if (argc > 1 && argv[1][0] != '-' && app.get_subcommands(isAsked).empty())
    throw Complaint{statusUsage, std::string("no command is called '") + argv[1] + "': map, explain, check, spaces"};
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    const int status = app.exit(error) == 0 ? statusDone : statusUsage;
    return std::cout.flush() ? status : statusFailed;
  }
  if (lines.files.empty())
    lines.files.emplace_back("-");
  if (map.parsed())
    return runMap(mapping, lines);
  if (check.parsed())
    return runCheck(mapping, lines);
  return explain.parsed() ? runExplain(mapping, name) : runSpaces();
}

} // namespace

int main(int argc, char **argv) {
  std::signal(SIGPIPE, SIG_IGN);
  try {
    return run(argc, argv);
  } catch (const tool::Complaint &complaint) {
    std::fprintf(stderr, "zel: %s\n", complaint.message.c_str());
    return complaint.status;
  } catch (const std::bad_alloc &) {
    std::fputs("zel: no memory\n", stderr);
  } catch (const std::exception &error) {
    std::fprintf(stderr, "zel: %s\n", error.what());
  }
  return tool::statusFailed;
}
