// Messages looked up and rendered in several threads at once. Meant for the thread sanitizer too.

#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message.hpp>
#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/types/nil.hpp>

namespace {

namespace quor = QUOR_2_9;

using quor::generic::argument;
using quor::generic::varg_list;
using quor::i18n::message_item;
using quor::i18n::message_t;

TEST(message_threads, one_message_and_its_arguments_are_read_at_once) {
	message_t const message(
	    std::vector<message_item>{message_item("Hello "), message_item("who", message_item::type_string),
	                              message_item(", "), message_item("n", message_item::type_memory), message_item(" "),
	                              message_item("n", message_item::type_memory_unit), message_item("!")});
	varg_list const args(argument("who", "a user with quite a long name"), argument("n", 2048));
	std::string const expected = "Hello a user with quite a long name, 2 KB!";
	std::vector<std::thread> threads;
	for (int i = 0; i != 4; ++i) {
		threads.emplace_back([&] {
			for (int round = 0; round != 300; ++round) {
				EXPECT_EQ(expected, message.as_string(args));
				EXPECT_FALSE(message.has_valid_args(args)) << "three items, two arguments";
				EXPECT_TRUE(args["missing"] == quor::types::nil);
				// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): threads copy what they share
				varg_list const copy(args);
				EXPECT_EQ(expected, message_t(message).as_utf8(copy));
			}
		});
	}
	for (std::thread &thread : threads) {
		thread.join();
	}
}

// The first look-up of a message that was loaded makes it.
TEST(message_threads, loaded_messages_are_asked_for_at_once) {
	constexpr int messages = 200;
	std::string text = "<?xml?><xmc version='1.0'><catalog name='c' lang='en'>";
	for (int i = 0; i != messages; ++i) {
		text += "<msg name='" + std::to_string(i) + "'>text " + std::to_string(i) + " of <arg name='n'/></msg>";
	}
	quor::i18n::_private::xmc_file_loader loader;
	loader.handle_language("en");
	ASSERT_EQ(loader.parse_string(quor::strings::ustring8(text + "</catalog></xmc>"), "f").type(), 0);
	quor::i18n::_private::xmc_file_loader::catalog_map catalogs;
	loader.combine_data(catalogs);
	quor::i18n::catalog_t const &catalog = *catalogs["c"];
	varg_list const args(argument("n", messages));
	std::vector<std::thread> threads;
	std::vector<std::vector<message_t const *>> seen(4);
	for (std::size_t thread = 0; thread != seen.size(); ++thread) {
		threads.emplace_back([&, thread] {
			for (int i = 0; i != messages; ++i) {
				// Half of the threads begin at the other end.
				int const number = thread % 2 == 0 ? i : messages - 1 - i;
				message_t const &message = catalog.message(std::to_string(number));
				EXPECT_EQ("text " + std::to_string(number) + " of 200", message.as_string(args));
				seen[thread].push_back(&message);
				if (i == messages / 2) {
					EXPECT_EQ(messages, std::distance(catalog.begin(), catalog.end()));
				}
			}
		});
	}
	for (std::thread &thread : threads) {
		thread.join();
	}
	EXPECT_EQ(seen[0], seen[2]);
	EXPECT_EQ(seen[0], std::vector<message_t const *>(seen[1].rbegin(), seen[1].rend()));
}

} // namespace
