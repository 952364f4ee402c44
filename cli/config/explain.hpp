#ifndef QUOR_CLI_CONFIG_EXPLAIN_HPP
#define QUOR_CLI_CONFIG_EXPLAIN_HPP

#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "config/sources.hpp"
#include "terminal/terminal.hpp"

namespace quor_cli {

// Writes what each source answers for a key, which answer wins and why, and how the value
// reads as each type. Returns the exit status.
int explain_key(quor::config::config_manager const &manager, std::vector<config_source> const &sources,
                std::string const &key, terminal &to);

// Writes the keys and values of every source.
void dump_sources(quor::config::config_manager const &manager, std::vector<config_source> const &sources, terminal &to);

} // namespace quor_cli

#endif
