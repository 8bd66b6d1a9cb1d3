#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>

#include "tools/programs/Screenshots.h"

int main(int argc, char** argv) {
  CLI::App program("Draws the windows in their states, without a display", "orlena_screenshots");
  tools::ScreenshotOptions options;
  program.add_option("FOLDER", options.out, "Folder for the pictures")->required();
  program.add_flag("--dark", options.isDark, "With a dark palette");
  program.add_option("--font-size", options.fontPoints, "Points of the system's font");
  CLI11_PARSE(program, argc, argv);
  try {
    tools::drawWindows(options);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
