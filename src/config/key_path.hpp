#ifndef QUOR_SRC_CONFIG_KEY_PATH_HPP
#define QUOR_SRC_CONFIG_KEY_PATH_HPP

#include <array>
#include <cstddef>
#include <string_view>

#include <quor/config/character_classes.hpp>
#include <quor/config/config_tree.hpp>
#include <quor/strings/ustring.hpp>

#include "support/ascii.hpp"

namespace QUOR_2_9::config::detail {

/// The components of a key, one after the other, in lower case. There is always at least
/// one; a separator at the key's end has none behind it. Keeps a copy of the key.
class key_path {
public:
	explicit key_path(std::string_view key) : m_size(key.size()) {
		char *units = m_small.data();
		if (m_size > m_small.size()) {
			m_large.resize(m_size);
			units = m_large.data();
		}
		for (std::size_t i = 0; i != m_size; ++i) {
			units[i] = support::to_lower(key[i]);
		}
		m_units = units;
	}
	key_path(key_path const &) = delete;
	key_path &operator=(key_path const &) = delete;

	/// Takes the next component off the front.
	std::string_view next() noexcept {
		std::size_t const begin = m_pos;
		std::size_t end = begin;
		while (end != m_size && !is_key_separator(m_units[end])) {
			++end;
		}
		m_pos = end < m_size ? end + 1 : end;
		return {m_units + begin, end - begin};
	}

	/// Whether no component is left.
	bool at_end() const noexcept { return m_pos == m_size; }

private:
	// Not initialised: filled as far as the key reaches.
	std::array<char, 256> m_small;
	strings::ustring8 m_large;
	char const *m_units = nullptr;
	std::size_t m_size;
	std::size_t m_pos = 0;
};

/// The child of a name that is in lower case, or null.
inline config_tree *find_child(config_tree const &node, std::string_view name) {
	auto const found = node.children.find(name);
	return found != node.children.end() ? found->second.get() : nullptr;
}

/// The node at a key, or null.
inline config_tree *find_node(config_tree const &tree, std::string_view key) {
	key_path path(key);
	config_tree *node = find_child(tree, path.next());
	while (node != nullptr && !path.at_end()) {
		node = find_child(*node, path.next());
	}
	return node;
}

} // namespace QUOR_2_9::config::detail

#endif
