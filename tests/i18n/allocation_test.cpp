// What rendering and formatting ask of the heap.

#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/catalog.hpp>
#include <quor/i18n/message.hpp>
#include <quor/i18n/message_catalogs.hpp>
#include <quor/i18n/value_formatters.hpp>

#include "support/allocation_counter.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::i18n::_private::format_double;
using quor::i18n::_private::format_duration;
using quor::i18n::_private::format_int;
using quor::i18n::_private::format_memory;
using quor::i18n::_private::format_metric;
using quor::strings::ustring8;

// Attribute strings are written with "|" for the byte 0x01.
ustring8 attributes(std::string text) {
	for (char &unit : text) {
		unit = unit == '|' ? '\x01' : unit;
	}
	return text;
}

TEST(formatters, only_the_result_is_allocated) {
	ustring8 const none;
	ustring8 const long_int = attributes("base|spaced_dec|base|bin|fieldsize|0000000000000000000085|fieldsize|0");
	ustring8 const long_double = attributes("precision|000000000000000000000030|fieldsize|60");
	ustring8 const long_duration = attributes("precision|000000000000000000000030|short_form|false");
	ustring8 const long_memory = attributes("base_unit|KBytes and nothing else|target_unit|MBytes");
	ustring8 unit;
	auto const allocations = [](auto const &call) {
		quor_test::allocation_counter const counter;
		ustring8 const result = call();
		return counter.count();
	};
	EXPECT_EQ(0u, allocations([&] { return format_int(1234567, none); }));
	EXPECT_EQ(1u, allocations([&] { return format_int(1LL << 60, long_int); }));
	EXPECT_EQ(1u, allocations([&] { return format_int(7, attributes("b|h|f|9999")); }) -
	                  allocations([&] { return attributes("b|h|f|9999"); }));
	EXPECT_EQ(0u, allocations([&] { return format_double(3.14159, none); }));
	EXPECT_EQ(1u, allocations([&] { return format_double(3.14159, long_double); }));
	EXPECT_EQ(0u, allocations([&] { return format_duration(1.5, none); }));
	EXPECT_EQ(1u, allocations([&] { return format_duration(1e9, long_duration); }));
	EXPECT_EQ(0u, allocations([&] { return format_memory(1ull << 40, long_memory, unit); }));
	EXPECT_EQ(0u, allocations([&] { return format_metric(4000000000u, none, unit); }));
}

using quor::generic::varg_list;
using quor::i18n::message_item;
using quor::i18n::message_t;

std::size_t allocations_of_rendering(message_t const &message, varg_list const &args) {
	quor_test::allocation_counter const counter;
	std::string const text = message.as_string(args);
	return counter.count();
}

TEST(rendering, literal_items_cost_nothing_each) {
	std::vector<message_item> items;
	EXPECT_EQ(0u, allocations_of_rendering(message_t(items), varg_list()));
	for (std::size_t count : {1u, 10u, 100u, 1000u}) {
		items.resize(count, message_item("a text that is longer than any small string"));
		EXPECT_EQ(1u, allocations_of_rendering(message_t(items), varg_list())) << count;
	}
}

TEST(rendering, typed_arguments_cost_nothing_each) {
	varg_list args;
	args.push_back("an argument with a name that is long", 2048);
	args.push_back("another argument with a long name", 90.5);
	std::vector<message_item> items;
	for (std::size_t i = 0; i != 100; ++i) {
		items.emplace_back("Used ");
		items.emplace_back("an argument with a name that is long", message_item::type_memory);
		items.emplace_back("an argument with a name that is long", message_item::type_memory_unit);
		items.emplace_back(attributes("an argument with a name that is long|base|hex|fieldsize|12"),
		                   message_item::type_int);
		items.emplace_back("another argument with a long name", message_item::type_double);
		items.emplace_back("another argument with a long name", message_item::type_metric_unit);
		items.emplace_back("an argument with a name that is long", message_item::type_metric);
	}
	EXPECT_EQ(1u, allocations_of_rendering(message_t(items), args));
}

TEST(rendering, long_lists_cost_short_messages_nothing) {
	varg_list args;
	for (int i = 0; i != 2000; ++i) {
		args.push_back(ustring8(), i);
		args.at(i).name("an argument with a long name " + std::to_string(i));
	}
	message_item const last("an argument with a long name 1999", message_item::type_int);
	message_t const literal(std::vector<message_item>(1000, message_item("text ")));
	message_t const few(std::vector<message_item>(8, last));
	quor_test::allocation_counter const counter;
	EXPECT_EQ("1999", last.as_string(args));
	EXPECT_EQ(0u, counter.count());
	EXPECT_EQ(1u, allocations_of_rendering(literal, args));
	EXPECT_EQ(1u, allocations_of_rendering(few, args));
}

TEST(rendering, doubled_messages_ask_for_twice_the_memory_at_most) {
	auto const bytes = [](std::size_t count) {
		varg_list args;
		std::vector<message_item> items;
		for (std::size_t i = 0; i != count; ++i) {
			ustring8 const name("name " + std::to_string(i));
			args.push_back(ustring8(), 1);
			args.at(static_cast<quor::types::uint32>(i)).name(name);
			items.emplace_back(name, message_item::type_string);
			items.emplace_back("text ");
		}
		message_t const message(items);
		quor_test::allocation_counter const counter;
		EXPECT_EQ(6 * count, message.as_string(args).size());
		EXPECT_TRUE(message.has_valid_args(args));
		EXPECT_EQ(count, message.arguments().size());
		return counter.bytes();
	};
	std::size_t const once = bytes(2048);
	EXPECT_LE(bytes(4096), once * 22 / 10);
}

TEST(look_up, by_literals_allocates_nothing) {
	quor::i18n::catalog_t catalog;
	for (int i = 0; i != 100; ++i) {
		catalog.message(ustring8("a message with a name that is long " + std::to_string(i)), message_t());
	}
	quor::i18n::message_catalogs const catalogs;
	ustring8 const key("a message with a name that is long 7");
	quor_test::allocation_counter const counter;
	EXPECT_TRUE(catalog.has_message(key));
	EXPECT_TRUE(catalogs.message("a catalog with a name that is long", "a message with a long name") ==
	            quor::types::nil);
	EXPECT_EQ(0u, counter.count());
}

TEST(look_up, a_failed_allocation_leaves_the_catalog_as_it_was) {
	ustring8 const first("the first message with a long name");
	message_t const message(first, std::vector<message_item>(3, message_item("a text that is long enough")));
	for (std::size_t index = 0;; ++index) {
		quor::i18n::catalog_t catalog;
		for (int i = 0; i != 8; ++i) {
			catalog.message(ustring8(std::to_string(i)), message);
		}
		bool happened = false;
		{
			quor_test::allocation_failure const failure(index);
			try {
				catalog.message(first, message);
			} catch (std::bad_alloc const &) {
			}
			happened = failure.happened();
		}
		EXPECT_EQ(catalog.size(), happened ? 8U : 9U);
		EXPECT_EQ(catalog.has_message(first), !happened);
		EXPECT_TRUE(catalog.has_message("7"));
		if (!happened) {
			break;
		}
	}
}

} // namespace
