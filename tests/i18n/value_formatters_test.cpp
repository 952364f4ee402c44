#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include <quor/i18n/value_formatters.hpp>

#include "reference/value_formatters.hpp"
#include "support/comma_locale.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::i18n::_private::format_double;
using quor::i18n::_private::format_duration;
using quor::i18n::_private::format_int;
using quor::i18n::_private::format_memory;
using quor::i18n::_private::format_metric;
using quor::strings::ustring8;

constexpr long long smallest = std::numeric_limits<long long>::min();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// Attribute strings are written with "|" for the byte 0x01.
ustring8 attributes(std::string text) {
	for (char &unit : text) {
		unit = unit == '|' ? '\x01' : unit;
	}
	return text;
}

struct int_row {
	long long value;
	char const *format;
	char const *expected;
};

void expect_ints(std::vector<int_row> const &rows) {
	for (int_row const &row : rows) {
		SCOPED_TRACE(std::to_string(row.value) + " with " + row.format);
		EXPECT_EQ(row.expected, format_int(row.value, attributes(row.format)));
	}
}

TEST(format_int, bases_and_fields_give_the_told_texts) {
	expect_ints({
	    {1234567, "", "1234567"},
	    {1234567, "base|spaced_dec", "1 234 567"},
	    {-1234567, "base|spaced_dec", "-1 234 567"},
	    {42, "fieldsize|8", "42"},
	    {123456, "fieldsize|3", "-0"},
	    {255, "base|hex", "0x00ff"},
	    {255, "base|hex|fieldsize|3", "-0"},
	    {0, "base|hex", "0x0000"},
	    {5, "base|bin", "101b"},
	    {5, "base|bin|fieldsize|6", "00101b"},
	    {-1, "base|hex", "0xffff"},
	    {-9, "base|hex", "0xfff7"},
	    {-9, "base|hex|fieldsize|3", "0x7"},
	    {-1, "base|oct", "o7"},
	    {-5, "base|oct", "o73"},
	    {0, "", "0"},
	    {0, "base|oct", "o0"},
	    {0, "base|bin", "0b"},
	    {65535, "base|hex", "0xffff"},
	    {65536, "base|hex", "0x00010000"},
	    {-1, "base|bin", "1b"},
	    {-2, "base|bin", "10b"},
	    {-3, "base|bin", "101b"},
	    {-8, "base|hex", "0xfff8"},
	    {-32768, "base|hex", "0x8000"},
	    {-32769, "base|hex", "0xffff7fff"},
	});
}

TEST(format_int, abbreviated_words_mean_the_first_keyword) {
	expect_ints({
	    {255, "ba|h", "0x00ff"},
	    {255, "b|he", "0x00ff"},
	    {255, "|hex", "0x00ff"},
	    {1000, "base|d", "1000"},
	    {1000, "base|de", "1000"},
	    {1000, "base|def", "1000"},
	    {1000, "base|default", "1000"},
	    {1000, "base|s", "1 000"},
	    {8, "base|o", "o10"},
	    {2, "base|b", "10b"},
	    {7, "f|1", "7"},
	    {77, "f|1", "-0"},
	    {7, "base||fieldsize|1", "7"},
	    {7, "base|hex|", "0x0007"},
	    {7, "base|hexa", "-0"},
	    {7, "basis|hex", "-0"},
	    {7, "Base|hex", "-0"},
	    {7, "base|Hex", "-0"},
	    {7, "x|1", "-0"},
	});
}

TEST(format_int, odd_number_of_elements_fails) {
	expect_ints({
	    {7, "base", "-0"},
	    {7, "base|", "-0"},
	    {7, "|", "-0"},
	    {7, "base|hex|fieldsize", "-0"},
	    {7, "base|hex|fieldsize|", "-0"},
	    {7, "||", "7"},
	    {7, "|||", "-0"},
	    {7, "||||", "7"},
	});
}

