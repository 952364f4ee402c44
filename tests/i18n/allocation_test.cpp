// What rendering and formatting ask of the heap.

#include <string>

#include <gtest/gtest.h>

#include <quor/i18n/value_formatters.hpp>

#include "support/allocation_counter.hpp"

namespace {

namespace quor = QUOR_2_9;

using namespace quor::i18n::_private;
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

} // namespace
