#include "catalog/argument_doubts.hpp"

#include <algorithm>
#include <utility>

#include <quor/quor.hpp>

#include "catalog/samples.hpp"

namespace quor_cli {

namespace {

using quor::generic::varg_list;
using quor::i18n::message_item;
using quor::strings::ustring8;

constexpr char field_separator = '\1';

// One argument with what is found in it.
class argument_check {
public:
	argument_check(argument_use const &argument, std::string const &file, place const &where, finding_list &findings)
	    : m_argument(argument), m_file(file), m_where(where), m_findings(findings) {
		m_where.in_argument = true;
		m_where.argument = shortened(argument.name());
		m_where.line = argument.line;
		if (std::string const *const word = argument.find("type")) {
			m_type = type_of_word(*word);
		}
	}

	void run() {
		check_name();
		check_type();
		if (m_type == message_item::type_string || m_type == message_item::type_value) {
			check_unused();
		} else {
			check_formats();
		}
	}

private:
	void add(finding_kind kind, std::string text) { m_findings.add({kind, m_file, m_where, std::move(text), {}}); }

	static bool is_format(attribute_use const &each) { return each.name != "name" && each.name != "type"; }

	void check_name() {
		if (m_argument.name().empty()) {
			add(finding_kind::argument_without_name, "the argument has no name, so no value can reach it");
		}
		auto const &attributes = m_argument.attributes;
		auto const name = std::find_if(attributes.begin(), attributes.end(),
		                               [](attribute_use const &each) { return each.name == "name"; });
		for (auto each = attributes.begin(); name != attributes.end() && each != name; ++each) {
			if (is_format(*each)) {
				add(finding_kind::attribute_lost,
				    "the attribute \"" + each->name + "\" is lost, as it stands in front of name; write name first");
			}
		}
	}

	void check_type() {
		std::string const *const word = m_argument.find("type");
		if (word == nullptr) {
			return;
		}
		if (m_type == message_item::type_string && quor::strings::lower_case(ustring8(*word)) != "string") {
			add(finding_kind::type_unknown, "the type \"" + *word +
			                                    "\" is not known, so the value shows as text; write string, or one of "
			                                    "int, double, duration, memory, memory_unit, metric, metric_unit");
		}
		if (m_type == message_item::type_number || m_type == message_item::type_time ||
		    m_type == message_item::type_date) {
			add(finding_kind::type_reserved,
			    "the type \"" + *word + "\" is reserved and always shows \"?invalid?\"" +
			        (m_type == message_item::type_number ? "; use int or double"
			                                             : "; give the program's own text as a string"));
		}
	}

	void check_unused() {
		for (attribute_use const &each : m_argument.attributes) {
			if (!is_format(each)) {
				continue;
			}
			if (m_type == message_item::type_value) {
				add(finding_kind::attribute_unused,
				    "an argument of type value shows its name, and with it the attribute \"" + each.name + "\"");
			} else {
				add(finding_kind::attribute_unused,
				    "the attribute \"" + each.name + "\" has no effect, as the argument is text");
			}
		}
	}

	// The attributes that count, as the library takes them.
	std::vector<attribute_use> formats() const {
		std::vector<attribute_use> result;
		for (attribute_use const &each : m_argument.attributes) {
			if (each.name == "name") {
				result.clear();
			} else if (is_format(each)) {
				result.push_back(each);
			}
		}
		return result;
	}

	bool renders(std::vector<attribute_use> const &attributes) const {
		ustring8 data("a");
		for (attribute_use const &each : attributes) {
			data.append(1, field_separator).append(each.name).append(1, field_separator).append(each.value);
		}
		message_item const item(data, m_type);
		std::vector<quor::types::variant> const values = trial_values(m_type);
		return std::any_of(values.begin(), values.end(), [&item](quor::types::variant const &value) {
			varg_list arguments;
			arguments.push_back("a", value);
			return item.as_string(arguments) != "?invalid?";
		});
	}

	// Whether the type has an attribute of this name: some value of it renders.
	bool is_known(std::string const &name) const {
		static char const *const values[] = {"dec", "true", "8", "B", "k"};
		return std::any_of(std::begin(values), std::end(values), [&](char const *value) {
			return renders({{name, value}});
		});
	}

	void check_formats() {
		std::vector<attribute_use> const all = formats();
		if (all.empty() || !renders({}) || renders(all)) {
			return;
		}
		bool explained = false;
		for (attribute_use const &each : all) {
			explained = explain(each, &each == &all.back()) || explained;
		}
		if (!explained) {
			add(finding_kind::never_renders, "these attributes together show \"?invalid?\" for every value");
		}
	}

	// Tells what is wrong with one attribute; false if nothing is.
	bool explain(attribute_use const &each, bool is_last) {
		std::string const result = ", so it always shows \"?invalid?\"";
		if (!is_known(each.name)) {
			add(finding_kind::attribute_unknown,
			    "type " + type_word(m_type) + " has no attribute \"" + each.name + "\"" + result);
			return true;
		}
		if (each.value.empty() && is_last) {
			add(finding_kind::attribute_empty, "the attribute \"" + each.name + "\" is empty" + result);
			return true;
		}
		if (!each.value.empty() && !renders({each})) {
			add(finding_kind::attribute_value,
			    "\"" + each.value + "\" is no value of the attribute \"" + each.name + "\"" + result);
			return true;
		}
		return false;
	}

	argument_use const &m_argument;
	std::string const &m_file;
	place m_where;
	finding_list &m_findings;
	message_item::type_t m_type = message_item::type_string;
};

} // namespace

void add_argument_doubts(argument_use const &argument, std::string const &file, place const &where,
                         finding_list &findings) {
	argument_check(argument, file, where, findings).run();
}

} // namespace quor_cli
