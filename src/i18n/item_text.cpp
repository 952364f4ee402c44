#include "i18n/item_text.hpp"

#include <quor/debug/output.hpp>

#include "generic/argument_parts.hpp"
#include "i18n/format_attributes.hpp"
#include "i18n/value_text.hpp"
#include "types/held_text.hpp"

namespace QUOR_2_9::i18n::detail {
namespace {

/// With this many arguments and as many lookups an index is worth its memory. With fewer
/// of either, looking at every argument is linear in the others.
constexpr std::size_t worth_an_index = 32;

using parts = generic::detail::argument_parts;

/// Appends only the unit that a formatter of number and unit delivers.
template <class Value>
bool append_unit(text_writer &out, bool (*append)(text_writer &, Value, std::string_view, std::string_view &),
                 Value value, std::string_view format) {
	std::size_t const start = out.size();
	std::string_view unit;
	if (!append(out, value, format, unit)) {
		return false;
	}
	out.cut(start);
	out.append(unit);
	return true;
}

/// Appends the formatted value; false where the formatter refuses it.
bool append_formatted(text_writer &out, message_item::type_t type, types::variant const &value,
                      std::string_view format) {
	std::string_view unit;
	switch (type) {
	case message_item::type_int:
		return append_int(out, value.as_int64(), format);
	case message_item::type_double:
		return append_double(out, value.as_double(), format);
	case message_item::type_duration:
		return append_duration(out, value.as_double(), format);
	case message_item::type_memory:
		return append_memory(out, value.as_uint64(), format, unit);
	case message_item::type_memory_unit:
		return append_unit(out, &append_memory, value.as_uint64(), format);
	case message_item::type_metric:
		return append_metric(out, value.as_uint32(), format, unit);
	case message_item::type_metric_unit:
		return append_unit(out, &append_metric, value.as_uint32(), format);
	default:
		return true;
	}
}

/// Appends a value as text.
void append_text(text_writer &out, types::variant const &value) {
	if (std::string const *const text = types::detail::held_text::of(value)) {
		out.append(*text);
	} else {
		out.append(value.as_string());
	}
}

/// Appends an argument piece; false where it can't be rendered.
bool append_argument(text_writer &out, message_item::type_t type, std::string_view data, std::size_t name_size,
                     argument_finder const &args) {
	generic::argument const *const argument = args.find(data.substr(0, name_size));
	if (argument == nullptr) {
		return false;
	}
	if (type == message_item::type_string) {
		append_text(out, parts::value(*argument));
		return true;
	}
	std::size_t const start = out.size();
	std::string_view const format = name_size == data.size() ? std::string_view() : data.substr(name_size + 1);
	bool const formatted = append_formatted(out, type, parts::value(*argument), format);
	if (!formatted || out.view(start) == failure_text) {
		out.cut(start);
		return false;
	}
	return true;
}

bool append_any(text_writer &out, message_item::type_t type, std::string_view data, std::size_t name_size,
                argument_finder const &args) {
	switch (type) {
	case message_item::type_value:
		out.append(data);
		return true;
	case message_item::type_number:
	case message_item::type_time:
	case message_item::type_date:
		return false;
	default:
		return append_argument(out, type, data, name_size, args);
	}
}

} // namespace

argument_finder::argument_finder(generic::varg_list const &args, std::size_t lookups)
    : m_first(args.empty() ? nullptr : &*args.begin()), m_count(args.size()) {
	if (m_count < worth_an_index || lookups < worth_an_index) {
		return;
	}
	m_index.reserve(m_count);
	for (generic::argument const &argument : args) {
		m_index.emplace(parts::name(argument), &argument);
	}
}

generic::argument const *argument_finder::find(std::string_view name) const {
	if (!m_index.empty()) {
		auto const found = m_index.find(name);
		return found == m_index.end() ? nullptr : found->second;
	}
	for (std::size_t i = 0; i != m_count; ++i) {
		if (parts::name(m_first[i]) == name) {
			return m_first + i;
		}
	}
	return nullptr;
}

void append_item(text_writer &out, message_item::type_t type, std::string_view data, std::size_t name_size,
                 argument_finder const &args) {
	std::size_t const start = out.size();
	if (!append_any(out, type, data, name_size, args)) {
		out.append(invalid_text);
	}
	if (out.view(start) == invalid_text) {
		std::string line = "Failure -- ";
		line.append(data);
		debug::output(line.c_str());
		debug::output("\n");
	}
}

} // namespace QUOR_2_9::i18n::detail