TEST(format_int, later_pairs_override_but_keep_groups_and_prefix_room) {
	expect_ints({
	    {255, "base|dec|base|hex", "0x00ff"},
	    {255, "base|hex|base|dec", "255"},
	    {255, "base|hex|base|dec|fieldsize|4", "-0"},
	    {255, "base|hex|base|dec|fieldsize|5", "255"},
	    {255, "base|hex|base|oct|fieldsize|4", "o377"},
	    {255, "fieldsize|1|fieldsize|3", "255"},
	    {0xfffff, "base|spaced_dec|base|hex", "0x000ff fff"},
	    {0xfffff, "base|spaced_dec|base|hex|fieldsize|6", "0xff fff"},
	    {0xfffff, "base|spaced_dec|base|hex|fieldsize|9", "0x000ff fff"},
	    {0xfffff, "base|spaced_dec|base|hex|fieldsize|5", "-0"},
	    {1000, "base|spaced_dec|base|dec", "1 000"},
	    {-1, "base|spaced_dec|base|hex", "0x-f fff"},
	    {255, "base|nonsense|base|hex", "-0"},
	});
}

TEST(format_int, spaced_field_counts_the_blanks) {
	expect_ints({
	    {999, "base|spaced_dec", "999"},
	    {1000, "base|spaced_dec", "1 000"},
	    {1000, "base|spaced_dec|fieldsize|4", "-0"},
	    {1000, "base|spaced_dec|fieldsize|5", "1 000"},
	    {-999, "base|spaced_dec|fieldsize|4", "-999"},
	    {-1000, "base|spaced_dec|fieldsize|5", "-0"},
	    {-1000, "base|spaced_dec|fieldsize|6", "-1 000"},
	    {-1, "base|spaced_dec", "-1"},
	    {9223372036854775807, "base|spaced_dec", "9 223 372 036 854 775 807"},
	});
}

TEST(format_int, numeric_attributes_are_read_like_the_start_of_a_text) {
	expect_ints({
	    {7, "fieldsize|abc", "7"},
	    {77777, "fieldsize|abc", "77777"},
	    {77, "fieldsize|1x", "-0"},
	    {77, "fieldsize| \t\n\v\f\r1", "-0"},
	    {77, "fieldsize|+1", "-0"},
	    {77, "fieldsize|+-1", "77"},
	    {77, "fieldsize|-1", "-0"},
	    {77, "fieldsize|0x1", "77"},
	    {77, "fieldsize||base|hex", "0x004d"},
	    {77, "fieldsize|99999999999999999999", "77"},
	    {77, "fieldsize|-99999999999999999999", "-0"},
	    // Beyond `int` and beyond 64 bits; cut to 32 bits these would be 1, 1, 5 and 5.
	    {77, "fieldsize|4294967297", "77"},
	    {77, "fieldsize|18446744073709551617", "77"},
	    {77, "fieldsize|-4294967291", "-0"},
	    {77, "fieldsize|-18446744073709551611", "-0"},
	    {77, "fieldsize|2147483648", "77"},
	    {77, "fieldsize|-2147483649", "-0"},
	    {77, "fieldsize|00000000000000000000000001", "-0"},
	    {-7, "base|hex|fieldsize|-2147483648", "-0"},
	    {77,
	     "fieldsize|\xC2\xA0"
	     "9",
	     "77"},
	});
}

TEST(format_int, smallest_and_wrapping_values_carry_a_sign) {
	expect_ints({
	    {smallest, "", "-O"},
	    {smallest, "base|hex", "0x-0"},
	    {smallest, "base|oct", "o-0"},
	    {smallest, "base|bin", "-0b"},
	    {smallest, "base|spaced_dec", "-O"},
	    {smallest + 1, "", "-9223372036854775807"},
	    {smallest + 1, "base|hex", "0x-7fffffffffffffff"},
	    // Sign and 63 digits are one character too many.
	    {smallest + 1, "base|bin", "-0"},
	    {-(1LL << 52), "base|hex", "0x-10000000000000"},
	    {-(1LL << 47), "base|hex", "0x800000000000"},
	    {-(1LL << 47) - 1, "base|hex", "0x-800000000001"},
	    {-(1LL << 52), "base|spaced_dec|base|hex", "0x-10 000 000 000 000"},
	    {-1, "base|oct|fieldsize|1000000", "o-1"},
	    {-1, "base|oct|fieldsize|2147483647", "o-1"},
	    {-1, "base|bin|fieldsize|100", "-1b"},
	    {-1, "base|hex|fieldsize|17", "0xfffffffffffffff"},
	    {-1, "base|hex|fieldsize|18", "0x-1"},
	});
}

