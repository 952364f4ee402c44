#include "config/explain.hpp"

#include <ostream>
#include <set>

#include "program.hpp"

namespace quor_cli {

namespace {

using quor::config::base_config_item;
using quor::config::config_manager;
using quor::config::config_tree;
using quor::strings::ustring8;
using quor::types::variant;
using item_pointer = quor::memory::pointers::rc_pointer<base_config_item>;

constexpr std::size_t title_width = 16;

std::string quoted(variant const &value) {
	return "\"" + printable(value.as_utf8()) + "\"";
}

bool is_array(config_tree::node_value const &node) {
	return (node.first & 3U) == 3U;
}

std::string list_text(base_config_item const &item, std::string const &key) {
	config_tree::value_pair_array elements;
	item.get_array(ustring8(key), elements);
	std::string text;
	for (auto const &[name, node] : elements) {
		text += (text.empty() ? "" : ", ") + quoted(node.second);
	}
	return text;
}

std::string answer_text(base_config_item const &item, std::string const &key) {
	config_tree::node_value const *const node = item.get_value(ustring8(key));
	if (node == nullptr) {
		return "no answer";
	}
	if (is_array(*node)) {
		return "the list " + list_text(item, key);
	}
	if ((node->first & config_tree::flag_reference) != 0) {
		return "refers to " + quoted(node->second);
	}
	return node->first == 0 ? "a section, without a value of its own" : quoted(node->second);
}

// Why the first answer is what counts, and what it means.
std::string reason(config_tree::node_value const &node, config_source const &winner, std::string const &file) {
	std::string const which = std::string_view(winner.id) == "standard file" ? " \"" + printable(file) + "\"" : "";
	std::string wins = "the " + std::string(winner.title) + which + " wins, as it is the first that knows the key";
	if (is_array(node)) {
		return wins + "; of a list, element 0 is the value";
	}
	if (node.first == 0) {
		return wins + "; deeper keys make it a section, which has no value and hides what others say";
	}
	return wins;
}

class explanation {
public:
	explanation(config_manager const &manager, std::vector<config_source> const &sources, terminal &to)
	    : m_manager(manager), m_sources(sources), m_to(to) {}

	// Follows a key to its value, over references.
	void follow(std::string key) {
		std::set<std::string> visited;
		while (true) {
			m_to.out << coloured(printable(key), colour::bold, m_to.out_has_colours) << '\n';
			config_source const *const winner = write_answers(key);
			if (winner == nullptr) {
				m_to.out << "  nobody knows the key\n";
				return;
			}
			config_tree::node_value const node = *m_manager.get_config_item(winner->id)->get_value(ustring8(key));
			m_to.out << "  " << reason(node, *winner, loaded_file(m_manager)) << '\n';
			if (is_array(node) || (node.first & config_tree::flag_reference) == 0) {
				return;
			}
			visited.insert(key);
			std::string const target = node.second.as_string();
			if (visited.count(target) != 0) {
				m_to.out << "  the references lead in a circle, so the value is the name itself\n";
				return;
			}
			m_to.out << "  the reference is followed:\n";
			key = target;
		}
	}

	void write_readings(variant const &value) {
		std::pair<char const *, std::string> const rows[] = {
		    {"text", quoted(value)},
		    {"bool", value.as_bool() ? "true" : "false"},
		    {"int32", variant(value.as_int32()).as_string()},
		    {"int64", variant(value.as_int64()).as_string()},
		    {"uint64", variant(value.as_uint64()).as_string()},
		    {"double", variant(value.as_double()).as_string()},
		};
		m_to.out << "value\n";
		for (auto const &[type, text] : rows) {
			m_to.out << "  " << padded(type, title_width) << text << '\n';
		}
	}

private:
	// Writes the answer of each source; returns the first that has one.
	config_source const *write_answers(std::string const &key) {
		config_source const *winner = nullptr;
		for (config_source const &each : m_sources) {
			item_pointer const item = m_manager.get_config_item(each.id);
			bool const knows = item && item->get_value(ustring8(key)) != nullptr;
			bool const wins = knows && winner == nullptr;
			winner = wins ? &each : winner;
			std::string const text = item ? answer_text(*item, key) : std::string("no answer");
			m_to.out << (wins ? "* " : "  ") << padded(each.title, title_width)
			         << coloured(text, knows ? wins ? colour::green : colour::bold : colour::faint,
			                     m_to.out_has_colours)
			         << '\n';
		}
		return winner;
	}

	config_manager const &m_manager;
	std::vector<config_source> const &m_sources;
	terminal &m_to;
};

void write_list(std::string const &name, base_config_item const &item, terminal &to) {
	to.out << printable(name) << "[] = " << list_text(item, name) << '\n';
}

// The names of a list's elements, up to the first gap.
std::set<std::string> element_names(std::string const &list, base_config_item const &item) {
	config_tree::value_pair_array elements;
	item.get_array(ustring8(list), elements);
	std::set<std::string> names;
	for (auto const &[name, node] : elements) {
		names.insert(list + "." + name);
	}
	return names;
}

} // namespace

int explain_key(config_manager const &manager, std::vector<config_source> const &sources, std::string const &key,
                terminal &to) {
	explanation text(manager, sources, to);
	text.follow(key);
	variant const value = manager.get_value(ustring8(key));
	if (value == quor::types::nil) {
		to.out << "no value\n";
		return exit_findings;
	}
	text.write_readings(value);
	return exit_clean;
}

void dump_sources(config_manager const &manager, std::vector<config_source> const &sources, terminal &to) {
	for (config_source const &each : sources) {
		item_pointer const item = manager.get_config_item(each.id);
		std::string title = each.title;
		if (std::string const file = loaded_file(manager); !file.empty() && item->get_id() == "standard file") {
			title += " \"" + printable(file) + "\"";
		}
		to.out << coloured("[" + title + "]", colour::bold, to.out_has_colours) << '\n';
		config_tree::value_pair_array entries;
		item->get_value_pair_array("", entries, true);
		std::set<std::string> elements; // that stand with their list
		for (auto const &[name, node] : entries) {
			if (is_array(node)) {
				elements.merge(element_names(name, *item));
				write_list(name, *item, to);
			} else if (node.first != 0 && elements.count(name) == 0) {
				to.out << printable(name) << " = " << quoted(node.second) << '\n';
			}
		}
	}
}

} // namespace quor_cli
