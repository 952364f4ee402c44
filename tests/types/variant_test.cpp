// The variant as a handle: what it is made from, what its copies share, which holder
// operation each of its names calls.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::int32;
using quor::types::int64;
using quor::types::long_t;
using quor::types::nil;
using quor::types::nil_t;
using quor::types::uint32;
using quor::types::uint64;
using quor::types::ulong_t;
using quor::types::utf32_char;
using quor::types::variant;
using quor::types::wide_char;
using quor::types::wide_string;

enum plain_enumeration { small_value = 7 };
enum byte_enumeration : unsigned char { byte_value = 7 };
enum class scoped_enumeration { value };

TEST(variant, every_constructor_makes_its_holder) {
	char const constant_text[] = "x";
	int volatile volatile_number = 5;
	struct {
		char const *name;
		variant value;
		std::type_info const &type;
	} const rows[] = {
	    {"nothing", variant(), typeid(nil_t)},
	    {"nil", variant(nil), typeid(nil_t)},
	    {"nil object", variant(nil_t()), typeid(nil_t)},
	    {"int", variant(5), typeid(int)},
	    {"unsigned int", variant(5U), typeid(unsigned int)},
	    {"signed char", variant(static_cast<signed char>(5)), typeid(signed char)},
	    {"short", variant(static_cast<short>(5)), typeid(short)},
	    {"long_t", variant(long_t(5)), typeid(long_t)},
	    {"long long", variant(5LL), typeid(int64)},
	    {"unsigned char", variant(static_cast<unsigned char>(5)), typeid(unsigned char)},
	    {"unsigned short", variant(static_cast<unsigned short>(5)), typeid(unsigned short)},
	    {"ulong_t", variant(ulong_t(5)), typeid(ulong_t)},
	    {"unsigned long long", variant(5ULL), typeid(uint64)},
	    {"bool", variant(true), typeid(bool)},
	    {"float", variant(1.5F), typeid(float)},
	    {"double", variant(1.5), typeid(double)},
	    {"long double", variant(1.5L), typeid(long double)},
	    {"std::string", variant(std::string("x")), typeid(std::string)},
	    {"wide_string", variant(wide_string(QUOR_W("x"))), typeid(wide_string)},
	    {"ustring8", variant(ustring8("x")), typeid(ustring8)},
	    {"narrow literal", variant("x"), typeid(ustring8)},
	    {"ustring16", variant(ustring16(QUOR_W("x"))), typeid(ustring16)},
	    {"wide literal", variant(QUOR_W("x")), typeid(ustring16)},
	    {"ustring32", variant(ustring32(QUOR_U32("x"))), typeid(ustring32)},
	    {"32-bit literal", variant(QUOR_U32("x")), typeid(ustring32)},
	    {"char", variant('x'), typeid(int)},
	    {"wide unit", variant(QUOR_W('x')), typeid(int)},
	    {"UTF-16 unit", variant(u'x'), typeid(int)},
	    {"UTF-32 unit", variant(U'x'), typeid(unsigned int)},
	    {"enumeration", variant(small_value), typeid(int)},
	    {"enumeration of bytes", variant(byte_value), typeid(unsigned char)},
	    {"constant array", variant(constant_text), typeid(ustring8)},
	    {"volatile int", variant(volatile_number), typeid(int)},
	    {"long", variant(5L), sizeof(long) == 8 ? typeid(int64) : typeid(long_t)},
	    {"unsigned long", variant(5UL), sizeof(long) == 8 ? typeid(uint64) : typeid(ulong_t)},
	    {"size_t", variant(sizeof(int)), sizeof(std::size_t) == 8 ? typeid(uint64) : typeid(unsigned int)},
	    {"int64_t", variant(std::int64_t(5)), typeid(int64)},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.name);
		EXPECT_EQ(row.value.type(), row.type);
	}
}

