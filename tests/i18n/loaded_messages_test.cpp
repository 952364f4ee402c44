// Messages that a loader brought, which are made when they are asked for: it can't be told
// which of them are.

#include <functional>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <quor/i18n/catalog.hpp>
#include <quor/i18n/message_catalogs.hpp>
#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/types/nil.hpp>

#include "support/temporary_directory.hpp"
#include "support/xmc_text.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::i18n::catalog_t;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring8;
using quor_test::xmc_loader;

using texts = std::map<std::string, std::string>;

std::string file_of(texts const &messages, std::string const &language) {
	std::string text = "<?xml?><xmc version='1.0'><catalog name='c' lang='" + language + "'>";
	for (auto const &[name, message] : messages) {
		text += "<msg name='" + name + "' meta='" + name + "!'>" + message + " <arg name='n' type='int'/></msg>";
	}
	return text + "</catalog></xmc>";
}

void load(xmc_loader::catalog_map &catalogs, texts const &messages, std::string const &language = "en") {
	xmc_loader loader;
	loader.handle_language(ustring8("de"));
	ASSERT_EQ(loader.parse_string(ustring8(file_of(messages, language)), "f").type(), 0);
	loader.combine_data(catalogs);
}

void expect_message(message_t const &message, std::string const &name, std::string const &text,
                    std::string const &language) {
	ASSERT_EQ(message.count(), 2U) << name;
	EXPECT_EQ(message.begin()[0].data(), text + " ");
	EXPECT_EQ(message.begin()[0].type(), message_item::type_value);
	EXPECT_EQ(message.begin()[1].data(), "n");
	EXPECT_EQ(message.begin()[1].type(), message_item::type_int);
	EXPECT_EQ(message.name(), name);
	EXPECT_EQ(message.meta(), name + "!");
	EXPECT_EQ(message._orginal_locale(), language);
}

TEST(loaded_messages, are_the_same_by_name_and_by_walking) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, {{"b", "1"}, {"a", "2"}, {"", "3"}, {"a name that is longer than most", "4"}});
	catalog_t const &catalog = *catalogs["c"];
	expect_message(catalog.message("a"), "a", "2", "en");
	message_t const &first = catalog.message("b");
	EXPECT_EQ(quor_test::xmc_text(catalog), " (en)=3 {n:3} meta !; a(en)=2 {n:3} meta a!; "
	                                        "a name that is longer than most(en)=4 {n:3} meta a name that is longer "
	                                        "than most!; b(en)=1 {n:3} meta b!");
	EXPECT_EQ(&first, &catalog.message("b"));
	EXPECT_EQ(std::next(catalog.begin(), 3)->second.begin(), first.begin());
	EXPECT_EQ(std::prev(catalog.end())->first, "b");
}

TEST(loaded_messages, the_end_of_a_walk_is_known_first) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, {{"b", "1"}, {"a", "2"}});
	auto const end = catalogs["c"]->end();
	EXPECT_EQ(std::prev(end)->first, "b");
	EXPECT_EQ(std::prev(end, 2), catalogs["c"]->begin());
}

TEST(loaded_messages, the_end_of_an_empty_catalog_stays_its_end) {
	quor_test::temporary_directory const directory;
	directory.write("empty.xmc", file_of({}, "en"));
	directory.write("full.xmc", file_of({{"a", "1"}, {"b", "2"}}, "en"));
	quor::i18n::message_catalogs catalogs;
	ASSERT_EQ(catalogs.load(directory.path("empty.xmc"), "en"), quor::i18n::message_catalogs::no_error);
	auto const end = catalogs.end("c");
	ASSERT_EQ(catalogs.load(directory.path("full.xmc"), "en"), quor::i18n::message_catalogs::no_error);
	EXPECT_EQ(end, catalogs.end("c"));
	EXPECT_EQ(std::prev(end)->first, "b");
}

TEST(loaded_messages, a_reference_leads_to_what_a_later_load_brings) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, {{"asked", "old"}, {"not asked", "old"}});
	message_t const &message = catalogs["c"]->message("asked");
	load(catalogs, {{"asked", "a text that is longer than the old one"}, {"not asked", "another text of some length"}});
	expect_message(message, "asked", "a text that is longer than the old one", "en");
	load(catalogs, {{"asked", "German"}, {"not asked", "x"}}, "de");
	expect_message(message, "asked", "German", "de");
	EXPECT_EQ(&catalogs["c"]->message("asked"), &message);
	expect_message(catalogs["c"]->message("not asked"), "not asked", "x", "de");
	EXPECT_EQ(catalogs["c"]->size(), 2U);
}