TEST(format_int, padding_is_bounded) {
	EXPECT_EQ("0x" + std::string(65535, '0') + "7", format_int(7, attributes("base|hex|fieldsize|65538")));
	EXPECT_EQ("-0", format_int(7, attributes("base|hex|fieldsize|65539")));
	EXPECT_EQ("-0", format_int(7, attributes("base|bin|fieldsize|2147483647")));
	EXPECT_EQ("7", format_int(7, attributes("base|dec|fieldsize|2147483647")));
	std::string groups = "1";
	for (int i = 0; i != 20; ++i) {
		groups += " 000";
	}
	EXPECT_EQ(groups + "b", format_int(1LL << 60, attributes("base|spaced_dec|base|bin")));
}

struct double_row {
	double value;
	char const *format;
	char const *expected;
};

TEST(format_double, precisions_and_fields_give_the_told_texts) {
	std::vector<double_row> const rows = {
	    {3.14159, "", "3.14"},
	    {3.14159, "fieldsize|8", "    3.14"},
	    {123456789.0, "fieldsize|8", "1.23e+08"},
	    {1e100, "fieldsize|8", "1.00e+00"},
	    {1.5e-7, "fieldsize|9|precision|12", "1.5000000"},
	    {1234567.0, "precision|0|fieldsize|6", " 1e+06"},
	    {1234567.0, "precision|0|fieldsize|5", "1e+06"},
	    {1234567.0, "precision|0|fieldsize|4", "1e+0"},
	    {1234567.0, "precision|0|fieldsize|1", "1"},
	    {12345678901.0, "precision|0|fieldsize|10", "     1e+10"},
	    {-123456789.0, "fieldsize|8", "-1.23e+0"},
	    {3.14159, "precision|0", "3"},
	    {3.14159, "p|4", "3.1416"},
	    {3.14159, "f|6|p|1", "   3.1"},
	    {3.14159, "|4", "3.1416"},
	    {3.14159, "precision||fieldsize|3", "  3"},
	    {3.14159, "precision|x", "3"},
	    {0.5, "precision|0", "0"},
	    {1.5, "precision|0", "2"},
	    {2.5, "precision|0", "2"},
	    {0.125, "", "0.12"},
	    {0.375, "", "0.38"},
	    {-0.4, "precision|0", "-0"},
	    {-0.001, "", "-0.00"},
	    {-0.0, "", "-0.00"},
	    {3.14159, "precision|-1", "-0"},
	    {3.14159, "fieldsize|-5", "-0"},
	    {3.14159, "fieldsize|64", "-0"},
	    {3.14159, "precision|62", "-0"},
	    {3.14159, "precision|2000000000", "-0"},
	    {3.14159, "precision|2000000000|fieldsize|20", "-0"},
	    {3.14159, "precision|99999999999999", "-0"},
	    {3.14159, "precision|4294967297", "-0"},
	    {1.0, "precision|5|precision|1", "1.0"},
	    {1.0, "base|hex", "-0"},
	    {1.0, "precision", "-0"},
	    {1.0, "precision|", "-0"},
	    {1.0, "fieldsize|5|", " 1.00"},
	    {1.0, "Precision|1", "-0"},
	    {infinity, "", "-0"},
	    {-infinity, "fieldsize|9", "-0"},
	    {not_a_number, "", "-0"},
	    {1e300, "", "-0"},
	    {1e300, "fieldsize|9", " 1.00e+00"},
	};
	for (double_row const &row : rows) {
		SCOPED_TRACE(std::to_string(row.value) + " with " + row.format);
		EXPECT_EQ(row.expected, format_double(row.value, attributes(row.format)));
	}
}

