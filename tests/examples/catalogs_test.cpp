// The catalogs of the examples: complete, rendered without a fault, and a tour of every
// feature that a message can have.

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/quor.hpp>

#include "support/debug_capture.hpp"

namespace {

using quor::generic::varg_list;
using quor::i18n::message_catalogs;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring8;

ustring8 const directory(QUOR_EXAMPLES_DIR "/catalogs");

std::vector<std::string> const languages = {"en", "de", "de_AT", "fr", "ja"};

message_catalogs load(std::string const &language) {
	message_catalogs catalogs;
	auto result = catalogs.load(directory, ustring8(language));
	EXPECT_EQ(message_catalogs::no_error, static_cast<message_catalogs::error_type>(result)) << result.message();
	return catalogs;
}

// Every message of a set under "catalog/key".
std::map<std::string, message_t> all_messages(message_catalogs const &catalogs) {
	std::map<std::string, message_t> messages;
	for (auto const &catalog : catalogs) {
		for (auto each = catalogs.begin(catalog.first); each != catalogs.end(catalog.first); ++each) {
			messages.emplace(catalog.first + "/" + each->first, each->second);
		}
	}
	return messages;
}

std::string name_of(message_item const &item) {
	std::string const data = item.data();
	return std::string(data.begin(), std::find(data.begin(), data.end(), '\x01'));
}

// Name and kind of each argument; a number and its unit are two kinds.
std::set<std::string> arguments_of(message_t const &message) {
	std::set<std::string> result;
	for (message_item const &item : message) {
		if (item.type() != message_item::type_value) {
			result.insert(name_of(item) + " " + std::to_string(item.type()));
		}
	}
	return result;
}

TEST(example_catalogs, every_language_has_every_message_with_the_same_arguments) {
	auto const english = all_messages(load("en"));
	EXPECT_GT(english.size(), 60u);
	for (std::string const &language : languages) {
		auto const messages = all_messages(load(language));
		ASSERT_EQ(english.size(), messages.size()) << language;
		for (auto const &[name, message] : messages) {
			SCOPED_TRACE(testing::Message() << language << ' ' << name);
			ASSERT_EQ(1u, english.count(name));
			EXPECT_EQ(arguments_of(english.at(name)), arguments_of(message));
			EXPECT_EQ(english.at(name).meta(), message.meta());
		}
	}
}

TEST(example_catalogs, every_text_comes_from_the_language_asked_for) {
	std::map<std::string, std::set<std::string>> const accepted = {
	    {"en", {"en"}}, {"de", {"de"}}, {"de_AT", {"de", "de_AT"}}, {"fr", {"fr"}}, {"ja", {"ja"}}};
	for (auto const &[language, origins] : accepted) {
		std::set<std::string> seen;
		for (auto const &[name, message] : all_messages(load(language))) {
			SCOPED_TRACE(testing::Message() << language << ' ' << name);
			std::string const origin = message._orginal_locale();
			EXPECT_TRUE(origin == "." || origins.count(origin) == 1) << origin;
			seen.insert(origin);
		}
		EXPECT_EQ(origins.size() + 1, seen.size()) << language;
	}
}

TEST(example_catalogs, every_message_renders_with_sensible_values) {
	quor_test::debug_capture const capture;
	for (std::string const &language : languages) {
		for (auto const &[name, message] : all_messages(load(language))) {
			varg_list args;
			for (message_item const &item : message) {
				if (item.type() != message_item::type_value) {
					args.push_back(ustring8(name_of(item)), 1234);
				}
			}
			std::string const text = message.as_string(args);
			SCOPED_TRACE(testing::Message() << language << ' ' << name << ": " << text);
			EXPECT_EQ(std::string::npos, text.find("?invalid?"));
			EXPECT_FALSE(text.empty());
			EXPECT_EQ(ustring8(text), quor::strings::utf32_to_utf8(message.as_utf32(args)));
			// Layout of the file never shows: no tab, no two blanks, none at the end of a line.
			EXPECT_EQ(std::string::npos, text.find('\t'));
			EXPECT_EQ(std::string::npos, text.find(" \n"));
			EXPECT_NE(' ', text.back());
			EXPECT_NE('\n', text.back());
		}
	}
	EXPECT_TRUE(capture.calls().empty());
}

TEST(example_catalogs, every_feature_is_used) {
	std::set<int> types;
	std::map<int, std::set<std::string>> keys;
	bool meta = false;
	bool line_feed = false;
	for (std::string const &language : languages) {
		for (auto const &[name, message] : all_messages(load(language))) {
			meta = meta || !message.meta().empty();
			for (message_item const &item : message) {
				types.insert(item.type());
				ustring8 const data = item.data();
				line_feed = line_feed || std::count(data.begin(), data.end(), '\n') != 0;
				auto const fields = quor::strings::split_string(data, "\x01", 0);
				for (std::size_t i = 1; i < fields.size(); i += 2) {
					keys[item.type()].insert(fields[i]);
				}
			}
		}
	}
	EXPECT_EQ((std::set<int>{0, 1, 3, 4, 7, 8, 9, 10, 11}), types);
	EXPECT_TRUE(meta);
	EXPECT_TRUE(line_feed);
	using words = std::set<std::string>;
	EXPECT_EQ((words{"base", "fieldsize"}), keys[message_item::type_int]);
	EXPECT_EQ((words{"fieldsize", "precision"}), keys[message_item::type_double]);
	EXPECT_EQ((words{"p", "prec", "precision", "sh", "short", "short_form"}), keys[message_item::type_duration]);
	EXPECT_EQ((words{"base_unit", "target_unit"}), keys[message_item::type_memory]);
	EXPECT_EQ((words{"base_unit", "target_unit"}), keys[message_item::type_memory_unit]);
	EXPECT_EQ((words{"base_unit", "precision", "short_form", "target_unit"}), keys[message_item::type_metric]);
	EXPECT_EQ((words{"base_unit", "precision", "short_form", "target_unit"}), keys[message_item::type_metric_unit]);
}

TEST(example_catalogs, broken_file_names_the_place_of_the_fault) {
	message_catalogs catalogs;
	ustring8 const file(QUOR_EXAMPLES_DIR "/broken/broken.xmc");
	auto result = catalogs.load(file, ustring8("en"));
	EXPECT_NE(message_catalogs::no_error, static_cast<message_catalogs::error_type>(result));
	EXPECT_EQ("message_catalogs::result_type - XMC file is not valid\n "
	          "xmc_file_loader::load_error - Invalid element \"b\""
	          "\n in message element: \"summary\""
	          "\n in catalog element: \"report\""
	          "\n in file: \"" QUOR_EXAMPLES_DIR "/broken/parts/report.xmc\""
	          "\n in file: \"" +
	              file + "\"",
	          result.message());
	EXPECT_EQ(0u, catalogs.size());
}

} // namespace
