// Keys are read eight bytes at a time: the components must be those of a reading byte by byte.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <quor/quor.hpp>

#include "config/key_path.hpp"
#include "config/key_word.hpp"

namespace {

using quor::config::config_tree;
namespace detail = quor::config::detail;

constexpr unsigned int every_byte = 256;

bool is_separator(char unit) {
	return unit == '.' || unit == '\\' || unit == '/';
}

char lower(char unit) {
	return unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit - 'A' + 'a') : unit;
}

std::vector<std::string> components_of(std::string_view key) {
	detail::key_path path(key);
	std::vector<std::string> result;
	do {
		result.emplace_back(path.next());
	} while (!path.at_end());
	return result;
}

std::vector<std::string> slow_components_of(std::string_view key) {
	std::vector<std::string> result(1);
	for (std::size_t i = 0; i != key.size(); ++i) {
		if (!is_separator(key[i])) {
			result.back().push_back(lower(key[i]));
		} else if (i + 1 != key.size()) {
			result.emplace_back();
		}
	}
	return result;
}

std::string random_key(std::mt19937 &random, std::size_t size) {
	static constexpr std::string_view units("aZ@[`{_9./\\\x00\x2D\x30\x5B\x5D\x80\xAE\xC1\xDA\xDC\xFF", 22);
	std::string result(size, 'k');
	// Separators are rare in some keys, so that components of every length occur.
	std::size_t const rarity = 1 + random() % 40;
	for (char &unit : result) {
		if (random() % rarity == 0) {
			unit = units[random() % units.size()];
		} else if (random() % 2 == 0) {
			unit = 'Q';
		}
	}
	return result;
}

TEST(key_word, every_byte_at_every_place_is_lowered_and_marked) {
	for (unsigned int byte = 0; byte != every_byte; ++byte) {
		auto const unit = static_cast<char>(byte);
		for (std::size_t place = 0; place != detail::key_word_size; ++place) {
			for (char const other : {'\x00', '.', 'A', '\xFF'}) {
				std::array<char, detail::key_word_size> units;
				units.fill(other);
				units[place] = unit;
				detail::key_word const word = detail::load_word(units.data());
				unsigned int separators = 0;
				std::array<char, detail::key_word_size> lowered{};
				for (std::size_t i = 0; i != units.size(); ++i) {
					lowered[i] = lower(units[i]);
					separators |= is_separator(units[i]) ? 1U << i : 0U;
				}
				std::array<char, detail::key_word_size> stored{};
				detail::store_word(detail::lower_word(word), stored.data());
				ASSERT_EQ(stored, lowered) << "byte " << byte << " at " << place;
				ASSERT_EQ(detail::separators(word), separators) << "byte " << byte << " at " << place;
			}
		}
	}
}

TEST(key_word, rest_of_every_length_has_zeros_behind_it) {
	std::string const text = "\xF1\xF2\xF3\xF4\xF5\xF6\xF7\xF8\xF9\xFA\xFB\xFC\xFD\xFE\xFF";
	for (std::size_t size = 1; size != text.size() + 1; ++size) {
		std::size_t const pos = size / detail::key_word_size * detail::key_word_size;
		if (pos == size) {
			continue;
		}
		// A block of its own, so that reading beside it is noticed.
		std::vector<char> const key(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size));
		std::array<char, detail::key_word_size> expected{};
		std::copy(key.begin() + static_cast<std::ptrdiff_t>(pos), key.end(), expected.begin());
		std::array<char, detail::key_word_size> found{};
		detail::store_word(detail::load_rest(key.data(), pos, size), found.data());
		EXPECT_EQ(found, expected) << "size " << size;
	}
}

TEST(key_path, components_of_every_length_are_those_of_a_slow_reading) {
	std::mt19937 random(2907);
	for (std::size_t size = 0; size != 300; ++size) {
		for (int round = 0; round != 60; ++round) {
			std::string const key = random_key(random, size);
			std::vector<char> const block(key.begin(), key.end());
			ASSERT_EQ(components_of(std::string_view(block.data(), block.size())), slow_components_of(key))
			    << "round " << round << " of size " << size;
		}
	}
}

TEST(key_path, separator_at_each_place_cuts_there) {
	for (std::size_t size : {1U, 7U, 8U, 9U, 63U, 64U, 65U, 72U, 255U, 256U, 257U, 264U, 1000U}) {
		for (std::size_t place = 0; place != size; ++place) {
			std::string key(size, 'K');
			key[place] = '/';
			ASSERT_EQ(components_of(key), slow_components_of(key)) << "at " << place << " of " << size;
		}
	}
}

TEST(key_path, one_path_asks_several_trees) {
	config_tree first;
	config_tree second;
	first.set_node("a.other", 1, 0);
	second.set_node("a.b", 2, 0);
	detail::key_path path("A.B");
	EXPECT_EQ(nullptr, detail::find_node(first, path)) << "stops on the way";
	EXPECT_EQ(second.get_node("a.b"), &detail::find_node(second, path)->node_data);
	EXPECT_EQ(nullptr, detail::find_node(first, path)) << "from the first component again";
	path.rewind();
	EXPECT_EQ("a", path.next());
}

} // namespace
