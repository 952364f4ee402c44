#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace {

namespace convert = QUOR_2_9::generic::convert;
namespace debug = QUOR_2_9::debug;
namespace types = QUOR_2_9::types;

// One type word in one namespace.
template <class Number>
struct functions {
	std::string name;
	std::string (*encode)(Number const &);
	Number (*decode_pointer)(char const *);
	Number (*decode_string)(std::string const &);
	bool big_endian;
	bool departs; // the string decoder tests another size
};

#define QUOR_BIN_STR_FUNCTIONS(word, number)                                                                           \
  {                                                                                                                    \
	{"convert::" #word,                                                                                                \
	 &convert::word##_to_bin_str,                                                                                      \
	 &convert::bin_str_to_##word,                                                                                      \
	 &convert::bin_str_to_##word,                                                                                      \
	 false,                                                                                                            \
	 std::is_floating_point_v<number>},                                                                                \
		{"big_endian::" #word,                                                                                         \
		 &convert::big_endian::word##_to_bin_str,                                                                      \
		 &convert::big_endian::bin_str_to_##word,                                                                      \
		 &convert::big_endian::bin_str_to_##word,                                                                      \
		 true,                                                                                                         \
		 false},                                                                                                       \
		{"little_endian::" #word,                                                                                      \
		 &convert::little_endian::word##_to_bin_str,                                                                   \
		 &convert::little_endian::bin_str_to_##word,                                                                   \
		 &convert::little_endian::bin_str_to_##word,                                                                   \
		 false,                                                                                                        \
		 false},                                                                                                       \
  }

std::vector<functions<short>> const int16_functions = QUOR_BIN_STR_FUNCTIONS(int16, short);
std::vector<functions<types::int32>> const int32_functions = QUOR_BIN_STR_FUNCTIONS(int32, types::int32);
std::vector<functions<types::int64>> const int64_functions = QUOR_BIN_STR_FUNCTIONS(int64, types::int64);
std::vector<functions<unsigned short>> const uint16_functions = QUOR_BIN_STR_FUNCTIONS(uint16, unsigned short);
std::vector<functions<types::uint32>> const uint32_functions = QUOR_BIN_STR_FUNCTIONS(uint32, types::uint32);
std::vector<functions<types::uint64>> const uint64_functions = QUOR_BIN_STR_FUNCTIONS(uint64, types::uint64);
std::vector<functions<float>> const float_functions = QUOR_BIN_STR_FUNCTIONS(float, float);
std::vector<functions<double>> const double_functions = QUOR_BIN_STR_FUNCTIONS(double, double);

// Calls `test` with the table of each type word.
template <class Test>
void for_each_type(Test test) {
	test(int16_functions);
	test(int32_functions);
	test(int64_functions);
	test(uint16_functions);
	test(uint32_functions);
	test(uint64_functions);
	test(float_functions);
	test(double_functions);
}

// The same bits, so that NaNs compare too.
template <class Number>
bool same(Number a, Number b) {
	// NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
	return std::memcmp(&a, &b, sizeof a) == 0;
}

template <class Number>
Number random_number(std::mt19937_64 &random) {
	std::uint64_t const bits = random();
	Number number;
	std::memcpy(&number, &bits, sizeof number);
	return number;
}

// The bytes 1, 2, 3... as the number they make in the given order.
template <class Number>
Number counting_number(bool big_endian) {
	std::uint64_t bits = 0;
	for (std::size_t i = 0; i != sizeof(Number); ++i) {
		bits |= std::uint64_t(i + 1) << (8 * (big_endian ? sizeof(Number) - 1 - i : i));
	}
	Number number;
	if constexpr (sizeof(Number) == 2) {
		auto const narrow = static_cast<std::uint16_t>(bits);
		std::memcpy(&number, &narrow, sizeof number);
	} else if constexpr (sizeof(Number) == 4) {
		auto const narrow = static_cast<std::uint32_t>(bits);
		std::memcpy(&number, &narrow, sizeof number);
	} else {
		std::memcpy(&number, &bits, sizeof number);
	}
	return number;
}

std::string const counting_bytes("\1\2\3\4\5\6\7\10\11\12");