TEST(format_double, length_limits_are_exact) {
	EXPECT_EQ("0." + std::string(61, '0'), format_double(0.0, attributes("precision|61")));
	EXPECT_EQ("-0", format_double(-0.0, attributes("precision|61")));
	EXPECT_EQ("-0." + std::string(60, '0'), format_double(-0.0, attributes("precision|60")));
	EXPECT_EQ("1" + std::string(22, '0') + "." + std::string(39, '0'), format_double(1e22, attributes("precision|39")));
	EXPECT_EQ("-0", format_double(1e22, attributes("precision|40")));
	EXPECT_EQ("0." + std::string(61, '0'), format_double(1e-300, attributes("precision|61|fieldsize|63")));
	EXPECT_EQ("-0", format_double(1e-300, attributes("precision|61|fieldsize|62")));
	// Sign, digit, point, decimals and an exponent of three digits make 63 characters.
	EXPECT_EQ(" 1." + std::string(56, '0') + "e+22", format_double(1e22, attributes("precision|56|fieldsize|63")));
	EXPECT_EQ("-0", format_double(1e22, attributes("precision|57|fieldsize|63")));
	EXPECT_EQ("-0", format_double(-1e22, attributes("precision|56|fieldsize|63")));
}

TEST(format_duration, parts_follow_the_largest_one) {
	std::vector<double_row> const rows = {
	    {3661.5, "", "1 hr 1 min 1.50 sec"},
	    {3661.5, "short_form|true", "1h 1m 1.50s"},
	    {86400.0, "", "1 dy 0 hr 0 min 0.00 sec"},
	    {86400.0, "short_form|t", "1d 0h 0m 0.00s"},
	    {0.25, "", "0.25 sec"},
	    {0.0, "", "0.00 sec"},
	    {60.0, "", "1 min 0.00 sec"},
	    {3600.0, "", "1 hr 0 min 0.00 sec"},
	    {59.999, "precision|0", "60 sec"},
	    {59.999, "p|0|s|t", "60s"},
	    {59.999, "|0", "60 sec"},
	    {-90.0, "", "-1 min -30.00 sec"},
	    {-0.4, "precision|0", "-0 sec"},
	    {1.5, "precision||short_form|false", "-0 sec"},
	    {1.5, "precision||short_form|", "-0"},
	    {1.5, "short_form||precision|1", "1.5s"},
	    {1.5, "precision|x", "2 sec"},
	    {1.5, "precision|-1", "-0 sec"},
	    {61.5, "precision|100", "1 min -0 sec"},
	    {1.5, "precision", "-0"},
	    {1.5, "precision|", "-0"},
	    {1.5, "short_form|maybe", "-0"},
	    {1.5, "short_form|truely", "-0"},
	    {1.5, "short_form|f", "1.50 sec"},
	    {1.5, "short_form|t|short_form|false", "1.50 sec"},
	    {1.5, "fieldsize|3", "-0"},
	    {2147483647.0, "", "24855 dy 3 hr 14 min 7.00 sec"},
	    {2147483647.5, "precision|1", "24855 dy 3 hr 14 min 7.5 sec"},
	    {2147483648.0, "", "-0"},
	    {-2147483648.0, "", "-24855 dy -3 hr -14 min -8.00 sec"},
	    {-2147483648.5, "precision|1", "-24855 dy -3 hr -14 min -8.5 sec"},
	    {-2147483649.0, "", "-0"},
	    {1e300, "", "-0"},
	    {infinity, "", "-0"},
	    {-infinity, "", "-0"},
	    {not_a_number, "", "-0"},
	};
	for (double_row const &row : rows) {
		SCOPED_TRACE(std::to_string(row.value) + " with " + row.format);
		EXPECT_EQ(row.expected, format_duration(row.value, attributes(row.format)));
	}
}

struct unit_row {
	unsigned long long value;
	char const *format;
	char const *expected;
	char const *unit;
};

