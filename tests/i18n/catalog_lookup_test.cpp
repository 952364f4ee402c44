// Looking up messages by name beside a plain map, also where all names hash alike.

#include <functional>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <quor/i18n/catalog.hpp>
#include <quor/i18n/message_catalogs.hpp>

#include "support/temporary_directory.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::i18n::catalog_t;
using quor::i18n::message_catalogs;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring8;
using quor::types::nil;

message_t message_of(std::string const &text) {
	return message_t(ustring8(text), {message_item(text)});
}

void expect_same(catalog_t const &catalog, std::map<std::string, std::string> const &expected,
                 std::vector<std::string> const &names) {
	ASSERT_EQ(catalog.size(), expected.size());
	for (std::string const &name : names) {
		auto const found = expected.find(name);
		ASSERT_EQ(catalog.has_message(ustring8(name)), found != expected.end()) << name;
		ASSERT_EQ(catalog.message(ustring8(name)).as_string({}), found != expected.end() ? found->second : "") << name;
	}
}

// Stores and asks at random; copies and assignments answer alike.
void compare_with_map(std::vector<std::string> const &names, std::size_t stored) {
	std::mt19937 random(2900);
	catalog_t catalog;
	std::map<std::string, std::string> expected;
	for (std::size_t i = 0; i != stored; ++i) {
		std::string const &name = names[random() % names.size()];
		std::string const text = "text " + std::to_string(i);
		catalog.message(ustring8(name), message_of(text));
		expected[name] = text;
		if (i % 16 == 0 || i + 1 == stored) {
			expect_same(catalog, expected, names);
		}
	}
	catalog_t const copy(catalog);
	catalog_t assigned;
	assigned.message("of old", message_of("gone"));
	assigned = catalog;
	catalog_t const made("name", {}, std::map<ustring8, message_t>(catalog.begin(), catalog.end()));
	catalog = nil;
	expect_same(copy, expected, names);
	expect_same(assigned, expected, names);
	expect_same(made, expected, names);
	EXPECT_FALSE(assigned.has_message("of old"));
	expect_same(catalog, {}, names);
	catalog.message(ustring8(names.front()), message_of("new"));
	expect_same(catalog, {{names.front(), "new"}}, names);
}

TEST(catalog_lookup, answers_like_a_map) {
	std::vector<std::string> names{"", std::string(1, '\0'), std::string("a\0b", 3), "a", "A"};
	for (int i = 0; i != 400; ++i) {
		names.push_back("a name that is long enough for the heap " + std::to_string(i));
	}
	compare_with_map(names, 300);
}

TEST(catalog_lookup, names_that_hash_alike_are_found) {
	std::vector<std::string> names;
	for (int i = 0; names.size() != 120; ++i) {
		std::string const name = std::to_string(i);
		if (std::hash<std::string_view>()(name) % 256 == 77) {
			names.push_back(name);
		}
	}
	compare_with_map(names, 200);
}

TEST(catalog_lookup, few_and_many_catalogs_are_told_apart) {
	quor_test::temporary_directory const directory;
	message_catalogs catalogs;
	for (int count = 1; count <= 12; ++count) {
		std::string const last = "catalog " + std::to_string(count);
		directory.write("one.xmc", "<?xml version=\"1.0\"?>\n<xmc version=\"1.1\">\n<catalog name=\"" + last +
		                               "\" lang=\"en\">\n<msg name=\"key\">" + last + "</msg>\n</catalog>\n</xmc>\n");
		ASSERT_EQ(catalogs.load(directory.path("one.xmc"), "en"), message_catalogs::no_error);
		for (int i = 0; i <= 13; ++i) {
			std::string const name = "catalog " + std::to_string(i);
			std::string const expected = i >= 1 && i <= count ? name : "";
			EXPECT_EQ(catalogs.message(name.c_str(), "key").as_string({}), expected);
			EXPECT_EQ(catalogs.message(name, std::string("key")).as_string({}), expected);
			EXPECT_EQ(catalogs.message(ustring8(name), ustring8("key")).as_string({}), expected);
			EXPECT_TRUE(catalogs.message(name.c_str(), "no key") == nil);
		}
	}
}

TEST(catalog_lookup, null_names_throw_as_strings_do) {
	message_catalogs const catalogs;
	EXPECT_THROW(catalogs.message(static_cast<char const *>(nullptr), "key"), std::logic_error);
	EXPECT_THROW(catalogs.message("name", static_cast<char const *>(nullptr)), std::logic_error);
}

} // namespace
