#pragma once

#include <string>

namespace app {
struct Commands;
}  // namespace app

/// What is made of the table of the program's commands.
namespace tools {

std::string manPage(const app::Commands& commands);
std::string bashCompletion(const app::Commands& commands);
std::string zshCompletion(const app::Commands& commands);
std::string fishCompletion(const app::Commands& commands);

}  // namespace tools