TEST(variant, pointers_to_anything_but_text_are_no_values) {
	EXPECT_FALSE((std::is_constructible_v<variant, void const *>));
	EXPECT_FALSE((std::is_constructible_v<variant, int *>));
	EXPECT_FALSE((std::is_constructible_v<variant, unsigned char const *>));
	EXPECT_FALSE((std::is_constructible_v<variant, variant *>));
	EXPECT_FALSE((std::is_constructible_v<variant, void (*)()>));
	EXPECT_FALSE((std::is_constructible_v<variant, int ustring8::*>));
	EXPECT_FALSE((std::is_convertible_v<void *, variant>));
	EXPECT_FALSE((std::is_constructible_v<variant, std::nullptr_t>));
	EXPECT_FALSE((std::is_constructible_v<variant, char volatile *>));
	EXPECT_FALSE((std::is_constructible_v<variant, scoped_enumeration>));
	EXPECT_TRUE((std::is_convertible_v<char *, variant>));
	EXPECT_TRUE((std::is_convertible_v<wide_char *, variant>));
	EXPECT_TRUE((std::is_convertible_v<utf32_char const *, variant>));
}

TEST(variant, native_64_bit_numbers_lose_nothing) {
	EXPECT_EQ(variant(std::numeric_limits<long>::min()).as_int64(), std::numeric_limits<long>::min());
	EXPECT_EQ(variant(std::numeric_limits<unsigned long>::max()).as_uint64(),
	          std::numeric_limits<unsigned long>::max());
	EXPECT_EQ(variant(std::numeric_limits<std::size_t>::max()).as_uint64(), std::numeric_limits<std::size_t>::max());
}

TEST(variant, null_text_is_the_empty_text) {
	EXPECT_EQ(variant(static_cast<char const *>(nullptr)).as_string(), "");
	EXPECT_EQ(variant(static_cast<wide_char const *>(nullptr)).type(), typeid(ustring16));
	EXPECT_EQ(variant(static_cast<utf32_char const *>(nullptr)).as_utf32(), ustring32());
}

TEST(variant, default_construction_is_nil) {
	variant const value;
	EXPECT_TRUE(value == nil);
	EXPECT_FALSE(value != nil);
	EXPECT_TRUE(value.equal(nil));
	EXPECT_EQ(value.as_int(), 0);
	EXPECT_FALSE(value.as_bool());
	EXPECT_EQ(value.as_double(), 0.0);
	EXPECT_EQ(value.as_long_double(), 0.0L);
	EXPECT_EQ(value.as_uint64(), 0U);
	EXPECT_EQ(value.as_string(), "");
	EXPECT_EQ(value.as_utf8(), "");
	EXPECT_EQ(value.as_wstring(), wide_string());
	EXPECT_EQ(value.as_ustring(), wide_string());
	EXPECT_EQ(value.as_utf16(), ustring16());
	EXPECT_EQ(value.as_utf32(), ustring32());
}

TEST(variant, only_nil_equals_nil) {
	for (variant const &value : {variant(0), variant(false), variant(""), variant("0"), variant(0.0)}) {
		EXPECT_TRUE(value != nil);
		EXPECT_FALSE(value == nil);
	}
}

TEST(variant, nil_assigned_to_a_copy_leaves_the_source) {
	variant const source(5);
	variant copy(source);
	EXPECT_EQ(&(copy = nil), &copy);
	EXPECT_TRUE(copy == nil);
	EXPECT_EQ(source.as_int(), 5);
}

TEST(variant, assignment_shares_the_value) {
	variant const source("text");
	variant target(5);
	EXPECT_EQ(&(target = source), &target);
	EXPECT_EQ(target.as_string(), "text");
	variant other;
	EXPECT_EQ(&other.assign(target), &other);
	EXPECT_EQ(other.as_string(), "text");
	target = 1.5;
	EXPECT_EQ(target.as_string(), "1.5");
	EXPECT_EQ(other.as_string(), "text");
	variant const &same = other;
	other = same;
	EXPECT_EQ(other.assign(other).as_string(), "text");
}

TEST(variant, moved_from_variant_keeps_its_value) {
	variant source("text");
	// NOLINTBEGIN(bugprone-use-after-move, performance-move-const-arg): a move copies
	variant const moved(std::move(source));
	EXPECT_EQ(moved.as_string(), "text");
	EXPECT_EQ(source.as_string(), "text");
	variant target;
	target = std::move(source);
	EXPECT_EQ(source.as_string(), "text");
	// NOLINTEND(bugprone-use-after-move, performance-move-const-arg)
	EXPECT_TRUE(std::is_nothrow_move_constructible_v<variant>);
}

