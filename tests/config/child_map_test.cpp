#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <new>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "support/allocation_counter.hpp"

namespace {

using quor::config::child_map;
using quor::config::config_tree;
using pointer = child_map::mapped_type;

static_assert(!std::is_copy_constructible_v<child_map>);
static_assert(std::is_nothrow_move_constructible_v<child_map>);
static_assert(std::is_nothrow_move_assignable_v<child_map>);

struct unsigned_bytes {
	bool operator()(std::string const &left, std::string const &right) const {
		return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
			return static_cast<unsigned char>(a) < static_cast<unsigned char>(b);
		});
	}
};

using reference = std::map<std::string, config_tree *, unsigned_bytes>;

pointer new_node() {
	return pointer(quor::generic::abilities::create_dynamic<config_tree>());
}

void expect_same(child_map const &map, reference const &expected, std::vector<std::string> const &names) {
	ASSERT_EQ(map.size(), expected.size());
	ASSERT_EQ(map.empty(), expected.empty());
	auto place = expected.begin();
	for (auto const &[name, node] : map) {
		ASSERT_NE(place, expected.end());
		ASSERT_EQ(name, place->first);
		ASSERT_EQ(node.get(), place->second);
		++place;
	}
	ASSERT_EQ(place, expected.end());
	for (std::string const &name : names) {
		auto const known = expected.find(name);
		auto const found = map.find(name);
		ASSERT_EQ(found == map.end(), known == expected.end()) << testing::PrintToString(name);
		ASSERT_EQ(map.get(name), known == expected.end() ? nullptr : known->second);
		if (known != expected.end()) {
			ASSERT_EQ(found->first, name);
			ASSERT_EQ(found->second.get(), known->second);
		}
	}
}

std::string random_name(std::mt19937 &random, std::string_view units, std::size_t longest) {
	std::string result;
	for (std::size_t left = random() % (longest + 1); left != 0; --left) {
		result.push_back(units[random() % units.size()]);
	}
	return result;
}

TEST(child_map, new_one_is_empty) {
	child_map const map;
	EXPECT_TRUE(map.empty());
	EXPECT_EQ(map.size(), 0u);
	EXPECT_EQ(map.begin(), map.end());
	EXPECT_EQ(map.find(""), map.end());
	EXPECT_EQ(map.get(""), nullptr);
}

TEST(child_map, index_makes_a_null_pointer_that_can_be_set) {
	child_map map;
	EXPECT_EQ(map["a"], nullptr);
	EXPECT_EQ(map.size(), 1u);
	EXPECT_NE(map.find("a"), map.end());
	EXPECT_EQ(map.get("a"), nullptr);
	pointer const node = new_node();
	map["a"] = node;
	EXPECT_EQ(map.size(), 1u);
	EXPECT_EQ(map.get("a"), node.get());
}

TEST(child_map, emplace_and_insert_leave_what_is_there) {
	child_map map;
	pointer const node = new_node();
	auto const [added, is_new] = map.emplace("b", node);
	EXPECT_TRUE(is_new);
	EXPECT_EQ(added->first, "b");
	EXPECT_EQ(added->second, node);
	auto const again = map.emplace("b", new_node());
	EXPECT_FALSE(again.second);
	EXPECT_EQ(again.first, map.find("b"));
	EXPECT_EQ(map.get("b"), node.get());
	EXPECT_TRUE(map.insert({"a", nullptr}).second);
	EXPECT_FALSE(map.insert(*map.find("b")).second);
	EXPECT_TRUE(map.insert(std::make_pair("c", node)).second);
	EXPECT_EQ(map.size(), 3u);
	EXPECT_EQ(node->get_ref_count(), 3u) << "here and in two entries";
}

TEST(child_map, emplace_returns_the_entry_at_every_size) {
	child_map map;
	for (int i = 0; i != 200; ++i) {
		std::string const name = std::to_string(i * 37 % 200);
		pointer const node = new_node();
		auto const found = map.emplace(name, node).first;
		ASSERT_EQ(found->first, name);
		ASSERT_EQ(found->second, node);
	}
	EXPECT_EQ(map.size(), 200u);
}

TEST(child_map, count_and_at_tell_what_is_there) {
	child_map map;
	EXPECT_EQ(map.count("a"), 0u);
	EXPECT_THROW(map.at("a"), std::out_of_range);
	map["a"] = new_node();
	map["null"];
	EXPECT_EQ(map.count("a"), 1u);
	EXPECT_EQ(map.count("null"), 1u);
	EXPECT_EQ(map.count("A"), 0u);
	EXPECT_EQ(map.at("a").get(), map.get("a"));
	EXPECT_EQ(map.at("null"), nullptr);
	EXPECT_THROW(map.at("b"), std::out_of_range);
}

TEST(child_map, get_or_insert_asks_only_for_what_is_missing) {
	child_map map;
	int made = 0;
	auto const make = [&made] {
		++made;
		return new_node();
	};
	config_tree *const first = map.get_or_insert("a", make).get();
	EXPECT_EQ(map.get_or_insert("a", make).get(), first);
	EXPECT_EQ(made, 1);
	EXPECT_THROW(map.get_or_insert("b", []() -> pointer { throw 1; }), int);
	EXPECT_EQ(map.size(), 1u);
	EXPECT_EQ(map.find("b"), map.end());
}

