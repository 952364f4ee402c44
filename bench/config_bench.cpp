// The layered configuration store, beside stores of one layer.

#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "config/competition.hpp"

namespace config_bench {
namespace {

using quor::strings::ustring8;

class file_store {
public:
	explicit file_store(config_file const &source) : item(ustring8(source.path)) { item.load(); }

	contents all() {
		std::vector<std::pair<ustring8, std::pair<unsigned int, quor::types::variant>>> entries;
		item.get_value_pair_array("", entries, true);
		contents result;
		for (auto const &[key, data] : entries) {
			if (data.first != 0) {
				result[key] = data.second.as_string();
			}
		}
		return result;
	}

private:
	quor::config::file_item item;
};

// What a program has before it is asked: a command line, a file and an environment.
constexpr char const *arguments[] = {"service", "-verbose",    "-log.level=3",    "-server.listen=10.0.0.1",
                                     "-mode",   "interactive", "-features=a,b,c", "-server.pool.size=12",
                                     nullptr};
constexpr char const *environment[] = {"HOME=/home/service",
                                       "LANG=en_US.UTF-8",
                                       "LOGNAME=service",
                                       "PATH=/usr/local/bin:/usr/bin:/bin",
                                       "PWD=/srv/service",
                                       "SHELL=/bin/sh",
                                       "SHLVL=1",
                                       "TERM=xterm-256color",
                                       "TZ=UTC",
                                       "USER=service",
                                       "XDG_RUNTIME_DIR=/run/user/1000",
                                       nullptr};

class managed_store {
public:
	using key_type = ustring8;

	explicit managed_store(config_file const &source) {
		manager.init(quor::config::std_config_dispatch(static_cast<int>(std::size(arguments)) - 1, arguments,
		                                               environment, ustring8(source.path), ""));
		manager.load();
	}

	key_type key(setting const &one) const { return {one.section + "." + one.name}; }
	ustring8 text(key_type const &key) const { return manager.get_value(key).as_string(); }
	int number(key_type const &key) const { return manager.get_value(key).as_int(); }
	static std::string plain(std::string text) { return text; }

private:
	quor::config::config_manager manager;
};

void describe() {
	compete<file_store, managed_store>(bench::library);

	bench::limit(load_name, "GKeyFile", 1, 0.25);
	bench::limit(load_name, "Boost.PropertyTree", 0.5);
	bench::limit(load_name, "QSettings", 0.5);
	std::string const small = " of a small file";
	std::string const large = " of the 1 MB";
	bench::limit(text_name + small, "GKeyFile", 1, 0.5);
	// Here a look-up waits for memory, and what that costs differs by a third from one run to
	// the next, with the pages that a process happens to get.
	bench::limit(text_name + large, "GKeyFile", 1, 0.5);
	for (std::string const &suffix : {small, large}) {
		bench::limit(number_name + suffix, "Boost.PropertyTree", 0.5);
	}
	bench::bound(memory_name, 12);
	bench::bound(text_calls_name, 1);
	bench::bound(number_calls_name, 0);
}

bench::entry const added(&describe);

} // namespace
} // namespace config_bench
