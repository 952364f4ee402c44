// What the buffers ask the heap for, and what they are when it has nothing left.

#include <cstddef>
#include <memory>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_text_buf.hpp>

#include "support/allocation_counter.hpp"
#include "support/serialize_fields.hpp"

namespace {

using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_buffer;
using QUOR_2_9::serialization::serialize_text_buf;
using quor_test::allocation_counter;
using quor_test::allocation_failure;

template <class Buffer>
class buffer_allocation : public testing::Test {
protected:
	// A buffer with room for so many bytes more than it has.
	static void make_room(Buffer &buffer, std::size_t room) {
		std::string const content = buffer.as_str();
		buffer.assign(content + std::string(room, 'x'));
		buffer.assign(content);
	}
};

using buffers = testing::Types<serialize_binary_buf, serialize_text_buf>;
TYPED_TEST_SUITE(buffer_allocation, buffers, );

template <class Operation>
std::size_t allocations(Operation operation) {
	allocation_counter const counter;
	operation();
	return counter.count();
}

void append_numbers(serialize_buffer &buffer) {
	buffer.append_int8(-128);
	buffer.append_int16(-32768);
	buffer.append_int32(-2147483647 - 1);
	buffer.append_int64(-9223372036854775807LL - 1);
	buffer.append_int64(-9223372036854775807LL);
	buffer.append_uint8(255);
	buffer.append_uint16(65535);
	buffer.append_uint32(4294967295U);
	buffer.append_uint64(18446744073709551615ULL);
	buffer.append_float(-1.40129846e-45F, 4294967295U);
	buffer.append_double(-5e-324, 4294967295U);
}

void read_numbers(serialize_buffer const &buffer) {
	buffer.read_int8();
	buffer.read_int16();
	buffer.read_int32();
	buffer.read_int64();
	buffer.read_int64();
	buffer.read_uint8();
	buffer.read_uint16();
	buffer.read_uint32();
	buffer.read_uint64();
	buffer.read_float();
	buffer.read_double();
}

TYPED_TEST(buffer_allocation, numbers_need_nothing_but_room) {
	TypeParam buffer;
	this->make_room(buffer, 1000);
	EXPECT_EQ(allocations([&] { append_numbers(buffer); }), 0U);
	EXPECT_EQ(allocations([&] { read_numbers(buffer); }), 0U);
	EXPECT_TRUE(buffer.at_end());
	EXPECT_EQ(allocations([&] { read_numbers(buffer); }), 0U);
}

TYPED_TEST(buffer_allocation, strings_and_buffers_are_appended_in_place) {
	TypeParam buffer;
	TypeParam const nested(std::string(100, 'n'));
	std::string const text(100, 't');
	this->make_room(buffer, 1000);
	EXPECT_EQ(allocations([&] { buffer.append_string(text); }), 0U);
	EXPECT_EQ(allocations([&] { buffer.append_buffer(nested); }), 0U);
	EXPECT_EQ(allocations([&] { buffer.append_buffer(buffer); }), 0U);
	EXPECT_EQ(allocations([&] { EXPECT_EQ(buffer.read_string(), text); }), 1U);
	EXPECT_EQ(allocations([&] { delete buffer.read_buffer(); }), 2U);
}

TYPED_TEST(buffer_allocation, growth_is_linear_in_the_content) {
	allocation_counter const counter;
	TypeParam buffer;
	std::string const text(20, 't');
	for (int i = 0; i != 20000; ++i) {
		buffer.append_int32(i);
		buffer.append_string(text);
		buffer.append_double(0.1, 17);
	}
	EXPECT_LE(counter.bytes(), 4 * buffer.as_str().size() + 100);
	EXPECT_LE(counter.count(), 30U);
}

TYPED_TEST(buffer_allocation, wild_lengths_take_no_memory) {
	serialize_binary_buf const binary(std::string("\xFF\xFF\xFF\x7F"
	                                              "a",
	                                              5));
	serialize_text_buf const text(std::string("2147483647\x01") + "a");
	allocation_counter const counter;
	EXPECT_EQ(binary.read_string(), "a");
	EXPECT_EQ(text.read_string(), "a");
	EXPECT_EQ(counter.count(), 0U);
}

// Each operation that allocates fails at each of its allocations, and then goes on.
template <class Operation>
void fail_everywhere(Operation operation, std::string const &unchanged, serialize_buffer const &buffer) {
	for (std::size_t index = 0; index != 100; ++index) {
		SCOPED_TRACE(index);
		allocation_counter const counter;
		bool failed = false;
		{
			allocation_failure const failure(index);
			try {
				operation();
			} catch (std::bad_alloc const &) {
				failed = true;
			}
		}
		if (!failed) {
			EXPECT_GT(index, 0U);
			return;
		}
		EXPECT_EQ(counter.live(), 0);
		EXPECT_TRUE(buffer.as_str() == unchanged);
	}
	FAIL() << "never went through";
}

TYPED_TEST(buffer_allocation, failure_changes_nothing) {
	std::string const content(64, 'c');
	std::string const text(500, 't');
	TypeParam const other(text);
	TypeParam first(content);
	fail_everywhere([&] { first.append_string(text); }, content, first);
	TypeParam second(content);
	fail_everywhere([&] { second.append_buffer(other); }, content, second);
	TypeParam third(content);
	fail_everywhere([&] { third.append_buffer(third); }, content, third);
	TypeParam fourth(content);
	fail_everywhere([&] { fourth.assign(text); }, content, fourth);
	TypeParam fifth(content);
	fail_everywhere([&] { fifth.assign(other); }, content, fifth);
	TypeParam sixth(content);
	fail_everywhere([&] { sixth = other; }, content, sixth);
	TypeParam nesting;
	nesting.append_buffer(other);
	fail_everywhere(
	    [&] {
		    nesting.reset_read();
		    std::unique_ptr<serialize_buffer> const nested(nesting.read_buffer());
	    },
	    nesting.as_str(), nesting);
	fail_everywhere([&] { std::unique_ptr<serialize_buffer> const clone(nesting.clone()); }, nesting.as_str(), nesting);
	fail_everywhere([&] { std::unique_ptr<serialize_buffer> const made(nesting.create()); }, nesting.as_str(), nesting);
}

// Room that can't be had leaves the content as it was, also where nobody has seen it yet.
TYPED_TEST(buffer_allocation, failure_to_grow_leaves_what_was_appended) {
	std::string const long_text(500, 't');
	TypeParam const long_buffer(long_text);
	using append = void (*)(TypeParam &, std::string const &, TypeParam const &);
	append const appends[] = {
	    [](TypeParam &to, std::string const & /*text*/, TypeParam const & /*nested*/) { to.append_int8(1); },
	    [](TypeParam &to, std::string const & /*text*/, TypeParam const & /*nested*/) { to.append_uint64(1); },
	    [](TypeParam &to, std::string const & /*text*/, TypeParam const & /*nested*/) { to.append_double(1, 17); },
	    [](TypeParam &to, std::string const &text, TypeParam const & /*nested*/) { to.append_string(text); },
	    [](TypeParam &to, std::string const & /*text*/, TypeParam const &nested) { to.append_buffer(nested); }};
	for (append const one : appends) {
		for (std::size_t size = 0; size != 300; ++size) {
			TypeParam made;
			TypeParam expected;
			for (std::size_t i = 0; i != size; ++i) {
				made.append_int8(5);
				expected.append_int8(5);
			}
			bool failed = false;
			{
				allocation_failure const failure(0);
				try {
					one(made, long_text, long_buffer);
				} catch (std::bad_alloc const &) {
					failed = true;
				}
			}
			one(expected, long_text, long_buffer);
			if (failed) {
				one(made, long_text, long_buffer);
			}
			ASSERT_EQ(made.as_str(), expected.as_str()) << size;
		}
	}
}

// Looking at the content needs no memory, and a look a field costs no more than the fields.
TYPED_TEST(buffer_allocation, looking_needs_no_memory) {
	TypeParam buffer;
	allocation_counter const counter;
	for (int i = 0; i != 20000; ++i) {
		buffer.append_int32(i);
		static_cast<void>(buffer.as_str());
	}
	EXPECT_LE(counter.bytes(), 4 * buffer.as_str().size() + 300);
	EXPECT_LE(counter.count(), 30U);
	std::size_t const before = counter.count();
	TypeParam fresh;
	fresh.append_int8(1);
	std::size_t const grown = counter.count();
	static_cast<void>(fresh.as_str());
	EXPECT_EQ(counter.count(), grown);
	EXPECT_EQ(grown, before + 1);
}

} // namespace
