// One message rendered in several threads at once. Meant for the thread sanitizer too.

#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message.hpp>
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

} // namespace
