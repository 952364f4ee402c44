// Renders messages from XMC files.
//
//   render_messages DIRECTORY LANGUAGE
//       every message of every catalog, with sample values for the arguments
//   render_messages DIRECTORY LANGUAGE CATALOG KEY [NAME=VALUE ...]
//       one message with the given arguments
//
// Exit status: 0 when all went well, 1 when the catalogs can't be loaded, 2 when the
// message doesn't exist or the command line is wrong.

#include <iostream>
#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::generic::varg_list;
using quor::i18n::message_catalogs;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring8;

constexpr int exit_not_loaded = 1;
constexpr int exit_not_found = 2;

char const usage[] = "usage: render_messages DIRECTORY LANGUAGE\n"
                     "       render_messages DIRECTORY LANGUAGE CATALOG KEY [NAME=VALUE ...]\n"
                     "\n"
                     "Renders the messages of a directory of XMC files (or of one file) in a language\n"
                     "such as en, de or de_AT: all of them with sample values, or one with the\n"
                     "arguments given.\n";

// A value that shows what an item of this type does; text shows the argument's name.
quor::types::variant sample_value(message_item const &item, ustring8 const &name) {
	switch (item.type()) {
	case message_item::type_int:
		return 1234;
	case message_item::type_double:
		return 87.654;
	case message_item::type_duration:
		return 93784.5;
	case message_item::type_memory:
	case message_item::type_memory_unit:
		return 5368709120LL;
	case message_item::type_metric:
	case message_item::type_metric_unit:
		return 12345;
	default:
		return ustring8("{" + name + "}");
	}
}

varg_list sample_arguments(message_t const &message) {
	varg_list args;
	for (message_item const &item : message) {
		if (item.type() != message_item::type_value) {
			// The name stands in front of the format attributes.
			ustring8 const data = item.data();
			ustring8 const name = data.substr(0, data.find('\x01'));
			args.push_back(name, sample_value(item, name));
		}
	}
	return args;
}

// The text with each of its lines indented.
std::string indented(std::string const &text) {
	std::string result = "    ";
	for (char const unit : text) {
		result += unit;
		if (unit == '\n') {
			result += "    ";
		}
	}
	return result;
}

int render_all(message_catalogs const &catalogs) {
	for (auto const &catalog : catalogs) {
		ustring8 const &name = catalog.first;
		for (auto message = catalogs.begin(name); message != catalogs.end(name); ++message) {
			std::cout << name << '/' << message->first << '\n'
			          << indented(message->second.as_string(sample_arguments(message->second))) << '\n';
		}
	}
	return 0;
}

int render_one(message_catalogs const &catalogs, ustring8 const &catalog, ustring8 const &key, varg_list const &args) {
	if (!catalogs.has_catalog(catalog)) {
		std::cerr << "render_messages: there is no catalog \"" << catalog << "\" (message \"" << key << "\")\n";
		return exit_not_found;
	}
	if (!catalogs.has_message(catalog, key)) {
		std::cerr << "render_messages: there is no message \"" << key << "\" in catalog \"" << catalog << "\"\n";
		return exit_not_found;
	}
	std::cout << catalogs.message(catalog, key).as_string(args) << '\n';
	return 0;
}

// Reads NAME=VALUE arguments. The values stay text: an item that needs a number parses it.
bool read_arguments(std::vector<std::string> const &words, varg_list &args) {
	for (std::string const &word : words) {
		std::size_t const equals = word.find('=');
		if (equals == std::string::npos) {
			std::cerr << "render_messages: \"" << word << "\" is no NAME=VALUE\n" << usage;
			return false;
		}
		if (!args.push_back(ustring8(word.substr(0, equals)), ustring8(word.substr(equals + 1)))) {
			std::cerr << "render_messages: the argument \"" << word.substr(0, equals) << "\" is given twice\n";
			return false;
		}
	}
	return true;
}

} // namespace

int main(int count, char **words) {
	std::vector<std::string> const arguments(words + (count > 0 ? 1 : 0), words + count);
	if (arguments.empty()) {
		std::cout << usage;
		return 0;
	}
	if (arguments.size() == 1 || arguments.size() == 3) {
		std::cerr << usage;
		return exit_not_found;
	}
	varg_list args;
	if (arguments.size() > 4 && !read_arguments({arguments.begin() + 4, arguments.end()}, args)) {
		return exit_not_found;
	}

	message_catalogs catalogs;
	message_catalogs::result_type const result = catalogs.load(ustring8(arguments[0]), ustring8(arguments[1]));
	if (result != message_catalogs::no_error) {
		std::cerr << result.message() << '\n';
		return exit_not_loaded;
	}
	if (arguments.size() == 2) {
		return render_all(catalogs);
	}
	return render_one(catalogs, arguments[2], arguments[3], args);
}
