#include <algorithm>

#include "app/Commands.h"
#include "tools/programs/Documents.h"

namespace tools {
namespace {

using Options = std::vector<const CLI::Option*>;

/// Those with a name that begins with hyphens.
Options namedOptions(const CLI::App& command) {
  return command.get_options([](const CLI::Option* option) { return !option->get_positional(); });
}

/// The positional argument, or null.
const CLI::Option* argumentOf(const CLI::App& command) {
  const Options options = command.get_options();
  const auto found = std::find_if(options.begin(), options.end(),
                                  [](const CLI::Option* each) { return each->get_positional(); });
  return found == options.end() ? nullptr : *found;
}

/// "json" for "ANSWERS.json"; empty: what is asked for is no file.
std::string extensionOf(const CLI::Option& option) {
  const std::string name = app::valueName(option);
  const std::size_t point = name.find('.');
  return point == std::string::npos ? "" : name.substr(point + 1);
}

std::string longName(const CLI::Option& option) { return "--" + option.get_lnames().front(); }

std::string bashFiles(const std::string& extension) {
  return "compgen -d -- \"$word\"; compgen -f -X '!*." + extension + "' -- \"$word\"";
}

/// What bash offers for the value of an option.
std::string bashValues(const CLI::Option& option) {
  const std::string extension = extensionOf(option);
  if (app::valueName(option) == "FOLDER") return "compgen -d -- \"$word\"";
  if (extension.empty()) return "";
  return bashFiles(extension);
}

std::string bashCase(const std::string& pattern, const std::string& values) {
  const std::string offers = values.empty() ? "" : " offered=$(" + values + ")";
  return "    \"" + pattern + "\")" + offers + " ;;\n";
}

std::string bashCommand(const CLI::App& command) {
  std::string cases;
  std::string names;
  for (const CLI::Option* option : namedOptions(command)) {
    names += (names.empty() ? "" : " ") + longName(*option);
    if (!app::isFlag(*option)) {
      cases += bashCase(command.get_name() + " " + longName(*option), bashValues(*option));
    }
  }
  const CLI::Option* argument = argumentOf(command);
  std::string all = "compgen -W '" + names + "' -- \"$word\"";
  if (argument) all += "; " + bashValues(*argument);
  return cases + "    \"" + command.get_name() + " \"*) offered=$(" + all + ") ;;\n";
}

/// A text between the brackets of a zsh option.
std::string zshText(const std::string& text) {
  std::string all;
  for (const char c : text) {
    if (c == '\'') {
      all += "'\\''";
    } else {
      all += c == ':' || c == '[' || c == ']' ? std::string("\\") + c : std::string(1, c);
    }
  }
  return all;
}

std::string zshValues(const CLI::Option& option) {
  const std::string extension = extensionOf(option);
  const std::string name = ":" + zshText(app::valueName(option)) + ":";
  if (app::valueName(option) == "FOLDER") return name + "_files -/";
  return extension.empty() ? name : name + "_files -g \"*." + extension + "\"";
}

std::string zshCommand(const CLI::App& command) {
  std::string all = "    " + command.get_name() + ") _arguments";
  for (const CLI::Option* option : namedOptions(command)) {
    all += " \\\n      '" + longName(*option) + "[" + zshText(option->get_description()) + "]" +
           (app::isFlag(*option) ? "" : zshValues(*option)) + "'";
  }
  if (const CLI::Option* argument = argumentOf(command)) {
    all += " \\\n      '*" + zshValues(*argument) + "'";
  }
  return all + " ;;\n";
}

/// A text between the quotation marks of fish.
std::string fishText(const std::string& text) {
  std::string all;
  for (const char c : text) {
    if (c == '\'' || c == '\\') all += '\\';
    all += c;
  }
  return "'" + all + "'";
}

std::string fishFiles(const std::string& extension) {
  return " -kxa '(__fish_complete_suffix ." + extension + ")'";
}

std::string fishValues(const CLI::Option& option) {
  const std::string extension = extensionOf(option);
  if (app::valueName(option) == "FOLDER") return " -xa '(__fish_complete_directories)'";
  return extension.empty() ? " -x" : fishFiles(extension);
}

std::string fishCommand(const CLI::App& command) {
  const std::string name = command.get_name();
  std::string all = "complete -c orlena -n __fish_use_subcommand -a " + name + " -d " +
                    fishText(command.get_description()) + "\n";
  const std::string start = "complete -c orlena -n '__fish_seen_subcommand_from " + name + "'";
  for (const CLI::Option* option : namedOptions(command)) {
    all += start + " -l " + option->get_lnames().front() + " -d " +
           fishText(option->get_description()) + (app::isFlag(*option) ? "" : fishValues(*option)) +
           "\n";
  }
  if (const CLI::Option* argument = argumentOf(command)) {
    all += start + fishValues(*argument) + "\n";
  }
  return all;
}

}  // namespace

std::string bashCompletion(const app::Commands& commands) {
  std::string names;
  std::string cases;
  for (const app::Command& command : commands.all) {
    names += command.parsed->get_name() + " ";
    cases += bashCommand(*command.parsed);
  }
  return "_orlena() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} offered\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
         "    offered=$(compgen -W '" +
         names + "--help --version' -- \"$word\"; " + bashFiles("ts[ay]") +
         ")\n"
         "  else case \"${COMP_WORDS[1]} $before\" in\n" +
         cases +
         "  esac fi\n"
         "  local IFS=$'\\n'\n"
         "  COMPREPLY=($offered)\n"
         "}\n"
         "complete -o filenames -F _orlena orlena\n";
}

std::string zshCompletion(const app::Commands& commands) {
  std::string names;
  std::string cases;
  for (const app::Command& command : commands.all) {
    const CLI::App& parsed = *command.parsed;
    names += "    '" + parsed.get_name() + ":" + zshText(parsed.get_description()) + "'\n";
    cases += zshCommand(parsed);
  }
  return "#compdef orlena\n"
         "local -a commands=(\n" +
         names +
         "  )\n"
         "if (( CURRENT == 2 )); then\n"
         "  _describe command commands\n"
         "  _files -g \"*.ts[ay]\"\n"
         "else\n"
         "  shift words\n"
         "  (( CURRENT-- ))\n"
         "  case $words[1] in\n" +
         cases +
         "  esac\n"
         "fi\n";
}

std::string fishCompletion(const app::Commands& commands) {
  std::string all = "complete -c orlena -f\n";
  for (const app::Command& command : commands.all) all += fishCommand(*command.parsed);
  return all + "complete -c orlena -n __fish_use_subcommand" + fishFiles("tsy") +
         "\ncomplete -c orlena -n __fish_use_subcommand" + fishFiles("tsa") +
         "\ncomplete -c orlena -n __fish_use_subcommand -l help\n"
         "complete -c orlena -n __fish_use_subcommand -l version\n";
}

}  // namespace tools
