// Shows how a service gets its settings: from its command line, over a file, over its
// environment, over its own defaults. The service is make-believe; it prints the settings
// that it would run with, and where each of them comes from.
//
//   configured_service [-KEY=VALUE ...] [-cfg_file=FILE] [-dump] [-help]
//
// Reads pellwick.cfg of the current directory where neither -cfg_file nor the environment's
// CFG_FILE names another file. Exit status: 0 when all went well, 1 when the file can't be
// read.

#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>

#include <quor/quor.hpp>

namespace {

using quor::config::base_config_item;
using quor::config::config_manager;
using quor::config::config_tree;
using quor::config::file_item;
using quor::config::std_config_dispatch;
using quor::config::user_item;
using quor::memory::pointers::rc_pointer;
using quor::strings::ustring8;
using quor::types::variant;
using item_pointer = rc_pointer<base_config_item>;

constexpr int exit_not_read = 1;

char const usage[] = "usage: configured_service [-KEY=VALUE ...] [-cfg_file=FILE] [-dump] [-help]\n"
                     "\n"
                     "Prints the settings that the service would run with, and their sources:\n"
                     "the command line, a file (pellwick.cfg), the environment, defaults.\n"
                     "  -KEY=VALUE      sets one value; so do -KEY VALUE and /KEY=VALUE\n"
                     "  -KEY=A,B,C      sets a list; so does -KEY A B C\n"
                     "  -KEY            switches something on\n"
                     "  -cfg_file=FILE  reads another file\n"
                     "  -dump           prints all that the sources hold, the whole environment too\n";

// --- what can be set ------------------------------------------------------------------

enum class kind { text, number, on_off, list };

struct setting {
	char const *key;
	kind type;
	char const *standard; // what holds when nobody sets it; null for nothing
};

setting const settings[] = {
    {"node", kind::text, "unnamed"},
    {"log_level", kind::text, "warning"},
    {"verbose", kind::on_off, "no"},
    {"server.host", kind::text, "localhost"},
    {"server.port", kind::number, "8443"},
    {"server.name", kind::text, "Pellwick"},
    {"server.status", kind::text, nullptr},
    {"server.allow", kind::list, "127.0.0.1"},
    {"backup.folders", kind::list, nullptr},
    {"backup.exclude", kind::list, "*.tmp"},
    {"backup.start", kind::text, "03:00"},
    {"backup.keep_days", kind::number, "30"},
    {"backup.compress", kind::on_off, "yes"},
    {"sync.peers.names", kind::list, nullptr},
    {"sync.peers.port", kind::number, nullptr}, // the server's port
    {"sync.bandwidth", kind::number, "10000"},
    {"sync.paused", kind::on_off, "no"},
};

setting const *find_setting(ustring8 const &key) {
	for (setting const &each : settings) {
		if (key == each.key) {
			return &each;
		}
	}
	return nullptr;
}

// --- the sources ----------------------------------------------------------------------

struct source {
	char const *id;
	char const *title;
};

// In the order in which they are asked.
source const sources[] = {
    {"command line", "command line"},
    {"standard file", "file"},
    {"enviroment", "environment"},
    {"user_item", "default"},
};

// The three standard sources, and the defaults behind them.
class service_dispatch : public std_config_dispatch {
public:
	using std_config_dispatch::std_config_dispatch;

	void setup(item_list &items) const override {
		std_config_dispatch::setup(items);
		user_item defaults;
		for (setting const &each : settings) {
			if (each.standard != nullptr) {
				defaults.set(each.key, each.standard, 0);
			}
		}
		// A reference: the value is the name of the key that is asked instead.
		defaults.set("sync.peers.port", "server.port", config_tree::flag_reference);
		items.emplace_back(defaults.clone());
	}

