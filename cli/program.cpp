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

int run_parsed(invocation const &call, terminal &to) {
	// What stands behind "--" belongs to the program whose settings are explained.
	auto const separator = std::find(call.arguments.begin(), call.arguments.end(), "--");
	std::vector<std::string> const program_arguments(separator == call.arguments.end() ? separator : separator + 1,
	                                                 call.arguments.end());
	// The parser takes its words from the back.
	std::vector<std::string> words(std::make_reverse_iterator(separator), call.arguments.rend());

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
	return std::cout ? status : exit_unusable;
}

} // namespace quor_cli