TEST(format_memory, units_give_the_told_texts) {
	std::vector<unit_row> const rows = {
	    {2048, "", "2", "KB"},
	    {1023, "", "1023", "B"},
	    {1024, "", "1", "KB"},
	    {1536, "", "1", "KB"},
	    {0, "", "0", "B"},
	    {1, "base_unit|KB", "1", "KB"},
	    {3145728, "target_unit|MB", "3", "MB"},
	    {5, "base_unit|MB|target_unit|KB", "0", "KB"},
	    {5, "base_unit|MB|target_unit|MB", "5", "MB"},
	    {1024, "base_unit|MB", "1", "GB"},
	    {18446744073709551615u, "", "15", "EB"},
	    {18446744073709551615u, "target_unit|EB", "15", "EB"},
	    {18446744073709551615u, "target_unit|ZB", "0", "ZB"},
	    {18446744073709551615u, "target_unit|YB", "0", "YB"},
	    {18446744073709551615u, "target_unit|B", "18446744073709551615", "B"},
	    {2048, "t|K", "-0", ""},
	    {2048, "t|KB", "2", "KB"},
	    {2048, "b|KB", "2", "MB"},
	    {2048, "target_unit|KBytes", "2", "KB"},
	    {2048, "target_unit|kb", "-0", ""},
	    {2048, "target_unit|BB", "-0", ""},
	    {2048, "target_unit|BK", "-0", ""},
	    {2048, "target_unit|B ", "-0", ""},
	    {2048, "target_unit| B", "-0", ""},
	    {2048, "target_unit|any", "-0", ""},
	    {2048, "base_unit|default", "-0", ""},
	    {2048, "target_unit||base_unit|B", "-0", ""},
	    {2048, "base_unit||target_unit|KB", "-0", ""},
	    {2048, "|KB", "2048", "B"},
	    {2048, "|nonsense", "2048", "B"},
	    {2048, "||target_unit|KB", "2", "KB"},
	    {2048, "target_unit|KB|||", "2048", "B"},
	    {2048, "target_unit|KB||", "-0", ""},
	    {2048, "base_unit|KB|", "2", "MB"},
	    {2048, "unit|KB", "-0", ""},
	    {2048, "target_unit", "-0", ""},
	    {2048, "target_unit|", "-0", ""},
	    {1023, "base_unit|YB", "1023", "YB"},
	    {1024, "base_unit|YB", "-0", ""},
	    {1ull << 50, "base_unit|GB", "1", "YB"},
	    {1ull << 50, "base_unit|ZB", "-0", ""},
	    {7, "base_unit|YB|target_unit|B", "0", "B"},
	    {7, "target_unit|KB|target_unit|B", "7", "B"},
	};
	for (unit_row const &row : rows) {
		SCOPED_TRACE(std::to_string(row.value) + " with " + row.format);
		ustring8 unit("before");
		EXPECT_EQ(row.expected, format_memory(row.value, attributes(row.format), unit));
		EXPECT_EQ(row.unit, unit);
	}
}

TEST(format_memory, every_unit_word_has_its_index) {
	std::string const letters = "BKMGTPEZY";
	for (std::size_t index = 0; index != letters.size(); ++index) {
		std::string const word = index == 0 ? "B" : std::string(1, letters[index]) + "B";
		SCOPED_TRACE(word);
		ustring8 unit;
		EXPECT_EQ("5", format_memory(5, attributes("base_unit|" + word), unit));
		EXPECT_EQ(word, unit);
		EXPECT_EQ(index <= 6 ? std::to_string(15ull << (60 - 10 * index)) : "0",
		          format_memory(15ull << 60, attributes("target_unit|" + word), unit));
		EXPECT_EQ(word, unit);
	}
}