TEST(variant, is_one_word_and_lives_in_containers) {
	EXPECT_EQ(sizeof(variant), sizeof(void *));
	std::vector<variant> values;
	for (int i = 0; i != 100; ++i) {
		values.emplace_back(i);
	}
	values.insert(values.begin(), values.back());
	EXPECT_EQ(values[0].as_int(), 99);
	EXPECT_EQ(values[100].as_int(), 99);
	std::map<ustring8, variant> settings;
	settings["port"] = 80;
	settings["host"] = "localhost";
	EXPECT_EQ(settings["port"].as_string(), "80");
	EXPECT_TRUE(settings["user"] == nil);
}

TEST(variant, names_clip_text_as_the_holder_operation_behind_them_does) {
	struct {
		char const *text;
		int as_int;
		unsigned int as_uint;
		short as_short;
		unsigned short as_ushort;
		int32 as_long;
		uint32 as_ulong;
		unsigned short as_uint16;
		uint32 as_uint32;
	} const rows[] = {
	    {"40000", 40000, 40000U, 32767, 32767, 40000, 40000U, 40000, 40000U},
	    {"32767", 32767, 32767U, 32767, 32767, 32767, 32767U, 32767, 32767U},
	    {"32768", 32768, 32768U, 32767, 32767, 32768, 32768U, 32768, 32768U},
	    {"65535", 65535, 65535U, 32767, 32767, 65535, 65535U, 65535, 65535U},
	    {"65536", 65536, 65536U, 32767, 32767, 65536, 65536U, 65535, 65536U},
	    {"2147483647", 2147483647, 2147483647U, 32767, 32767, 2147483647, 2147483647U, 65535, 2147483647U},
	    {"2147483648", 2147483647, 2147483647U, 32767, 32767, 2147483647, 2147483647U, 65535, 2147483648U},
	    {"4000000000", 2147483647, 2147483647U, 32767, 32767, 2147483647, 2147483647U, 65535, 4000000000U},
	    {"4294967295", 2147483647, 2147483647U, 32767, 32767, 2147483647, 2147483647U, 65535, 4294967295U},
	    {"4294967296", 2147483647, 2147483647U, 32767, 32767, 2147483647, 2147483647U, 65535, 4294967295U},
	    {"-1", -1, 4294967295U, -32768, 32768, -1, 4294967295U, 0, 0U},
	    {"-2147483648", -2147483647 - 1, 2147483648U, -32768, 32768, -2147483647 - 1, 2147483648U, 0, 0U},
	    {"-2147483649", -2147483647 - 1, 2147483648U, -32768, 32768, -2147483647 - 1, 2147483648U, 0, 0U},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.text);
		for (variant const &value :
		     {variant(row.text), variant(std::string(row.text)), variant(quor::strings::utf8_to_utf16(row.text)),
		      variant(wide_string(quor::strings::utf8_to_utf16(row.text))),
		      variant(quor::strings::utf8_to_utf32(row.text))}) {
			SCOPED_TRACE(value.type().name());
			EXPECT_EQ(value.as_int(), row.as_int);
			EXPECT_EQ(value.as_signed(), row.as_int);
			EXPECT_EQ(value.as_uint(), row.as_uint);
			EXPECT_EQ(value.as_unsigned(), row.as_uint);
			EXPECT_EQ(value.as_short(), row.as_short);
			EXPECT_EQ(value.as_int16(), row.as_short);
			EXPECT_EQ(value.as_ushort(), row.as_ushort);
			EXPECT_EQ(value.as_long(), row.as_long);
			EXPECT_EQ(value.as_int32(), row.as_long);
			EXPECT_EQ(value.as_ulong(), row.as_ulong);
			EXPECT_EQ(value.as_uint16(), row.as_uint16);
			EXPECT_EQ(value.as_uint32(), row.as_uint32);
		}
	}
}

TEST(variant, results_have_the_types_of_the_interface) {
	using value = variant const &;
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_long()), int32>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_ulong()), uint32>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_int8()), signed char>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_uint16()), unsigned short>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_int64()), int64>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_string()), ustring8>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_wstring()), wide_string>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_ustring()), wide_string>));
	EXPECT_TRUE((std::is_same_v<decltype(std::declval<value>().as_utf16()), ustring16>));
	EXPECT_FALSE(std::is_polymorphic_v<variant>);
}

} // namespace
