#ifndef QUOR_TESTS_CLI_RUN_COMMAND_HPP
#define QUOR_TESTS_CLI_RUN_COMMAND_HPP

#include <sstream>
#include <string>
#include <vector>

#include "program.hpp"

namespace quor_test {

struct command_result {
	int status = 0;
	std::string out;
	std::string err;
};

// Runs the command in this process, away from any terminal.
inline command_result run_command(std::vector<std::string> arguments, std::vector<std::string> environment = {}) {
	std::ostringstream out;
	std::ostringstream err;
	quor_cli::terminal to{out, err};
	int const status = quor_cli::run({std::move(arguments), std::move(environment)}, to);
	return {status, out.str(), err.str()};
}

// The text with every occurrence of a part replaced, such as a directory's changing name.
inline std::string replaced(std::string text, std::string const &part, std::string const &by) {
	for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size())) {
		text.replace(at, part.size(), by);
	}
	return text;
}

} // namespace quor_test

#endif
