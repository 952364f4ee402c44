#include "catalog/samples.hpp"

namespace quor_cli {

namespace {

using quor::i18n::message_item;
using quor::strings::ustring8;
using quor::types::variant;

struct type_words : private quor::i18n::_private::xmc_file_loader {
	message_item::type_t type(std::string const &word) const { return parse_message_type(ustring8(word)); }
};

} // namespace

std::string argument_name(message_item const &item) {
	ustring8 const data = item.data();
	return data.substr(0, data.find('\1'));
}

variant sample_value(message_item::type_t type, std::string const &name) {
	switch (type) {
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

std::vector<variant> trial_values(message_item::type_t type) {
	if (type == message_item::type_double || type == message_item::type_duration) {
		return {1.5, 0.0, 100000.25};
	}
	return {0, 7, 1234567};
}

void add_samples(quor::i18n::message_t const &message, quor::generic::varg_list &arguments) {
	for (message_item const &item : message) {
		if (item.type() != message_item::type_value) {
			std::string const name = argument_name(item);
			// A name that is there already keeps its value.
			arguments.push_back(ustring8(name), sample_value(item.type(), name));
		}
	}
}

std::string type_word(message_item::type_t type) {
	static char const *const words[] = {"value", "string", "number",      "int",    "double",      "time",
	                                    "date",  "memory", "memory_unit", "metric", "metric_unit", "duration"};
	return words[type];
}

message_item::type_t type_of_word(std::string const &word) {
	return type_words().type(word);
}

} // namespace quor_cli
