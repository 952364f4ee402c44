#ifndef QUOR_CLI_CONFIG_SOURCES_HPP
#define QUOR_CLI_CONFIG_SOURCES_HPP

#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "terminal/terminal.hpp"

namespace quor_cli {

struct config_request {
	std::string file;
	std::vector<std::string> arguments;   // of the program whose settings these are
	std::vector<std::string> environment; // NAME=VALUE; empty to leave it out
};

// The three standard sources of a program, loaded.
class config_sources {
public:
	// Throws std::runtime_error where the file can't be read. What the library warns of goes
	// to the error stream.
	config_sources(config_request const &request, terminal &to);
	config_sources(config_sources const &) = delete;
	config_sources &operator=(config_sources const &) = delete;

	quor::config::config_manager const &manager() const { return m_manager; }

private:
	std::vector<std::string> m_texts;
	std::vector<char const *> m_arguments;
	std::vector<char const *> m_environment;
	quor::config::config_manager m_manager;
};

// The file that was looked for last, "" if none was.
std::string loaded_file(quor::config::config_manager const &manager);

struct config_source {
	char const *id;    // as the library knows it
	char const *title; // as people do
};

// In the order in which they are asked.
extern config_source const standard_sources[3];

} // namespace quor_cli

#endif
