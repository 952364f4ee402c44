#include "program.hpp"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

#include <quor/quor.hpp>

#include "command.hpp"

namespace quor_cli {

namespace {

char const description[] = "Checks, measures and renders message catalogs, and explains configurations.";

char const examples[] = "Examples:\n"
                        "  quor catalog check translations/\n"
                        "  quor catalog coverage --html coverage.html translations/\n"
                        "  quor catalog render translations/ de app greeting user=Mina\n"
                        "  quor config explain server.port --file service.cfg -- -server.port=8080\n"
                        "\n"
                        "Exit status: 0 all is well, 1 something was found, 2 a file that can't be read or a\n"
                        "wrong command line. \"quor COMMAND SUBCOMMAND --help\" tells more about each.\n";

std::string version() {
	return "quor " + std::to_string(QUOR_VERSION_MAJOR) + "." + std::to_string(QUOR_VERSION_MINOR) + "." +
	       std::to_string(QUOR_VERSION_PATCH);
}

// A checked access of the library that fails becomes an exception here.
void throw_invalid_parameter(char const *what, char const *, unsigned int) {
	throw std::runtime_error(what);
}

void ignore_debug_output(char const *) {}

// The library's handlers while the command runs.
class library_handlers {
public:
	library_handlers()
	    : m_output(quor::debug::set_output_handler(ignore_debug_output)),
	      m_invalid(quor::debug::set_invalid_parameter_handler(throw_invalid_parameter)) {}
	~library_handlers() {
		quor::debug::set_output_handler(m_output);
		quor::debug::set_invalid_parameter_handler(m_invalid);
	}
	library_handlers(library_handlers const &) = delete;
	library_handlers &operator=(library_handlers const &) = delete;

private:
	quor::debug::output_handler m_output;
	quor::debug::invalid_parameter_handler m_invalid;
};

// The words for this command. What stands behind "--" belongs to the program whose settings
// are explained; elsewhere it is names alone, of which those with a dash in front are files.
std::vector<std::string> own_words(std::vector<std::string> const &all, std::vector<std::string> &behind) {
	auto const separator = std::find(all.begin(), all.end(), "--");
	std::vector<std::string> words(all.begin(), separator);
	if (separator == all.end()) {
		return words;
	}
	behind.assign(separator + 1, all.end());
	if (words.empty() || words.front() != "config") {
		for (std::string const &each : behind) {
			words.push_back(each.rfind('-', 0) == 0 ? "./" + each : each);
		}
	}
	return words;
}

int run_parsed(invocation const &call, terminal &to) {
	std::vector<std::string> program_arguments;
	std::vector<std::string> words = own_words(call.arguments, program_arguments);
	std::reverse(words.begin(), words.end()); // the parser takes them from the back

	CLI::App app(description, "quor");
	app.footer(examples);
	app.set_version_flag("--version", version(), "Print the version and end");
	app.require_subcommand(1);
	action chosen;
	add_catalog_commands(app, chosen);
	add_config_commands(app, chosen, call, program_arguments);
	try {
		app.parse(words);
	} catch (CLI::Success const &asked) {
		return app.exit(asked, to.out, to.err) == 0 ? exit_clean : exit_unusable;
	} catch (CLI::ParseError const &error) {
		to.err << "quor: " << printable(error.what(), true) << "\nTry \"quor --help\".\n";
		return exit_unusable;
	}
	return chosen(to);
}

bool is_set(invocation const &call, std::string const &name) {
	return std::any_of(call.environment.begin(), call.environment.end(), [&name](std::string const &each) {
		return each.size() > name.size() + 1 && each.compare(0, name.size() + 1, name + "=") == 0;
	});
}

} // namespace

int run(invocation const &call, terminal &to) {
	library_handlers const handlers;
	try {
		return run_parsed(call, to);
	} catch (std::exception const &error) {
		to.err << "quor: " << printable(error.what()) << '\n';
		return exit_unusable;
	}
}

int run(invocation const &call) {
	bool const may_colour = !is_set(call, "NO_COLOR");
	terminal to{std::cout, std::cerr, may_colour && out_is_terminal(), may_colour && err_is_terminal(),
	            err_is_terminal()};
	int const status = run(call, to);
	std::cout.flush();
	if (!std::cout) {
		std::cerr << "quor: the output can't be written\n";
		return exit_unusable;
	}
	return status;
}

} // namespace quor_cli
