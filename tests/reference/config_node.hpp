#ifndef QUOR_TESTS_REFERENCE_CONFIG_NODE_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_NODE_HPP

// The tree of configuration keys once more: plain maps, a recursion for each component of
// a key, and a new text for the rest of the key at each step.

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quor_reference {

// One line of a listing; no value stands for nil.
struct config_entry {
	std::string name;
	unsigned int flags = 0;
	std::optional<std::string> value;

	bool operator==(config_entry const &other) const {
		return name == other.name && flags == other.flags && value == other.value;
	}
};

class config_node {
public:
	// The key up to its first separator, in lower case, and what stands behind that.
	static std::pair<std::string, std::string> split(std::string const &key) {
		std::size_t const separator = key.find_first_of("./\\");
		return {lower(key.substr(0, separator)), separator == std::string::npos ? "" : key.substr(separator + 1)};
	}

	void set(std::string const &key, std::optional<std::string> const &value, unsigned int flags) {
		auto const [head, tail] = split(key);
		config_node &child = m_children[units_of(head)];
		if (tail.empty()) {
			child.m_flags = flags | 1;
			child.m_value = value;
		} else {
			child.set(tail, value, flags);
		}
	}

	void set_array(std::string const &key, std::vector<std::string> const &values) {
		set(key, std::nullopt, 2);
		for (std::size_t i = 0; i != values.size(); ++i) {
			set(key + "." + std::to_string(i), values[i], 0);
		}
	}

	// The node at a key, with an empty name.
	std::optional<config_entry> get(std::string const &key) const {
		config_node const *const node = find(key);
		return node != nullptr ? std::optional(config_entry{"", node->m_flags, node->m_value}) : std::nullopt;
	}

	void array(std::string const &key, std::vector<config_entry> &out) const {
		config_node const *const head = find(key);
		if (head == nullptr || (head->m_flags & 2) == 0) {
			return;
		}
		for (std::size_t i = 0;; ++i) {
			auto const element = head->m_children.find(units_of(std::to_string(i)));
			if (element == head->m_children.end()) {
				return;
			}
			out.push_back({std::to_string(i), element->second.m_flags, element->second.m_value});
		}
	}

	void list(std::string const &key, std::vector<config_entry> &out, bool recursive, std::string const &prefix) const {
		if (!key.empty()) {
			auto const [head, tail] = split(key);
			auto const child = m_children.find(units_of(head));
			if (child != m_children.end()) {
				child->second.list(tail, out, recursive, "");
			}
			return;
		}
		for (auto const &[units, child] : m_children) {
			std::string const name = prefix.empty() ? text_of(units) : prefix + "." + text_of(units);
			out.push_back({name, child.m_flags, child.m_value});
			if (recursive && !child.m_children.empty()) {
				child.list("", out, true, name);
			}
		}
	}

	// All nodes.
	void list(std::vector<config_entry> &out) const { list("", out, true, ""); }

	std::string dump(int indent) const {
		std::string bar;
		for (int i = 0; i < indent; ++i) {
			bar += "|\t\t";
		}
		std::string out = bar;
		for (auto const &[units, child] : m_children) {
			out += text_of(units) + " : ";
			out += child.m_flags == 0 ? "true" : std::to_string(child.m_flags) + " " + child.m_value.value_or("");
			out += "\n" + bar;
			out += child.m_children.empty() ? "|\n" : "|---------------\\\n" + child.dump(indent + 1);
			out += bar;
		}
		return out + "end\n";
	}

private:
	// Ordered by the bytes as numbers from 0 to 255.
	using number_list = std::vector<unsigned int>;

	static number_list units_of(std::string const &text) {
		number_list result;
		for (char const c : text) {
			result.push_back(static_cast<unsigned char>(c));
		}
		return result;
	}
	static std::string text_of(number_list const &units) {
		std::string result;
		for (unsigned int const unit : units) {
			result += static_cast<char>(unit);
		}
		return result;
	}

	static std::string lower(std::string text) {
		std::string const upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
		for (char &c : text) {
			std::size_t const index = upper.find(c);
			if (index != std::string::npos) {
				c = "abcdefghijklmnopqrstuvwxyz"[index];
			}
		}
		return text;
	}

	config_node const *find(std::string const &key) const {
		auto const [head, tail] = split(key);
		auto const child = m_children.find(units_of(head));
		if (child == m_children.end()) {
			return nullptr;
		}
		return tail.empty() ? &child->second : child->second.find(tail);
	}

	std::map<number_list, config_node> m_children;
	unsigned int m_flags = 0;
	std::optional<std::string> m_value;
};

} // namespace quor_reference

#endif
