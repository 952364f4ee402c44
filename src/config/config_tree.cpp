#include <quor/config/config_tree.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <string>

#include "config/decimal_name.hpp"
#include "config/key_path.hpp"
#include "config/store_node.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::config {
namespace {

using generic::abilities::create_dynamic;
using strings::ustring8;
using node_pointer = memory::pointers::rc_pointer<config_tree>;

/// Copies what lies below `from` to `to`, which has no children.
void copy_children(config_tree const &from, config_tree &to) {
	std::vector<std::pair<config_tree const *, config_tree *>> open{{&from, &to}};
	while (!open.empty()) {
		auto const [source, target] = open.back();
		open.pop_back();
		for (auto const &[name, child] : source->children) {
			if (!child) {
				throw "unreferanced object";
			}
			node_pointer const copy(create_dynamic<config_tree>(child->node_data.first, child->node_data.second));
			target->children[name] = copy;
			if (!child->children.empty()) {
				open.emplace_back(child.get(), copy.get());
			}
		}
	}
}

/// Nodes that are being walked through, each with the next of its children.
struct open_node {
	child_map::const_iterator next;
	child_map::const_iterator end;
	/// The length of the prefix of its children's names.
	std::size_t prefix;
};

void list(config_tree const &tree, config_tree::value_pair_array &out, bool recursive, ustring8 prefix) {
	std::vector<open_node> open{{tree.children.begin(), tree.children.end(), prefix.size()}};
	while (!open.empty()) {
		open_node &node = open.back();
		prefix.resize(node.prefix);
		if (node.next == node.end) {
			open.pop_back();
			continue;
		}
		auto const &[name, child] = *node.next++;
		if (!child) {
			continue;
		}
		if (!prefix.empty()) {
			prefix.push_back('.');
		}
		prefix.append(name);
		out.emplace_back(prefix, child->node_data);
		if (recursive && !child->children.empty()) {
			open.push_back({child->children.begin(), child->children.end(), prefix.size()});
		}
	}
}

void write(std::ostream &os, std::string_view text) {
	os.write(text.data(), static_cast<std::streamsize>(text.size()));
}

constexpr std::string_view bar_step = "|\t\t";

/// Many steps, so that few writes do.
constexpr auto long_bar = [] {
	std::array<char, 64 * bar_step.size()> bar{};
	for (std::size_t i = 0; i != bar.size(); ++i) {
		bar[i] = bar_step[i % bar_step.size()];
	}
	return bar;
}();

/// Writes the bar that indents a line, nothing if `indent` is negative.
void write_bar(std::ostream &os, std::ptrdiff_t indent) {
	auto const steps = static_cast<std::size_t>(std::max<std::ptrdiff_t>(indent, 0));
	for (std::size_t left = steps * bar_step.size(); left != 0;) {
		std::size_t const part = std::min(left, long_bar.size());
		write(os, {long_bar.data(), part});
		left -= part;
	}
}

void write_node(std::ostream &os, std::string_view name, config_tree::node_value const &data) {
	write(os, name);
	write(os, " : ");
	if (data.first == 0) {
		write(os, "true\n");
		return;
	}
	write(os, detail::decimal_name(data.first).text());
	write(os, " ");
	write(os, data.second.as_string());
	write(os, "\n");
}

} // namespace

config_tree::config_tree() : node_data(0U, types::variant()) {}

config_tree::config_tree(unsigned int flags, types::variant const &value) : node_data(flags, value) {}

config_tree::config_tree(config_tree const &other)
    : reference_count_pointer_ability(), clone_ability(), node_data(other.node_data) {
	copy_children(other, *this);
}

config_tree &config_tree::operator=(config_tree const &other) {
	if (this != &other) {
		config_tree copy(other);
		children.swap(copy.children);
		node_data.swap(copy.node_data);
	}
	return *this;
}

config_tree::~config_tree() = default;

config_tree *config_tree::clone() const {
	return create_dynamic<config_tree>(*this);
}

void config_tree::erase() {
	children.clear();
}

void config_tree::parse_string(ustring8 const &key, ustring8 &head, ustring8 &tail) const {
	auto const separator = std::find_if(key.begin(), key.end(), is_key_separator);
	ustring8 first(key.begin(), separator);
	ustring8 const rest(separator != key.end() ? separator + 1 : separator, key.end());
	std::transform(first.begin(), first.end(), first.begin(), support::to_lower<char>);
	head.clear();
	tail.clear();
	head.append(first);
	tail.append(rest);
}

void config_tree::set_node(ustring8 const &key, types::variant const &value, unsigned int flags) {
	detail::store_node(*this, key, flags | flag_set, value);
}

config_tree::node_value const *config_tree::get_node(ustring8 const &key) const {
	config_tree const *const node = detail::find_node(*this, key);
	return node != nullptr ? &node->node_data : nullptr;
}

void config_tree::get_array(ustring8 const &key, value_pair_array &out) const {
	config_tree const *const head = detail::find_node(*this, key);
	if (head == nullptr || (head->node_data.first & flag_array) == 0) {
		return;
	}
	for (unsigned int i = 0;; ++i) {
		detail::decimal_name const name(i);
		config_tree const *const element = detail::find_child(*head, name.text());
		if (element == nullptr) {
			return;
		}
		out.emplace_back(name.text(), element->node_data);
	}
}

void config_tree::get_value_pair_array(ustring8 const &key, value_pair_array &out, bool recursive,
                                       ustring8 const &prefix) const {
	if (key.empty()) {
		list(*this, out, recursive, prefix);
	} else if (config_tree const *const node = detail::find_node(*this, key); node != nullptr) {
		list(*node, out, recursive, ustring8());
	}
}

void config_tree::dump(std::ostream &os, int indent) const {
	std::ptrdiff_t bars = indent;
	write_bar(os, bars);
	std::vector<open_node> open{{children.begin(), children.end(), 0}};
	while (!open.empty()) {
		open_node &node = open.back();
		if (node.next == node.end) {
			write(os, "end\n");
			open.pop_back();
			if (!open.empty()) {
				write_bar(os, --bars);
			}
			continue;
		}
		auto const &[name, child] = *node.next++;
		if (!child) {
			continue;
		}
		write_node(os, name, child->node_data);
		write_bar(os, bars);
		if (child->children.empty()) {
			write(os, "|\n");
			write_bar(os, bars);
		} else {
			write(os, "|---------------\\\n");
			write_bar(os, ++bars);
			open.push_back({child->children.begin(), child->children.end(), 0});
		}
	}
}

std::ostream &operator<<(std::ostream &os, config_tree const &tree) {
	tree.dump(os, 0);
	return os;
}

} // namespace QUOR_2_9::config
