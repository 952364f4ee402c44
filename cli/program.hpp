#ifndef QUOR_CLI_PROGRAM_HPP
#define QUOR_CLI_PROGRAM_HPP

#include <string>
#include <vector>

#include "terminal/terminal.hpp"

namespace quor_cli {

// What the command ends with.
enum exit_status : int {
	exit_clean = 0,
	exit_findings = 1,
	exit_unusable = 2, // a file that can't be read, or a wrong command line
};

// How the command was called, in UTF-8.
struct invocation {
	std::vector<std::string> arguments;   // without the program's name
	std::vector<std::string> environment; // NAME=VALUE
};

// Runs the command; returns its exit status.
int run(invocation const &call, terminal &to);

// The same with the standard streams.
int run(invocation const &call);

} // namespace quor_cli

#endif
