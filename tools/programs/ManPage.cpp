#include "app/Commands.h"
#include "tools/programs/Documents.h"

namespace tools {
namespace {

/// A text as it stands in a man page, where a hyphen and a point at the start of a line mean more.
std::string escaped(const std::string& text) {
  std::string all;
  for (const char c : text) {
    if (c == '-' || c == '\\') all += '\\';
    all += c;
  }
  return all.starts_with('.') || all.starts_with('\'') ? "\\&" + all : all;
}

std::string bold(const std::string& text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(const std::string& text) { return "\\fI" + escaped(text) + "\\fR"; }

std::string entry(const std::string& term, const std::string& text) {
  return ".TP\n" + term + "\n" + escaped(text) + "\n";
}

std::string entries(const std::vector<app::Meaning>& meanings) {
  std::string all;
  for (const auto& [word, meaning] : meanings) all += entry(bold(word), meaning);
  return all;
}

std::string term(const CLI::Option& option) {
  if (option.get_positional()) return italic(app::valueName(option));
  const std::string name = bold(option.get_name());
  return app::isFlag(option) ? name : name + " " + italic(app::valueName(option));
}

/// The arguments of a command on one line, those that may be left out in brackets.
std::string usage(const CLI::App& command) {
  std::string line = ".B orlena " + command.get_name() + "\n";
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_name() == "--help") continue;
    const std::string several = option->get_items_expected_max() > 1 ? "..." : "";
    line += (option->get_required() ? term(*option) : "[" + term(*option) + "]") + several + "\n";
  }
  return line;
}

std::string section(const app::Command& command) {
  std::string all = ".SS " + escaped(command.parsed->get_name()) + "\n" +
                    escaped(command.parsed->get_description()) + ".\n.PP\n" +
                    usage(*command.parsed);
  for (const CLI::Option* option : command.parsed->get_options()) {
    all += entry(term(*option), option->get_description());
  }
  return all + ".PP\nExit status:\n" + entries(command.exitStatuses);
}

}  // namespace

std::string manPage(const app::Commands& commands) {
  std::string page =
      ".TH ORLENA 1 \"\" \"orlena " ORLENA_VERSION
      "\" \"User Commands\"\n"
      ".SH NAME\norlena \\- the wizard for audio/video rooms, with a person or unattended\n"
      ".SH SYNOPSIS\n.B orlena\n.RI [ FILE ]\n.br\n.B orlena\n.I COMMAND\n.RI [ OPTIONS ]\n"
      ".SH DESCRIPTION\nWithout a command the main window of the host opens, from which the wizard "
      "is started. A system (.tsy), or the one in an archive (.tsa), is opened there.\n.SH COMMANDS\n";
  for (const app::Command& command : commands.all) page += section(command);
  return page + ".SH ENVIRONMENT\n" + entries(app::environmentVariables());
}

}  // namespace tools
