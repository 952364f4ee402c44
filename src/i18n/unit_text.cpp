#include "generic/convert/decimal_digits.hpp"
#include "i18n/format_attributes.hpp"
#include "i18n/value_text.hpp"

namespace QUOR_2_9::i18n::detail {
namespace {

constexpr std::string_view memory_units[] = {"B", "KB", "MB", "GB", "TB", "PB", "EB", "ZB", "YB"};
constexpr int last_memory_unit = 8;

bool read_memory_unit(std::string_view token, int &index) noexcept {
	if (token == "B") {
		index = 0;
		return true;
	}
	for (int i = 1; i <= last_memory_unit; ++i) {
		if (token.substr(0, 2) == memory_units[i]) {
			index = i;
			return true;
		}
	}
	return false;
}

struct metric_unit {
	std::string_view long_form;
	std::string_view short_form;
};

constexpr int first_metric_unit = -6;
constexpr metric_unit metric_units[] = {{"atto", "a"},  {"femto", "f"}, {"pico", "p"}, {"nano", "n"},  {"micro", "mc"},
                                        {"milli", "m"}, {"", ""},       {"kilo", "k"}, {"mega", "M"},  {"giga", "G"},
                                        {"tera", "T"},  {"peta", "P"},  {"exa", "E"},  {"zetta", "Z"}, {"yotta", "Y"}};

/// The last unit that automatic scaling goes to: tera.
constexpr int last_automatic_unit = 4;

bool read_metric_unit(std::string_view token, int &index) noexcept {
	if (abbreviates(token, "base")) {
		index = 0;
		return true;
	}
	int i = first_metric_unit;
	for (metric_unit const &unit : metric_units) {
		if (token == unit.short_form) {
			index = i;
			return true;
		}
		++i;
	}
	return false;
}

struct unit_attributes {
	int base = 0;
	int target = 0;
	bool has_target = false;
	bool short_form = true;
	int precision = 3;
};

bool read_memory_attributes(std::string_view format, unit_attributes &attributes) noexcept {
	return read_attributes(format, [&](std::string_view key, std::string_view value) {
		if (!abbreviates(key, "target_unit")) {
			return abbreviates(key, "base_unit") && read_memory_unit(value, attributes.base);
		}
		attributes.has_target = true;
		// The word "any" is looked for in the key, where only the empty one abbreviates it.
		if (abbreviates(key, "any")) {
			attributes.target = 0;
			return true;
		}
		return read_memory_unit(value, attributes.target);
	});
}

bool read_metric_attributes(std::string_view format, unit_attributes &attributes) noexcept {
	return read_attributes(format, [&](std::string_view key, std::string_view value) {
		if (abbreviates(key, "base_unit")) {
			return read_metric_unit(value, attributes.base);
		}
		if (abbreviates(key, "target_unit")) {
			attributes.has_target = true;
			return read_metric_unit(value, attributes.target);
		}
		if (abbreviates(key, "short_form")) {
			return read_flag(value, attributes.short_form);
		}
		if (abbreviates(key, "precision")) {
			attributes.precision = leading_int(value);
			return true;
		}
		return false;
	});
}

} // namespace

bool append_memory(text_writer &out, types::uint64 value, std::string_view format, std::string_view &unit) {
	unit_attributes attributes;
	if (!read_memory_attributes(format, attributes)) {
		return false;
	}
	int index = attributes.base;
	if (attributes.has_target) {
		// Nothing is scaled up: a target below the base leaves no bit.
		for (; index < attributes.target; ++index) {
			value >>= 10;
		}
		if (index > attributes.target) {
			value = 0;
		}
		index = attributes.target;
	} else {
		for (; value >= 1024; value >>= 10) {
			++index;
		}
	}
	if (index > last_memory_unit) {
		return false;
	}
	namespace convert = generic::convert::detail;
	out.append_written<convert::decimal_digits_size>(
	    [value](char *buffer) noexcept { return convert::decimal_digits(value, buffer); });
	unit = memory_units[index];
	return true;
}

bool append_metric(text_writer &out, types::uint32 value, std::string_view format, std::string_view &unit) {
	unit_attributes attributes;
	if (!read_metric_attributes(format, attributes)) {
		return false;
	}
	double number = static_cast<double>(value);
	int index = attributes.base;
	if (attributes.has_target) {
		// One step at a time: a single factor would round otherwise.
		for (; index < attributes.target; ++index) {
			number /= 1000.0;
		}
		for (; index > attributes.target; --index) {
			number *= 1000.0;
		}
	} else {
		for (; value > 999 && index < last_automatic_unit; ++index) {
			number /= 1000.0;
			value /= 1000;
		}
	}
	printed_number const printed = printed_number::fixed(number, attributes.precision);
	if (printed.empty()) {
		return false;
	}
	out.append(printed.view());
	metric_unit const &shown = metric_units[index - first_metric_unit];
	unit = attributes.short_form ? shown.short_form : shown.long_form;
	return true;
}

} // namespace QUOR_2_9::i18n::detail
