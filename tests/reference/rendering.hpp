#ifndef QUOR_TESTS_REFERENCE_RENDERING_HPP
#define QUOR_TESTS_REFERENCE_RENDERING_HPP

// Slow, obvious rendering of messages: names found by the list itself, field strings cut
// into vectors of strings.

#include <string>
#include <vector>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message.hpp>

#include "reference/value_formatters.hpp"

namespace reference {

// `debug` gets what goes to the debug channel, call by call.
inline std::string render(quor::i18n::message_item const &item, quor::generic::varg_list const &args,
                          strings_t &debug) {
	using quor::i18n::message_item;
	std::string const data = item.data();
	std::string result = "?invalid?";
	std::string name = data;
	std::string format;
	std::size_t const separator = data.find('\x01');
	if (separator != std::string::npos) {
		name = elements(data).front();
		format = data.substr(separator + 1);
	}
	bool const reserved = item.type() == message_item::type_number || item.type() == message_item::type_time ||
	                      item.type() == message_item::type_date;
	if (item.type() == message_item::type_value) {
		result = data;
	} else if (!reserved && args.has_argument(name)) {
		quor::types::variant const value = args[quor::strings::ustring8(name)].value();
		std::string unit;
		switch (item.type()) {
		case message_item::type_string:
			result = value.as_string();
			break;
		case message_item::type_int:
			result = format_int(value.as_int64(), format);
			break;
		case message_item::type_double:
			result = format_double(value.as_double(), format);
			break;
		case message_item::type_duration:
			result = format_duration(value.as_double(), format);
			break;
		case message_item::type_memory:
		case message_item::type_memory_unit:
			result = format_memory(value.as_uint64(), format, unit);
			if (item.type() == message_item::type_memory_unit && result != failed) {
				result = unit;
			}
			break;
		default:
			result = format_metric(value.as_uint32(), format, unit);
			if (item.type() == message_item::type_metric_unit && result != failed) {
				result = unit;
			}
			break;
		}
		if (item.type() != message_item::type_string && result == failed) {
			result = "?invalid?";
		}
	}
	if (result == "?invalid?") {
		debug.push_back(("Failure -- " + data).c_str());
		debug.push_back("\n");
	}
	return result;
}

inline std::string render(quor::i18n::message_t const &message, quor::generic::varg_list const &args,
                          strings_t &debug) {
	std::string result;
	for (quor::i18n::message_item const &item : message) {
		result += render(item, args, debug);
	}
	return result;
}

} // namespace reference

#endif
