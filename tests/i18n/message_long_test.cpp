// A text is put together in storage of a fixed size as long as it fits, and moves then.

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message.hpp>

#include "support/debug_capture.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::generic::varg_list;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring8;

// Field strings are written with "|" for the byte 0x01.
ustring8 field(std::string text) {
	for (char &unit : text) {
		unit = unit == '|' ? '\x01' : unit;
	}
	return text;
}

TEST(message_long, pieces_at_every_place_of_a_long_text_stay_whole) {
	quor_test::debug_capture const quiet;
	varg_list args;
	args.push_back("text", "word");
	args.push_back("number", 2048);
	args.push_back("seconds", 3661.5);
	std::vector<message_item> const tail{message_item("text", message_item::type_string),
	                                     message_item("number", message_item::type_int),
	                                     message_item(field("number|base|hex|fieldsize|12"), message_item::type_int),
	                                     message_item("number", message_item::type_memory),
	                                     message_item("number", message_item::type_memory_unit),
	                                     message_item("seconds", message_item::type_duration),
	                                     message_item(field("seconds|fieldsize|10"), message_item::type_double),
	                                     message_item(field("number|fieldsize|1"), message_item::type_int),
	                                     message_item("nothing", message_item::type_string)};
	std::string const expected = "word20480x00000008002KB1 hr 1 min 1.50 sec   3661.50?invalid??invalid?";
	for (std::size_t size = 400; size <= 530; ++size) {
		// As a literal, whose size is known before, and as an argument, whose size isn't.
		std::vector<message_item> items{message_item(std::string(size, '-'))};
		items.insert(items.end(), tail.begin(), tail.end());
		ASSERT_EQ(message_t(items).as_string(args), std::string(size, '-') + expected) << size;
		varg_list more(args);
		more.push_back("long", std::string(size, '+'));
		items.front() = message_item("long", message_item::type_string);
		ASSERT_EQ(message_t(items).as_string(more), std::string(size, '+') + expected) << size;
		ASSERT_EQ(items.front().as_string(more), std::string(size, '+')) << size;
	}
}

TEST(message_long, numbers_wider_than_any_storage_are_filled_up) {
	varg_list args;
	args.push_back("number", 5);
	for (int const width : {500, 511, 512, 513, 1024, 65000}) {
		message_item const item(field("number|base|hex|fieldsize|" + std::to_string(width)), message_item::type_int);
		auto const zeros = static_cast<std::size_t>(width) - 3;
		std::string const expected = "0x" + std::string(zeros, '0') + "5";
		EXPECT_EQ(item.as_string(args), expected);
		EXPECT_EQ(message_t({message_item("- "), item, item}).as_string(args), "- " + expected + expected);
	}
}

TEST(message_long, item_that_was_moved_from_renders) {
	quor_test::debug_capture const quiet;
	message_item source(field("number|base|hex"), message_item::type_int);
	message_item const target(std::move(source));
	varg_list args;
	args.push_back("number", 255);
	EXPECT_EQ(target.as_string(args), "0x00ff");
	// Whatever is left of it, nothing is read beyond that.
	EXPECT_NO_THROW(source.as_string(args)); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
}

} // namespace
