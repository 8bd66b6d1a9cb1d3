#pragma once

namespace app {

/// Does what the command line asks for and answers the program's exit status.
int run(int argc, char** argv);

}  // namespace app