TEST(bin_str, types_have_the_told_widths) {
	static_assert(sizeof(types::int32) == 4 && sizeof(types::uint32) == 4);
	EXPECT_EQ(convert::int16_to_bin_str(5).size(), 2U);
	EXPECT_EQ(convert::int32_to_bin_str(5).size(), 4U);
	EXPECT_EQ(convert::int64_to_bin_str(5).size(), 8U);
	EXPECT_EQ(convert::uint16_to_bin_str(5).size(), 2U);
	EXPECT_EQ(convert::uint32_to_bin_str(5).size(), 4U);
	EXPECT_EQ(convert::uint64_to_bin_str(5).size(), 8U);
	EXPECT_EQ(convert::float_to_bin_str(5).size(), 4U);
	EXPECT_EQ(convert::double_to_bin_str(5).size(), 8U);
}

TEST(bin_str, byte_order) {
	EXPECT_EQ(convert::uint32_to_bin_str(0x01020304), "\4\3\2\1");
	EXPECT_EQ(convert::little_endian::uint32_to_bin_str(0x01020304), "\4\3\2\1");
	EXPECT_EQ(convert::big_endian::uint32_to_bin_str(0x01020304), "\1\2\3\4");
	EXPECT_EQ(convert::int16_to_bin_str(-2), "\xFE\xFF");
	EXPECT_EQ(convert::big_endian::int16_to_bin_str(-2), "\xFF\xFE");
	EXPECT_EQ(convert::big_endian::float_to_bin_str(1.0F), std::string("\x3F\x80\0\0", 4));
	EXPECT_EQ(convert::float_to_bin_str(1.0F), std::string("\0\0\x80\x3F", 4));
	EXPECT_EQ(convert::big_endian::double_to_bin_str(-2.0), std::string("\xC0\0\0\0\0\0\0\0", 8));
	EXPECT_EQ(convert::little_endian::double_to_bin_str(-2.0), std::string("\0\0\0\0\0\0\0\xC0", 8));
	EXPECT_EQ(convert::uint64_to_bin_str(0), std::string(8, '\0'));
}

TEST(bin_str, every_function_puts_each_byte_in_its_place) {
	for_each_type([](auto const &table) {
		for (auto const &f : table) {
			SCOPED_TRACE(f.name);
			auto const number = counting_number<decltype(f.decode_pointer(nullptr))>(f.big_endian);
			std::string const bytes = counting_bytes.substr(0, sizeof number);
			EXPECT_EQ(f.encode(number), bytes);
			EXPECT_TRUE(same(f.decode_pointer(bytes.data()), number));
			EXPECT_TRUE(same(f.decode_string(counting_bytes), number));
		}
	});
}

TEST(bin_str, numbers_come_back_as_they_were) {
	std::mt19937_64 random(11);
	for_each_type([&random](auto const &table) {
		for (auto const &f : table) {
			SCOPED_TRACE(f.name);
			for (int round = 0; round != 500; ++round) {
				auto const number = random_number<decltype(f.decode_pointer(nullptr))>(random);
				std::string const bytes = f.encode(number);
				ASSERT_TRUE(same(f.decode_pointer(bytes.data()), number));
				ASSERT_TRUE(same(f.decode_pointer(("x" + bytes).data() + 1), number)) << "unaligned";
				ASSERT_TRUE(same(f.decode_string(bytes + std::string(8, '\xFF')), number));
				if (!f.departs) {
					ASSERT_TRUE(same(f.decode_string(bytes), number));
				}
			}
		}
	});
}

TEST(bin_str, every_16_bit_number_comes_back) {
	for (int value = -32768; value <= 32767; ++value) {
		auto const number = static_cast<short>(value);
		ASSERT_EQ(convert::bin_str_to_int16(convert::int16_to_bin_str(number)), number);
		ASSERT_EQ(convert::big_endian::bin_str_to_int16(convert::big_endian::int16_to_bin_str(number)), number);
	}
}

TEST(bin_str, short_strings_give_zero_and_further_bytes_are_ignored) {
	for_each_type([](auto const &table) {
		for (auto const &f : table) {
			if (f.departs) {
				continue;
			}
			using number = decltype(f.decode_pointer(nullptr));
			for (std::size_t size = 0; size <= counting_bytes.size(); ++size) {
				SCOPED_TRACE(f.name + " of " + std::to_string(size));
				number const expected = size < sizeof(number) ? number(0) : counting_number<number>(f.big_endian);
				EXPECT_TRUE(same(f.decode_string(counting_bytes.substr(0, size)), expected));
			}
		}
	});
}

