// Insertion of a variant into a stream, which is not the text of as_string.

#include <gtest/gtest.h>

#include <iomanip>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <typeinfo>

#include <quor/quor.hpp>

#include "support/comma_locale.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::int64;
using quor::types::long_t;
using quor::types::uint64;
using quor::types::ulong_t;
using quor::types::utf32_char;
using quor::types::variant;
using quor::types::variant_value_t;
using quor::types::wide_char;
using quor::types::wide_string;

std::string written(variant const &value) {
	std::ostringstream stream;
	stream << value;
	return stream.str();
}

TEST(variant_stream, every_holder_is_written_by_its_own_rule) {
	struct {
		char const *name;
		variant value;
		std::string text;
	} const rows[] = {
	    {"nil", variant(), "0"},
	    {"int", variant(-5), "-5"},
	    {"unsigned int", variant(4000000000U), "4000000000"},
	    {"signed char", variant(static_cast<signed char>(65)), "A"},
	    {"short", variant(static_cast<short>(-7)), "-7"},
	    {"long_t", variant(long_t(-8)), "-8"},
	    {"64 bits", variant(std::numeric_limits<int64>::min()), "-9223372036854775808"},
	    {"unsigned char", variant(static_cast<unsigned char>(66)), "B"},
	    {"unsigned short", variant(static_cast<unsigned short>(65)), "65"},
	    {"ulong_t", variant(ulong_t(4294967295U)), "4294967295"},
	    {"unsigned 64 bits", variant(std::numeric_limits<uint64>::max()), "18446744073709551615"},
	    {"bool", variant(true), "1"},
	    {"float", variant(0.1F), "0.1"},
	    {"double", variant(1e10), "1e+10"},
	    {"double zero", variant(0.0), "0"},
	    {"double one", variant(1.0), "1"},
	    {"long double", variant(1.0L / 3), "0.333333"},
	    {"std::string", variant(std::string("a\0b", 3)), std::string("a\0b", 3)},
	    {"ustring8", variant(ustring8("a\0b", 3)), "a"},
	    {"literal", variant("caf\xC3\xA9"), "caf\xC3\xA9"},
	    {"ustring16", variant(ustring16(QUOR_W("caf\u00E9"))), "caf\xC3\xA9"},
	    {"ustring16 with a zero", variant(ustring16{wide_char('a'), wide_char(0), wide_char('b')}), "a"},
	    {"ustring32", variant(ustring32(QUOR_U32("\u20AC"))), "\xE2\x82\xAC"},
	    {"ustring32 with a zero", variant(ustring32{utf32_char('a'), utf32_char(0), utf32_char('b')}), "a"},
	    {"malformed ustring16", variant(ustring16(1, wide_char(0xDC00))), "-1"},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.name);
		EXPECT_EQ(written(row.value), row.text);
		std::ostringstream stream;
		EXPECT_EQ(&row.value.ostream(stream), &stream);
		EXPECT_EQ(stream.str(), row.text);
	}
}

TEST(variant_stream, wide_string_gives_the_instance_form) {
	variant const value{wide_string(QUOR_W("text"))};
	std::string const text = written(value);
	std::string const front = std::string("< ") + typeid(wide_string).name() + " instance at ";
	ASSERT_EQ(text.substr(0, front.size()), front);
	ASSERT_EQ(text.substr(text.size() - 2), " >");
	EXPECT_EQ(written(value), text) << "the address is that of the held value";
	variant const &copy = value;
	EXPECT_EQ(written(copy), text);

	// The address stands between the object's first and last byte.
	auto const holder = std::make_unique<variant_value_t<wide_string>>(wide_string());
	std::ostringstream stream;
	holder->ostream(stream);
	void *address = nullptr;
	std::istringstream(stream.str().substr(front.size())) >> address;
	auto const *const first = reinterpret_cast<char const *>(holder.get());
	EXPECT_GE(static_cast<char const *>(address), first);
	EXPECT_LE(static_cast<char const *>(address) + sizeof(wide_string), first + sizeof *holder);
	EXPECT_EQ(written(variant(wide_string())).substr(0, front.size()), front);
}

TEST(variant_stream, flags_of_the_stream_apply) {
	std::ostringstream stream;
	stream << std::hex << variant(long_t(-1)) << ' ' << variant(-1) << ' ' << variant(static_cast<short>(-1)) << ' '
	       << variant(int64(-1)) << ' ' << variant(ulong_t(255)) << std::dec;
	EXPECT_EQ(stream.str(), "ffffffff ffffffff ffff ffffffffffffffff ff");
	stream.str("");
	stream << std::boolalpha << variant(true) << variant(false) << std::noboolalpha << std::showpos << variant()
	       << variant(5) << std::noshowpos;
	EXPECT_EQ(stream.str(), "truefalse+0+5");
	stream.str("");
	stream << std::setprecision(3) << variant(1.23456) << ' ' << std::fixed << variant(1.0F) << ' ' << std::scientific
	       << variant(10.0L);
	EXPECT_EQ(stream.str(), "1.23 1.000 1.000e+01");
	stream.str("");
	stream << std::setfill('.') << std::setw(5) << variant("ab") << std::setw(4) << variant(7) << std::setw(3)
	       << variant(static_cast<signed char>('x'));
	EXPECT_EQ(stream.str(), "...ab...7..x");
}

TEST(variant_stream, locale_of_the_stream_applies) {
	std::ostringstream stream;
	stream.imbue(std::locale(std::locale::classic(), new quor_test::comma_punctuation));
	stream << variant(1234567) << ' ' << variant(1.5);
	EXPECT_EQ(stream.str(), "1.234.567 1,5");
}

} // namespace
