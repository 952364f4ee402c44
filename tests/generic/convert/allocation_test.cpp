// What the conversions ask of the heap: nothing but their results and their reports.

#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <string>

#include "generic/convert/decimal_text.hpp"
#include "support/allocation_counter.hpp"
#include "support/str_to_x_family.hpp"

namespace {

namespace convert = QUOR_2_9::generic::convert;
namespace exceptions = QUOR_2_9::exceptions;
namespace types = QUOR_2_9::types;
using types::radix_t;

TEST(allocation, text_to_number_allocates_nothing) {
	std::string const narrow = std::string(1000, ' ') + "-0x123456789abcdef0123456789";
	auto const wide = quor_test::widened<types::wide_string>(narrow);
	auto const utf32 = quor_test::widened<types::utf32_string>(narrow);
	auto const length = static_cast<types::uint32>(narrow.size());
	std::int64_t sum = 0;
	quor_test::allocation_counter const counter;
	for (auto const &function : quor_test::family) {
		for (types::uint32 const given : {types::uint32(0), length}) {
			sum += function(narrow.c_str(), given, radix_t::detect, false) != 0 ? 1 : 0;
			sum += function(wide.c_str(), given, radix_t::decimal, false) != 0 ? 1 : 0;
			sum += function(utf32.c_str(), given, radix_t::largest, false) != 0 ? 1 : 0;
		}
	}
	EXPECT_EQ(counter.count(), 0U);
	EXPECT_GT(sum, 0);
}

TEST(allocation, number_to_digits_allocates_nothing) {
	char narrow[66];
	types::utf32_char utf32[66];
	quor_test::allocation_counter const counter;
	for (unsigned int radix = 2; radix <= 36; ++radix) {
		convert::ltoa(std::numeric_limits<types::int32>::min(), narrow, radix);
		convert::ulltoa(std::numeric_limits<types::uint64>::max(), utf32, radix);
		convert::lltoa(std::numeric_limits<types::int64>::min(), narrow, radix);
	}
	EXPECT_EQ(counter.count(), 0U);
}

TEST(allocation, floating_text_allocates_nothing) {
	char buffer[convert::detail::gcvt_size];
	std::string const long_text = std::string(2000, '9') + ".5e-1999";
	std::size_t written = 0;
	quor_test::allocation_counter const counter;
	for (double const value : {0.1, -1e308, 5e-324, 1e22, 123456.789}) {
		written += convert::detail::gcvt(value, 10, buffer);
		written += convert::detail::gcvt(value, 340, buffer);
		written += convert::detail::fixed(value, 30, buffer, sizeof buffer);
		written += convert::detail::scientific(value, 300, buffer, sizeof buffer);
	}
	double const value = convert::detail::atof(long_text.data(), long_text.size());
	EXPECT_EQ(counter.count(), 0U);
	EXPECT_GT(written, 0U);
	EXPECT_GT(value, 9.0);
}

TEST(allocation, binary_strings_fit_the_short_string_and_decode_without_any) {
	quor_test::allocation_counter const counter;
	std::string const bytes = convert::double_to_bin_str(1.5);
	std::string const reversed = convert::big_endian::uint64_to_bin_str(7);
	double const value = convert::bin_str_to_double(bytes) + convert::bin_str_to_double(bytes.data());
	types::uint64 const number = convert::big_endian::bin_str_to_uint64(reversed);
	EXPECT_EQ(counter.count(), 0U);
	EXPECT_EQ(value, 3.0);
	EXPECT_EQ(number, 7U);
}

TEST(allocation, a_report_that_can_not_be_built_is_a_failed_allocation) {
	bool bad_alloc = false;
	std::ptrdiff_t live = -1;
	{
		quor_test::allocation_counter const counter;
		quor_test::allocation_failure const failure(0);
		try {
			convert::str_to_int("1", 0, 99, true);
		} catch (std::bad_alloc const &) {
			bad_alloc = failure.happened();
		}
		live = counter.live();
	}
	EXPECT_TRUE(bad_alloc);
	EXPECT_EQ(live, 0);
}

TEST(allocation, an_exception_copy_that_fails_leaves_nothing_behind) {
	std::string const message(300, 'm');
	exceptions::overflow_error const error(message, 1, "file", "function");
	for (std::size_t index = 0; index != 3; ++index) {
		SCOPED_TRACE(index);
		bool bad_alloc = false;
		bool happened = false;
		quor_test::allocation_counter const counter;
		{
			quor_test::allocation_failure const failure(index);
			try {
				// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copies are what is tested
				exceptions::overflow_error const first(error);
				// NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
				exceptions::overflow_error const second(first);
			} catch (std::bad_alloc const &) {
				bad_alloc = true;
			}
			happened = failure.happened();
		}
		EXPECT_EQ(bad_alloc, index < 2);
		EXPECT_EQ(happened, index < 2);
		EXPECT_EQ(counter.live(), 0);
	}
}

} // namespace
