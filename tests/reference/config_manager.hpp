#ifndef QUOR_TESTS_REFERENCE_CONFIG_MANAGER_HPP
#define QUOR_TESTS_REFERENCE_CONFIG_MANAGER_HPP

// A configuration manager as slow and as plain as can be: an item is a table from paths
// to flags and values, and every question walks everything.

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <quor/types/nil.hpp>
#include <quor/types/variant.hpp>

namespace quor_reference {

using QUOR_2_9::types::variant;

// The components of a key, in lower case; at least one, and none for a single separator
// at the end.
inline std::vector<std::string> config_path(std::string key) {
	std::vector<std::string> path;
	do {
		std::size_t const end = key.find_first_of(".\\/");
		std::string head = key.substr(0, end);
		for (char &unit : head) {
			unit = unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit - 'A' + 'a') : unit;
		}
		path.push_back(head);
		key = end == std::string::npos ? "" : key.substr(end + 1);
	} while (!key.empty());
	return path;
}

struct config_item {
	using node = std::pair<unsigned int, variant>;
	using entry = std::pair<std::string, variant>;

	// Ordered by the components, each by its bytes: parents stand before what is below them.
	std::map<std::vector<std::string>, node> nodes;

	void set(std::string const &key, variant const &value, unsigned int flags) {
		std::vector<std::string> const path = config_path(key);
		for (std::size_t length = 1; length != path.size(); ++length) {
			nodes.emplace(std::vector(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(length)), node());
		}
		nodes[path] = node(flags | 1, value);
	}

	node const *get(std::vector<std::string> const &path) const {
		auto const found = nodes.find(path);
		return found != nodes.end() ? &found->second : nullptr;
	}
	node const *get(std::string const &key) const { return get(config_path(key)); }

	std::vector<variant> elements(std::string const &key) const {
		std::vector<variant> result;
		std::vector<std::string> path = config_path(key);
		path.push_back("0");
		while (get(path) != nullptr) {
			result.push_back(get(path)->second);
			path.back() = std::to_string(result.size());
		}
		return result;
	}

	std::vector<entry> listing(std::string const &key, bool recursive) const {
		std::vector<entry> result;
		std::vector<std::string> const above = key.empty() ? std::vector<std::string>() : config_path(key);
		for (auto const &[path, data] : nodes) {
			bool const below =
			    path.size() > above.size() && std::vector(path.begin(), path.begin() + size_of(above)) == above;
			if (below && (recursive || path.size() == above.size() + 1)) {
				std::string name;
				for (std::size_t i = above.size(); i != path.size(); ++i) {
					name = name.empty() ? path[i] : name + "." + path[i];
				}
				result.emplace_back(name, data.second);
			}
		}
		return result;
	}

private:
	static std::ptrdiff_t size_of(std::vector<std::string> const &path) {
		return static_cast<std::ptrdiff_t>(path.size());
	}
};

struct config_manager {
	std::vector<config_item> items;

	variant get_value(std::string const &key) const {
		std::string name = key;
		std::vector<std::string> visited;
		std::size_t i = 0;
		while (i != items.size()) {
			config_item::node const *const p = items[i].get(name);
			if (p == nullptr) {
				++i;
			} else if ((p->first & 3) == 3) {
				config_item::node const *const first = items[i].get(name + ".0");
				return first == nullptr ? variant() : first->second;
			} else if ((p->first & 4) != 0) {
				visited.push_back(name);
				std::string const target = p->second.as_string();
				for (std::string const &old : visited) {
					if (old == target) {
						return p->second;
					}
				}
				name = target;
				i = 0;
			} else {
				return p->second;
			}
		}
		return {};
	}

	bool value_exist(std::string const &key) const { return get_value(key) != QUOR_2_9::types::nil; }

	bool is_array(std::string const &key) const { return find_array(key) != nullptr; }

	std::vector<variant> get_array(std::string const &key) const {
		return is_array(key) ? find_array(key)->elements(key) : std::vector<variant>();
	}

	std::vector<config_item::entry> get_key_value_array(std::string const &key, bool recursive) const {
		for (config_item const &item : items) {
			if (item.get(key) != nullptr) {
				return item.listing(key, recursive);
			}
		}
		return {};
	}

private:
	config_item const *find_array(std::string const &key) const {
		for (config_item const &item : items) {
			if (item.get(key) != nullptr && (item.get(key)->first & 3) == 3) {
				return &item;
			}
		}
		return nullptr;
	}
};

} // namespace quor_reference

#endif
