// Random contents and questions, answered by the manager and by a plain one.

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "config/listed_items.hpp"
#include "reference/config_manager.hpp"

namespace {

using quor::config::config_manager;
using quor::strings::ustring8;
using quor::types::variant;

// Few names, so that keys, references and array elements meet often.
class generator {
public:
	explicit generator(unsigned int seed) : m_random(seed) {}

	std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }

	std::string key() {
		static std::vector<std::string> const names{"a", "A", "b", "0", "1", "", "long name of a key", "\xC3\x84"};
		std::string result = names[below(names.size())];
		while (below(5) < 2) {
			result += ".\\/"[below(3)] + names[below(names.size())];
		}
		return result + (below(12) == 0 ? "." : "");
	}

	variant value() {
		switch (below(6)) {
		case 0:
			return {};
		case 1:
			return static_cast<int>(below(3));
		case 2:
			return quor::strings::ustring16(1, 'a');
		default:
			return key();
		}
	}

	unsigned int flags() {
		static std::vector<unsigned int> const words{0, 0, 1, 2, 4, 4, 4, 6, 8, 12, 0x80000002u};
		return words[below(words.size())];
	}

private:
	std::mt19937 m_random;
};

struct managers {
	config_manager ours;
	quor_reference::config_manager plain;
};

managers random_managers(generator &random) {
	managers result;
	quor_test::listed_items sources;
	for (std::size_t items = random.below(4); items != 0; --items) {
		auto &ours = sources.add();
		auto &plain = result.plain.items.emplace_back();
		for (std::size_t keys = random.below(25); keys != 0; --keys) {
			std::string const key = random.key();
			variant const value = random.value();
			unsigned int const flags = random.flags();
			ours.set(key, value, flags);
			plain.set(key, value, flags);
		}
	}
	result.ours.init(sources);
	return result;
}

void expect_same(variant const &expected, variant const &found, std::string const &what) {
	EXPECT_TRUE(expected.type() == found.type())
	    << what << ": " << expected.type().name() << ", " << found.type().name();
	EXPECT_EQ(expected.as_string(), found.as_string()) << what;
}

void expect_same_arrays(managers const &both, std::string const &key) {
	std::vector<variant> found{variant("kept")};
	both.ours.get_array(key, found);
	auto const expected = both.plain.get_array(key);
	ASSERT_EQ(expected.size() + 1, found.size()) << key;
	expect_same("kept", found[0], key);
	for (std::size_t i = 0; i != expected.size(); ++i) {
		expect_same(expected[i], found[i + 1], key + " element " + std::to_string(i));
	}
}

void expect_same_listings(managers const &both, std::string const &key, bool recursive) {
	std::vector<std::pair<ustring8, variant>> found;
	both.ours.get_key_value_array(key, found, recursive);
	auto const expected = both.plain.get_key_value_array(key, recursive);
	ASSERT_EQ(expected.size(), found.size()) << key;
	for (std::size_t i = 0; i != expected.size(); ++i) {
		EXPECT_EQ(expected[i].first, found[i].first) << key;
		expect_same(expected[i].second, found[i].second, key + " entry " + found[i].first);
	}
}

TEST(config_manager_random, answers_agree_with_a_plain_manager) {
	generator random(20240917);
	std::size_t values = 0;
	std::size_t arrays = 0;
	for (int round = 0; round != 2000; ++round) {
		managers const both = random_managers(random);
		for (int question = 0; question != 25 && !HasFailure(); ++question) {
			std::string const key = random.key();
			expect_same(both.plain.get_value(key), both.ours.get_value(key), key);
			EXPECT_EQ(both.plain.value_exist(key), both.ours.value_exist(key)) << key;
			EXPECT_EQ(both.plain.is_array(key), both.ours.is_array(key)) << key;
			expect_same_arrays(both, key);
			expect_same_listings(both, key, false);
			expect_same_listings(both, key, true);
			values += both.ours.value_exist(key) ? 1 : 0;
			arrays += both.ours.is_array(key) ? 1 : 0;
		}
		ASSERT_FALSE(HasFailure()) << "round " << round;
	}
	// The contents are such that questions often meet something.
	EXPECT_GT(values, 2000u);
	EXPECT_GT(arrays, 1000u);
}

} // namespace