TEST(format_metric, units_give_the_told_texts) {
	std::vector<unit_row> const rows = {
	    {1500, "", "1.500", "k"},
	    {1500, "short_form|false", "1.500", "kilo"},
	    {999, "", "999.000", ""},
	    {0, "", "0.000", ""},
	    {2, "target_unit|m", "2000.000", "m"},
	    {2500, "base_unit|k|target_unit|M", "2.500", "M"},
	    {999999, "", "999.999", "k"},
	    {999999, "precision|0", "1000", "k"},
	    {1000000, "", "1.000", "M"},
	    {4294967295u, "", "4.295", "G"},
	    {4294967295u, "base_unit|k", "4.295", "T"},
	    {4294967295u, "base_unit|M", "4294.967", "T"},
	    {4294967295u, "base_unit|T", "4294967295.000", "T"},
	    {4294967295u, "base_unit|Y", "4294967295.000", "Y"},
	    {5000, "base_unit|mc", "5.000", "m"},
	    {5, "base_unit|mc|short_form|f", "5.000", "micro"},
	    {5, "base_unit|micro", "-0", ""},
	    {5, "base_unit|kilo", "-0", ""},
	    {5, "base_unit|K", "-0", ""},
	    {5, "base_unit|b", "5.000", ""},
	    {5, "base_unit|base", "5.000", ""},
	    {5, "base_unit|bases", "-0", ""},
	    {5, "base_unit||target_unit|k", "0.005", "k"},
	    {5, "target_unit|b|base_unit|k", "5000.000", ""},
	    {5, "b|k", "5.000", "k"},
	    {5, "|k", "5.000", "k"},
	    {5, "t|k", "0.005", "k"},
	    {5000, "s|f", "5.000", "kilo"},
	    {5000, "s|f|s|t", "5.000", "k"},
	    {5000, "short_form||precision|1", "5.0", "k"},
	    {5000, "short_form|perhaps", "-0", ""},
	    {5000, "p|1", "5.0", "k"},
	    {2500, "precision|0", "2", "k"},
	    {3500, "precision|0", "4", "k"},
	    {5000, "precision|-1", "-0", ""},
	    {5000, "precision|62", "-0", ""},
	    {5000, "precision|2000000000", "-0", ""},
	    {5000, "precision||short_form|t", "5", "k"},
	    {5000, "fieldsize|1", "-0", ""},
	    {5000, "precision", "-0", ""},
	    {5000, "precision|", "-0", ""},
	};
	for (unit_row const &row : rows) {
		SCOPED_TRACE(std::to_string(row.value) + " with " + row.format);
		ustring8 unit("before");
		EXPECT_EQ(row.expected,
		          format_metric(static_cast<quor::types::uint32>(row.value), attributes(row.format), unit));
		EXPECT_EQ(row.unit, unit);
	}
}

TEST(format_metric, every_unit_has_its_words) {
	for (std::size_t i = 0; i != reference::metric_short_units().size(); ++i) {
		std::string const word = reference::metric_short_units()[i];
		SCOPED_TRACE(word);
		ustring8 unit;
		EXPECT_EQ("5.000", format_metric(5, attributes("base_unit|" + word + "|short_form|t"), unit));
		EXPECT_EQ(word, unit);
		EXPECT_EQ("5.000", format_metric(5, attributes("base_unit|" + word + "|short_form|f"), unit));
		EXPECT_EQ(reference::metric_long_units()[i], unit);
	}
}

TEST(format_metric, text_of_64_characters_fails) {
	ustring8 unit;
	ustring8 const far = attributes("base_unit|Y|target_unit|a|precision|");
	EXPECT_EQ(63u, format_metric(4294967295u, far + "10", unit).size());
	EXPECT_EQ("a", unit);
	EXPECT_EQ("-0", format_metric(4294967295u, far + "11", unit));
	EXPECT_EQ("", unit);
}

TEST(unit_formatters, unit_that_is_the_format_itself_gives_the_same) {
	ustring8 both = attributes("target_unit|KB");
	EXPECT_EQ("2", format_memory(2048, both, both));
	EXPECT_EQ("KB", both);
	both = attributes("short_form|false");
	EXPECT_EQ("2.000", format_metric(2000, both, both));
	EXPECT_EQ("kilo", both);
}

TEST(formatters, locale_of_the_program_changes_nothing) {
	quor_test::comma_locale const locale;
	ustring8 unit;
	EXPECT_EQ("1234.50", format_double(1234.5, ""));
	EXPECT_EQ("1234567", format_int(1234567, ""));
	EXPECT_EQ("1.500", format_metric(1500, "", unit));
	EXPECT_EQ("1.50 sec", format_duration(1.5, ""));
	EXPECT_EQ("1.23e+08", format_double(123456789.0, attributes("fieldsize|8")));
	EXPECT_EQ("1", format_memory(1024, "", unit));
}

// Attribute strings made of right and nearly right pieces.
class random_attributes {
public:
	explicit random_attributes(unsigned int seed) : m_random(seed) {}

	std::string next() {
		std::string format;
		for (std::uint64_t count = m_random() % 5; count != 0; --count) {
			format += piece(keys) + (m_random() % 16 == 0 ? "" : "\x01") + piece(values) +
			          (count == 1 && m_random() % 4 != 0 ? "" : "\x01");
		}
		return format;
	}

	std::uint64_t bits() { return m_random() >> (m_random() % 64); }