TEST(child_map, names_of_all_kinds_are_those_of_a_slow_map) {
	// Names that begin alike, short ones, zeros and bytes from 0x80 on.
	std::string_view const alphabets[] = {
	    {"ab", 2}, {"\x00\x01\x7F\x80\xFF", 5}, {"0123456789", 10}, {"x", 1}, {"\x00z", 2}, {"\x7F\xFF", 2}};
	std::mt19937 random(2917);
	for (std::string_view const units : alphabets) {
		for (std::size_t count : {1U, 3U, 4U, 5U, 8U, 9U, 31U, 32U, 33U, 64U, 65U, 500U, 3000U}) {
			child_map map;
			reference expected;
			std::vector<std::string> names;
			std::string const prefix = count % 2 == 0 ? "" : "name";
			for (std::size_t i = 0; i != count; ++i) {
				names.push_back(prefix + random_name(random, units, 1 + count % 23));
				pointer &node = map[names.back()];
				if (!node) {
					node = new_node();
					expected[names.back()] = node.get();
				}
				ASSERT_EQ(node.get(), expected[names.back()]);
			}
			for (std::size_t i = 0; i != 50; ++i) {
				names.push_back(prefix.substr(0, i % 5) + random_name(random, units, 8));
			}
			expect_same(map, expected, names);
		}
	}
}

TEST(child_map, ordered_insertion_of_many_keeps_every_node) {
	for (bool const backwards : {false, true}) {
		child_map map;
		reference expected;
		std::vector<std::string> names;
		for (int i = 0; i != 5000; ++i) {
			std::string const digits = std::to_string(10000 + i);
			names.push_back("element" + digits);
		}
		if (backwards) {
			std::reverse(names.begin(), names.end());
		}
		for (std::string const &name : names) {
			map[name] = new_node();
			expected[name] = map.get(name);
		}
		expect_same(map, expected, names);
	}
}

TEST(child_map, entries_stay_whole_at_every_size) {
	std::mt19937 random(2918);
	std::vector<std::string> names;
	for (int i = 0; i != 200; ++i) {
		names.push_back("connection_" + std::to_string(i) + std::string(static_cast<std::size_t>(i % 30), 'l'));
	}
	std::shuffle(names.begin(), names.end(), random);
	child_map map;
	reference expected;
	for (std::string const &name : names) {
		map[name] = new_node();
		expected[name] = map.get(name);
		expect_same(map, expected, names);
	}
}

TEST(child_map, iterators_walk_both_ways_of_increment) {
	child_map map;
	map["b"] = new_node();
	map["a"] = new_node();
	auto place = map.begin();
	EXPECT_EQ(place++->first, "a");
	EXPECT_EQ(place->first, "b");
	EXPECT_EQ(place, map.find("b"));
	EXPECT_NE(place, map.begin());
	EXPECT_EQ(++place, map.end());
	EXPECT_EQ(child_map::const_iterator(), map.end());
}

TEST(child_map, move_and_swap_exchange_the_entries) {
	child_map map;
	map["a"] = new_node();
	config_tree *const node = map.get("a");
	child_map moved(std::move(map));
	EXPECT_EQ(moved.get("a"), node);
	child_map other;
	other["b"] = new_node();
	other.swap(moved);
	EXPECT_EQ(other.get("a"), node);
	EXPECT_EQ(other.size(), 1u);
	EXPECT_NE(moved.get("b"), nullptr);
	moved = std::move(other);
	EXPECT_EQ(moved.get("a"), node);
	EXPECT_EQ(moved.find("b"), moved.end());
}

TEST(child_map, clear_lets_go_of_nodes_that_others_hold_without_emptying_them) {
	pointer const held = new_node();
	held->set_node("x.y", 1, 0);
	{
		child_map map;
		for (int i = 0; i != 100; ++i) {
			map[std::to_string(i)] = new_node();
			map.get(std::to_string(i))->set_node("deep.er", i, 0);
		}
		map["held"] = held;
		EXPECT_EQ(held->get_ref_count(), 2u);
		map.clear();
		EXPECT_TRUE(map.empty());
		EXPECT_EQ(held->get_ref_count(), 1u);
		map["again"] = held;
		EXPECT_EQ(map.size(), 1u);
	}
	EXPECT_EQ(held->get_ref_count(), 1u);
	EXPECT_NE(held->get_node("x.y"), nullptr);
}

TEST(child_map, insertion_that_finds_no_memory_changes_nothing) {
	// At each size that makes a block grow or be cut, in the middle and at the end.
	for (int const size : {0, 1, 4, 8, 16, 32, 64}) {
		for (std::string const name :
		     {"0 a name that is longer than a short string", "5", "9 is the last of all the names"}) {
			for (std::size_t fail_at = 0;; ++fail_at) {
				child_map map;
				reference expected;
				std::vector<std::string> names{name};
				for (int i = 0; i != size; ++i) {
					names.push_back(std::to_string(10 + i));
					map[names.back()] = new_node();
					expected[names.back()] = map.get(names.back());
				}
				bool done = false;
				try {
					quor_test::allocation_failure const failure(fail_at);
					map[name];
					done = true;
				} catch (std::bad_alloc const &) {
				}
				if (done) {
					expected[name] = nullptr;
				}
				expect_same(map, expected, names);
				if (done) {
					break;
				}
			}
		}
	}
}

} // namespace