	service_dispatch *clone() const override { return new service_dispatch(*this); }
};

// A key of one byte in the file would end the process; this makes it an exception.
void throw_for_bad_key(char const *, char const *, unsigned int) {
	throw std::runtime_error("has a key of one byte; keys have two or more");
}

// The file that the command line or the environment asks for; empty when none does.
ustring8 wanted_file(config_manager const &manager) {
	for (char const *id : {"command line", "enviroment"}) {
		if (config_tree::node_value const *node = manager.get_config_item(id)->get_value("cfg_file")) {
			return node->second.as_utf8();
		}
	}
	return {};
}

// Fills the sources. False, with a message, when the file can't be read.
bool load(config_manager &manager) {
	// The environment as such comes behind the file, too late to name it: so it goes first.
	manager.get_config_item("enviroment")->load();
	auto const &file = dynamic_cast<file_item &>(*manager.get_config_item("standard file"));
	try {
		manager.load();
	} catch (std::runtime_error const &error) {
		std::cerr << "configured_service: \"" << file.get_filename() << "\" " << error.what() << '\n';
		return false;
	}
	// A file that doesn't open is passed over in silence, and the next candidate is taken.
	ustring8 const wanted = wanted_file(manager);
	// NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): the manager holds the item
	if (!wanted.empty() && wanted != file.get_filename()) {
		std::cerr << "configured_service: \"" << wanted << "\" can't be read\n";
		return false;
	}
	return true;
}

// --- the answers ----------------------------------------------------------------------

// The source that answers for a key, as the manager asks them.
source const *find_source(config_manager const &manager, ustring8 const &key) {
	for (source const &each : sources) {
		if (manager.get_config_item(each.id)->get_value(key) != nullptr) {
			return &each;
		}
	}
	return nullptr;
}

ustring8 quoted(variant const &value) {
	return "\"" + value.as_utf8() + "\"";
}

// A list, or a single value, which is what `-KEY VALUE` stores, as a list of one.
ustring8 list_text(config_manager const &manager, source const &from, ustring8 const &key) {
	item_pointer const item = manager.get_config_item(from.id);
	if ((item->get_value(key)->first & config_tree::flag_array) == 0) {
		return quoted(manager.get_value(key));
	}
	config_tree::value_pair_array elements;
	item->get_array(key, elements);
	ustring8 text;
	for (auto const &[name, node] : elements) {
		text += (text.empty() ? "" : ", ") + quoted(node.second);
	}
	return text;
}

// A switch such as -verbose has an empty text as its value and means yes.
bool is_on(variant const &value) {
	return value.as_utf8().empty() || value.as_bool();
}

ustring8 value_text(config_manager const &manager, source const &from, setting const &each) {
	variant const value = manager.get_value(each.key);
	switch (each.type) {
	case kind::number:
		return variant(value.as_int()).as_utf8();
	case kind::on_off:
		return is_on(value) ? "yes" : "no";
	case kind::list:
		return list_text(manager, from, each.key);
	default:
		return quoted(value);
	}
}

void print_settings(config_manager const &manager) {
	for (setting const &each : settings) {
		source const *from = find_source(manager, each.key);
		std::cout << std::left << std::setw(14) << (from != nullptr ? from->title : "nobody");
		if (from == nullptr) {
			std::cout << each.key << '\n';
			continue;
		}
		config_tree::node_value const *node = manager.get_config_item(from->id)->get_value(each.key);
		std::cout << std::setw(18) << each.key << value_text(manager, *from, each);
		if ((node->first & config_tree::flag_reference) != 0) {
			std::cout << " (as " << node->second.as_utf8() << ')';
		}
		std::cout << '\n';
	}
}

// --- slips of the pen -----------------------------------------------------------------

bool is_known(ustring8 const &key) {
	return key == "cfg_file" || key == "dump" || key == "help" || key.rfind("application.", 0) == 0 ||
	       find_setting(key) != nullptr;
}

// Sources take any key, so a program that wants to hear of slips looks for them.
void report_unknown(config_manager const &manager, source const &from) {
	config_tree::value_pair_array entries;
	manager.get_config_item(from.id)->get_value_pair_array("", entries, true);
	ustring8 list = "\n"; // the list whose elements come next; no key begins like this
	for (auto const &[key, node] : entries) {
		if (node.first == 0 || key.rfind(list, 0) == 0) {
			continue;
		}
		if ((node.first & config_tree::flag_array) != 0) {
			list = key + ".";
		}
		if (!is_known(key)) {
			std::cerr << "configured_service: there is no setting \"" << key << "\" (" << from.title << ")\n";
		}
	}
}

} // namespace

int main(int argc, char **argv, char **environment) {
	quor::debug::set_invalid_parameter_handler(throw_for_bad_key);
	config_manager manager;
	manager.init(service_dispatch(argc, argv, environment, "pellwick.cfg", ""));
	if (!load(manager)) {
		return exit_not_read;
	}
	// Asked of the command line alone: any program's environment may hold a DUMP or a HELP.
	item_pointer const command_line = manager.get_config_item("command line");
	if (command_line->get_value("help") != nullptr) {
		std::cout << usage;
		return 0;
	}
	report_unknown(manager, sources[0]);
	report_unknown(manager, sources[1]);
	print_settings(manager);
	if (command_line->get_value("dump") != nullptr) {
		std::cout << '\n' << manager;
	}
	return 0;
}
