#include <memory>
#include <string>
#include <vector>

#include "command.hpp"
#include "config/explain.hpp"
#include "config/sources.hpp"

namespace quor_cli {

namespace {

struct config_options {
	std::string key;
	std::string file;
	bool environment = false;
};

using config_action = int (*)(config_sources const &, std::string const &, terminal &);

std::vector<config_source> sources() {
	return {std::begin(standard_sources), std::end(standard_sources)};
}

int explain(config_sources const &loaded, std::string const &key, terminal &to) {
	return explain_key(loaded.manager(), sources(), key, to);
}

int dump(config_sources const &loaded, std::string const &, terminal &to) {
	dump_sources(loaded.manager(), sources(), to);
	return exit_clean;
}

void add_sources(CLI::App &app, std::shared_ptr<config_options> const &options) {
	app.add_option("--file", options->file, "The configuration file");
	app.add_flag("--env", options->environment, "Ask the environment too");
}

} // namespace

void add_config_commands(CLI::App &app, action &chosen, invocation const &call,
                         std::vector<std::string> const &program_arguments) {
	CLI::App &config = *app.add_subcommand("config", "Configurations: explain, dump");
	config.require_subcommand(1);
	auto const options = std::make_shared<config_options>();
	auto const run_with = [&, options](config_action what) {
		return [&, options, what] {
			chosen = [&, options, what](terminal &to) {
				config_request const request{options->file, program_arguments,
				                             options->environment ? call.environment : std::vector<std::string>()};
				config_sources const loaded(request, to);
				return what(loaded, options->key, to);
			};
		};
	};

	CLI::App &explained = *config.add_subcommand("explain", "Tell where the value of a key comes from");
	explained.add_option("KEY", options->key, "The key, such as server.port")->required();
	add_sources(explained, options);
	explained.footer("Asks as a program does: its command line (what stands behind \"--\") over the file over\n"
	                 "the environment. Exit status 1 tells that the key has no value.\n"
	                 "\n"
	                 "Examples:\n"
	                 "  quor config explain server.port --file service.cfg\n"
	                 "  quor config explain server.port --file service.cfg --env -- -server.port=8080\n");
	explained.callback(run_with(explain));

	CLI::App &dumped = *config.add_subcommand("dump", "List the keys and values of every source");
	add_sources(dumped, options);
	dumped.footer("What stands behind \"--\" is the program's command line.\n"
	              "\n"
	              "Example:\n"
	              "  quor config dump --file service.cfg -- -verbose -log_level=debug\n");
	dumped.callback(run_with(dump));
}

} // namespace quor_cli