TEST(loaded_messages, languages_are_those_of_the_messages) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, {{"a", "1"}, {"b", "2"}});
	load(catalogs, {{"b", "3"}, {"c", "4"}}, "de");
	catalog_t &catalog = *catalogs["c"];
	EXPECT_EQ(std::vector<ustring8>(catalog.languages_begin(), catalog.languages_end()),
	          (std::vector<ustring8>{"de", "en"}));
	catalog.message("a", message_t());
	EXPECT_EQ(std::vector<ustring8>(catalog.languages_begin(), catalog.languages_end()),
	          (std::vector<ustring8>{"", "de"}));
}

TEST(loaded_messages, a_copy_needs_nothing_of_the_first_one) {
	xmc_loader::catalog_map catalogs;
	load(catalogs, {{"asked", "1"}, {"not asked", "2"}});
	catalogs["c"]->message("asked");
	auto copy = std::make_unique<catalog_t>(*catalogs["c"]);
	catalogs.clear();
	expect_message(copy->message("not asked"), "not asked", "2", "en");
	expect_message(copy->message("asked"), "asked", "1", "en");
	message_t const kept = copy->message("not asked");
	copy.reset();
	expect_message(kept, "not asked", "2", "en");
}

// Loads, stores, asks and walks at random, beside a plain map.
void compare_with_map(std::vector<std::string> const &names) {
	std::mt19937 random(29);
	for (int round = 0; round != 12; ++round) {
		xmc_loader::catalog_map catalogs;
		texts expected;
		load(catalogs, {});
		for (int step = 0; step != 60; ++step) {
			texts loaded;
			for (std::size_t i = random() % 20; i != 0; --i) {
				loaded[names[random() % names.size()]] =
				    "text" + std::string(random() % 50, 'x') + std::to_string(step);
			}
			load(catalogs, loaded);
			for (auto const &[name, text] : loaded) {
				expected[name] = text;
			}
			catalog_t &catalog = *catalogs["c"];
			std::string const &name = names[random() % names.size()];
			switch (random() % 6) {
			case 0:
				catalog.message(ustring8(name),
				                message_t(ustring8(name),
				                          {message_item("own "), message_item("n", message_item::type_int)},
				                          ustring8(name + "!")));
				expected[name] = "own";
				break;
			case 1:
				catalog = catalog_t(catalog);
				break;
			case 2:
				EXPECT_EQ(catalog.has_message(ustring8(name)), expected.count(name) != 0);
				break;
			case 3:
				EXPECT_EQ(static_cast<std::size_t>(std::distance(catalog.begin(), catalog.end())), expected.size());
				break;
			default:
				message_t const &message = catalog.message(ustring8(name));
				ASSERT_EQ(message == quor::types::nil, expected.count(name) == 0);
				if (expected.count(name) != 0) {
					ASSERT_EQ(message.begin()->data(), expected[name] + " ");
				}
			}
			ASSERT_EQ(catalog.size(), expected.size());
		}
		auto const &catalog = *catalogs["c"];
		auto walked = catalog.begin();
		for (auto const &[name, text] : expected) {
			ASSERT_EQ(walked->first, name);
			ASSERT_EQ(walked->second.begin()->data(), text + " ");
			ASSERT_EQ(&walked->second, &catalog.message(ustring8(name)));
			++walked;
		}
	}
}

TEST(loaded_messages, answer_like_a_map) {
	std::vector<std::string> names{"", "a", "A"};
	for (int i = 0; i != 200; ++i) {
		names.push_back("a name that is long enough for the heap " + std::to_string(i));
	}
	compare_with_map(names);
}

TEST(loaded_messages, names_that_hash_alike_are_found) {
	std::vector<std::string> names;
	for (int i = 0; names.size() != 120; ++i) {
		std::string const name = std::to_string(i);
		if (std::hash<std::string_view>()(name) % 512 == 77) {
			names.push_back(name);
		}
	}
	compare_with_map(names);
}

} // namespace