	double number() {
		switch (m_random() % 5) {
		case 0:
			return std::ldexp(static_cast<double>(m_random()), static_cast<int>(m_random() % 1200) - 600);
		case 1:
			return static_cast<double>(static_cast<std::int64_t>(bits())) / 8.0;
		case 2:
			return -static_cast<double>(bits() % 200000);
		case 3: {
			double value = 0;
			std::uint64_t const image = m_random();
			static_assert(sizeof(value) == sizeof(image));
			std::memcpy(&value, &image, sizeof(value));
			return value;
		}
		default:
			return static_cast<double>(bits() % 10000000) / 1000.0;
		}
	}

private:
	std::size_t below(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }

	std::string piece(std::vector<std::string> const &words) {
		std::string word = words[below(words.size())];
		if (m_random() % 4 == 0) {
			word.resize(below(word.size() + 1));
		}
		if (m_random() % 24 == 0) {
			word += 'x';
		}
		return word;
	}

	static inline std::vector<std::string> const keys = {"base",        "fieldsize", "precision", "short_form",
	                                                     "target_unit", "base_unit", "fieldsize", "base"};
	static inline std::vector<std::string> const values = {
	    "dec", "default", "spaced_dec", "hex", "oct", "bin", "true", "false", "B",  "KB", "MB",
	    "GB",  "YB",      "base",       "k",   "M",   "m",   "mc",   "a",     "Y",  "T",  "0",
	    "1",   "2",       "3",          "8",   "20",  "60",  "63",   "64",    "70", "-1", " 5",
	    "+7",  "12x",     "hex",        "oct", "bin", "56",  "57",   "17",    "18", "9",  "99999999999"};
	std::mt19937_64 m_random;
};

TEST(formatters, random_attributes_agree_with_the_reference) {
	random_attributes random(20240529);
	int formatted = 0;
	for (int i = 0; i != 60000; ++i) {
		std::string const format = random.next();
		auto const value = static_cast<long long>(i % 2 == 0 ? random.bits() : 0 - random.bits());
		double const number = random.number();
		SCOPED_TRACE(::testing::PrintToString(format) + " " + std::to_string(value) + " " + std::to_string(number));
		ustring8 const text = format_int(value, format);
		ASSERT_EQ(reference::format_int(value, format), text);
		ASSERT_EQ(reference::format_double(number, format), format_double(number, format));
		ASSERT_EQ(reference::format_duration(number, format), format_duration(number, format));
		ustring8 unit;
		std::string expected_unit;
		ASSERT_EQ(reference::format_memory(static_cast<unsigned long long>(value), format, expected_unit),
		          format_memory(static_cast<unsigned long long>(value), format, unit));
		ASSERT_EQ(expected_unit, unit);
		auto const small = static_cast<quor::types::uint32>(value);
		ASSERT_EQ(reference::format_metric(small, format, expected_unit), format_metric(small, format, unit));
		ASSERT_EQ(expected_unit, unit);
		formatted += text != "-0";
	}
	EXPECT_GT(formatted, 5000) << "too few attribute strings were usable";
}

// For every base and field, the digits of a negative number are those of its complement.
TEST(format_int, complement_reads_back_as_the_value) {
	random_attributes random(7);
	for (int i = 0; i != 5000; ++i) {
		auto const value = -static_cast<long long>(random.bits() >> 18) - 1;
		for (auto const &[base, radix, cut] :
		     {std::tuple("hex", 16, 2u), std::tuple("oct", 8, 1u), std::tuple("bin", 2, 0u)}) {
			ustring8 const text = format_int(value, attributes(std::string("base|") + base));
			SCOPED_TRACE(std::to_string(value) + " " + text);
			std::string const digits = radix == 2 ? text.substr(0, text.size() - 1) : text.substr(cut);
			unsigned long long const read = std::stoull(digits, nullptr, radix);
			// The number of digits is the width of the complement, its top digit shows the sign.
			double const width = std::pow(radix, static_cast<double>(digits.size()));
			ASSERT_EQ(static_cast<double>(value) + width, static_cast<double>(read));
			ASSERT_GE(static_cast<double>(read), width / 2);
		}
	}
}

} // namespace
