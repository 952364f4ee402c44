#ifndef QUOR_CLI_COMMAND_HPP
#define QUOR_CLI_COMMAND_HPP

#include <functional>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "program.hpp"

namespace quor_cli {

// What a parsed command line asks for.
using action = std::function<int(terminal &)>;

// Each adds its sub-commands; the one that is called sets the action.
void add_catalog_commands(CLI::App &app, action &chosen);
void add_config_commands(CLI::App &app, action &chosen, invocation const &call,
                         std::vector<std::string> const &program_arguments);

} // namespace quor_cli

#endif
