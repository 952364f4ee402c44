#ifndef QUOR_SRC_CONFIG_KEY_PATH_HPP
#define QUOR_SRC_CONFIG_KEY_PATH_HPP

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <quor/config/character_classes.hpp>
#include <quor/config/config_tree.hpp>
#include <quor/strings/ustring.hpp>

#include "config/child_block.hpp"
#include "config/key_word.hpp"

namespace QUOR_2_9::config::detail {

/// The components of a key, one after the other, in lower case. There is always at least
/// one; a separator at the key's end has none behind it. A key without capitals isn't copied,
/// so it must stay while the components are used.
class key_path {
public:
	explicit key_path(std::string_view key) : m_units(key.data()), m_size(key.size()) {
		key_word capitals = 0;
		for_each_word([&](key_word word, std::size_t pos) {
			capitals |= lower_word(word) ^ word;
			if (pos < marked_size) {
				m_separators |= separators(word) << pos;
			}
		});
		if (capitals != 0) {
			copy();
		}
	}
	key_path(key_path const &) = delete;
	key_path &operator=(key_path const &) = delete;

	/// Takes the next component off the front.
	std::string_view next() noexcept {
		std::size_t const begin = m_pos;
		std::size_t const end = end_of_component();
		m_pos = end < m_size ? end + 1 : end;
		return {m_units + begin, end - begin};
	}

	/// Goes back to the first component.
	void rewind() noexcept { m_pos = 0; }

	/// Whether no component is left.
	bool at_end() const noexcept { return m_pos == m_size; }

private:
	static constexpr std::size_t marked_size = 64;

	template <class Action>
	void for_each_word(Action action) {
		std::size_t pos = 0;
		for (; m_size - pos >= key_word_size; pos += key_word_size) {
			action(load_word(m_units + pos), pos);
		}
		if (pos != m_size) {
			action(load_rest(m_units, pos, m_size), pos);
		}
	}

	/// Goes over to a copy in lower case.
	void copy() {
		char *units = m_small.data();
		if (m_size > m_small.size()) {
			m_large.resize(m_size + key_word_size);
			units = m_large.data();
		}
		for_each_word([units](key_word word, std::size_t pos) { store_word(lower_word(word), units + pos); });
		m_units = units;
	}

	std::size_t end_of_component() const noexcept {
		if (m_pos < marked_size) {
			if (std::uint64_t const left = m_separators >> m_pos; left != 0) {
				return m_pos + static_cast<std::size_t>(std::countr_zero(left));
			}
		}
		std::size_t end = std::max(m_pos, std::min(m_size, marked_size));
		while (end != m_size && !is_key_separator(m_units[end])) {
			++end;
		}
		return end;
	}

	// Not initialised: filled as far as the key reaches, and up to seven bytes further.
	std::array<char, 256> m_small;
	strings::ustring8 m_large;
	char const *m_units;
	/// A bit for each separator among the first bytes.
	std::uint64_t m_separators = 0;
	std::size_t m_size;
	std::size_t m_pos = 0;
};

/// The child of a name that is in lower case, or null.
inline config_tree *find_child(config_tree const &node, std::string_view name) {
	return child_access::get(node.children, name);
}

/// The node at a path, or null. Starts at the first component, so that one path serves to
/// ask several trees.
inline config_tree *find_node(config_tree const &tree, key_path &path) {
	path.rewind();
	config_tree *node = find_child(tree, path.next());
	while (node != nullptr && !path.at_end()) {
		node = find_child(*node, path.next());
	}
	return node;
}

/// The node at a key, or null.
inline config_tree *find_node(config_tree const &tree, std::string_view key) {
	key_path path(key);
	return find_node(tree, path);
}

} // namespace QUOR_2_9::config::detail

#endif
