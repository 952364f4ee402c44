#ifndef QUOR_TESTS_SUPPORT_CONFIG_SOURCES_HPP
#define QUOR_TESTS_SUPPORT_CONFIG_SOURCES_HPP

// Command lines and environments as a program gets them, and what a configuration source
// holds as a list that can be compared and printed.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <quor/config/base_config_item.hpp>
#include <quor/config/config_tree.hpp>
#include <quor/types/nil.hpp>

#include "reference/config_sources.hpp"

namespace quor_test {

using quor_reference::config_entry;

// Zero-terminated strings, each in memory of its own and of its exact size, and the
// pointers to them with a null pointer behind the last.
class string_block {
public:
	explicit string_block(std::vector<std::string> const &texts) {
		for (std::string const &text : texts) {
			m_texts.push_back(std::make_unique<char[]>(text.size() + 1));
			std::copy(text.begin(), text.end(), m_texts.back().get());
			m_pointers.push_back(m_texts.back().get());
		}
		m_pointers.push_back(nullptr);
	}

	unsigned int count() const { return static_cast<unsigned int>(m_texts.size()); }
	char const *const *pointers() const { return m_pointers.data(); }
	char const **pointers() { return m_pointers.data(); }

private:
	std::vector<std::unique_ptr<char[]>> m_texts;
	std::vector<char const *> m_pointers;
};

// A value, what is stored for an array, and a node that deeper keys passed through.
inline config_entry value(std::string name, std::string text) {
	return {std::move(name), 1, std::move(text)};
}
inline config_entry head(std::string name) {
	return {std::move(name), 3, std::nullopt};
}
inline config_entry passage(std::string name) {
	return {std::move(name), 0, std::nullopt};
}

// What the library lists, with values as text.
inline std::vector<config_entry> entries_of(QUOR_2_9::config::config_tree::value_pair_array const &nodes) {
	std::vector<config_entry> result;
	for (auto const &[name, data] : nodes) {
		result.push_back({name, data.first, std::nullopt});
		if (!(data.second == QUOR_2_9::types::nil)) {
			result.back().value = data.second.as_utf8();
		}
	}
	return result;
}

// All nodes of a source, in the order of its listing.
inline std::vector<config_entry> listing_of(QUOR_2_9::config::base_config_item const &item) {
	QUOR_2_9::config::config_tree::value_pair_array nodes;
	item.get_value_pair_array("", nodes, true);
	return entries_of(nodes);
}

} // namespace quor_test

namespace quor_reference {

inline void PrintTo(config_entry const &entry, std::ostream *out) {
	*out << '{' << entry.name << ' ' << entry.flags;
	if (entry.value.has_value()) {
		*out << " \"" << *entry.value << '"';
	}
	*out << '}';
}

} // namespace quor_reference

#endif