TEST(bin_str, default_float_wants_eight_bytes) {
	for (float const value : {1.5F, -0.0F, 3e38F, std::numeric_limits<float>::infinity()}) {
		std::string const bytes = convert::float_to_bin_str(value);
		EXPECT_TRUE(same(convert::bin_str_to_float(bytes), 0.0F)) << value;
		EXPECT_TRUE(same(convert::bin_str_to_float(bytes + "abc"), 0.0F)) << value;
		EXPECT_TRUE(same(convert::bin_str_to_float(bytes + "abcd"), value)) << value;
		EXPECT_TRUE(same(convert::bin_str_to_float(bytes + "abcde"), value)) << value;
		EXPECT_TRUE(same(convert::bin_str_to_float(bytes.data()), value)) << value;
		EXPECT_TRUE(same(convert::little_endian::bin_str_to_float(bytes), value)) << value;
	}
}

TEST(bin_str, literals_are_pointers_and_text_classes_are_strings) {
	// Only the form for pointers decodes four bytes to a float.
	EXPECT_EQ(convert::bin_str_to_float("\0\0\x80\x3F"), 1.0F);
	char mutable_bytes[] = "\0\0\x80\x3F";
	EXPECT_EQ(convert::bin_str_to_float(mutable_bytes), 1.0F);
	QUOR_2_9::strings::ustring8 const text("\0\0\x80\x3F", 4);
	EXPECT_EQ(convert::bin_str_to_float(text), 0.0F);
	EXPECT_EQ(convert::little_endian::bin_str_to_float(text), 1.0F);
	EXPECT_EQ(convert::big_endian::bin_str_to_uint16("\1\2"), 0x0102);
}

struct stopped {
	std::string what;
	std::string file;
	unsigned int line;
};

class stop_handler {
public:
	explicit stop_handler(debug::invalid_parameter_handler handler)
	    : m_previous(debug::set_invalid_parameter_handler(handler)) {}
	~stop_handler() { debug::set_invalid_parameter_handler(m_previous); }
	stop_handler(stop_handler const &) = delete;
	stop_handler &operator=(stop_handler const &) = delete;

private:
	debug::invalid_parameter_handler m_previous;
};

void throw_stopped(char const *what, char const *file, unsigned int line) {
	throw stopped{what, file, line};
}

TEST(bin_str, default_double_stops_from_four_to_six_bytes) {
	stop_handler const handler(&throw_stopped);
	for (std::size_t size = 0; size <= counting_bytes.size(); ++size) {
		SCOPED_TRACE(size);
		std::string const bytes = counting_bytes.substr(0, size);
		bool stops = false;
		double value = -1;
		try {
			value = convert::bin_str_to_double(bytes);
		} catch (stopped const &stop) {
			stops = true;
			EXPECT_EQ(stop.what, "string subscript out of range");
			EXPECT_EQ(stop.file, "generic\\convert\\bin_str");
			EXPECT_GT(stop.line, 0U);
		}
		EXPECT_EQ(stops, size >= 4 && size <= 6);
		if (!stops) {
			std::string const padded = size < 4 ? std::string(8, '\0') : (bytes + '\0').substr(0, 8);
			EXPECT_TRUE(same(value, convert::little_endian::bin_str_to_double(padded)));
		}
	}
}

TEST(bin_str, default_double_decodes_zero_bytes_when_the_handler_returns) {
	stop_handler const handler(&debug::ignore_invalid_parameter);
	for (std::size_t size = 4; size <= 8; ++size) {
		SCOPED_TRACE(size);
		std::string const bytes = std::string("\1\2\3\4\5\6\x46\x40").substr(0, size);
		EXPECT_TRUE(same(convert::bin_str_to_double(bytes),
		                 convert::little_endian::bin_str_to_double(bytes + std::string(8 - size, '\0'))));
	}
}

using bin_str_death_test = testing::Test;

TEST(bin_str_death_test, default_double_ends_the_process_by_default) {
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_DEATH(convert::bin_str_to_double(std::string("12345")), "string subscript out of range");
}

TEST(bin_str, default_double_of_seven_bytes_takes_the_zero_behind_them) {
	std::string const bytes("\1\2\3\4\5\6\7");
	EXPECT_TRUE(same(convert::bin_str_to_double(bytes),
	                 convert::little_endian::bin_str_to_double(bytes + std::string(1, '\0'))));
}

} // namespace
