// Both buffers at the edges of the room behind their content, whoever has looked at it.

#include <quor/serialization/formatted_buffer.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_text_buf.hpp>

#include "reference/serialize_buffers.hpp"
#include "serialization/slots.hpp"
#include "support/serialize_fields.hpp"

namespace {

using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_buffer;
using QUOR_2_9::serialization::serialize_text_buf;
using quor_reference::binary_reference;
using quor_reference::field;
using quor_reference::field_type;
using quor_reference::text_reference;

template <class Buffer>
class formatted_buffer : public testing::Test {
protected:
	using reference =
	    std::conditional_t<std::is_same_v<Buffer, serialize_binary_buf>, binary_reference, text_reference>;
};

using buffers = testing::Types<serialize_binary_buf, serialize_text_buf>;
TYPED_TEST_SUITE(formatted_buffer, buffers, );

// One of each type, and those with the longest and the shortest text.
std::vector<field> all_fields() {
	std::vector<field> fields;
	for (int type = 0; type != static_cast<int>(field_type::single); ++type) {
		for (std::uint64_t const bits :
		     {0ULL, 7ULL, ~0ULL, 1ULL << 7, 1ULL << 15, 1ULL << 31, 1ULL << 63, ~0ULL >> 1}) {
			fields.push_back({static_cast<field_type>(type), bits});
		}
	}
	fields.push_back({field_type::single, 0, 0.5, 9});
	fields.push_back({field_type::number, 0, -5e-324, 17});
	fields.push_back({field_type::number, 0, 0, 0});
	fields.push_back({field_type::number, 0, -1.7976931348623157e308, 0xFFFFFFFF});
	for (std::size_t const size : {0U, 1U, 3U, 4U, 5U, 7U, 8U, 12U, 15U, 16U, 17U, 100U}) {
		fields.push_back({field_type::string, 0, 0, 0, std::string(size, 's')});
		fields.push_back({field_type::buffer, 0, 0, 0, std::string(size, 'b')});
	}
	return fields;
}

#if defined(QUOR_TESTS_KNOW_SLOTS)

using quor_test::slot_of;

TYPED_TEST(formatted_buffer, virtual_functions_stand_in_the_order_of_the_interface) {
	EXPECT_EQ(slot_of(static_cast<serialize_buffer &(TypeParam::*)(char const *, int)>(&TypeParam::assign)), 1U);
	EXPECT_EQ(slot_of(static_cast<serialize_buffer &(TypeParam::*)(std::string const &)>(&TypeParam::assign)), 2U);
	EXPECT_EQ(slot_of(static_cast<serialize_buffer &(TypeParam::*)(serialize_buffer const &)>(&TypeParam::assign)), 3U);
	EXPECT_EQ(slot_of(&TypeParam::as_str), 4U);
	EXPECT_EQ(slot_of(&TypeParam::append_int8), 5U);
	EXPECT_EQ(slot_of(&TypeParam::append_uint64), 12U);
	EXPECT_EQ(slot_of(&TypeParam::append_float), 13U);
	EXPECT_EQ(slot_of(&TypeParam::append_double), 14U);
	EXPECT_EQ(slot_of(&TypeParam::append_string), 15U);
	EXPECT_EQ(slot_of(&TypeParam::append_buffer), 16U);
	EXPECT_EQ(slot_of(&TypeParam::read_int8), 17U);
	EXPECT_EQ(slot_of(&TypeParam::read_uint64), 24U);
	EXPECT_EQ(slot_of(&TypeParam::read_float), 25U);
	EXPECT_EQ(slot_of(&TypeParam::read_double), 26U);
	EXPECT_EQ(slot_of(&TypeParam::read_string), 27U);
	EXPECT_EQ(slot_of(&TypeParam::read_buffer), 28U);
	EXPECT_EQ(slot_of(&TypeParam::at_end), 29U);
	EXPECT_EQ(slot_of(&TypeParam::reset_read), 30U);
	EXPECT_EQ(slot_of(&TypeParam::create), 31U);
	EXPECT_EQ(slot_of(&TypeParam::clone), 32U);
}

#endif

// Content of any size has a field behind it: one that nobody has looked at, one that somebody
// holds, and a copy. The first appended field makes the room in which the sizes come near its
// end one by one.
TYPED_TEST(formatted_buffer, fields_go_behind_content_of_every_size) {
	std::vector<field> const fields = all_fields();
	for (std::size_t size = 0; size != 260; ++size) {
		std::string const content(size, 'c');
		for (field const &one : fields) {
			typename TestFixture::reference expected;
			expected.contents = content;
			expected.append(one);
			expected.append(one);

			TypeParam alone;
			for (std::size_t i = 0; i != size; ++i) {
				alone.append_uint8(7);
			}
			typename TestFixture::reference sevens;
			for (std::size_t i = 0; i != size; ++i) {
				sevens.append({field_type::uint8, 7});
			}
			sevens.append(one);
			quor_test::append_field(alone, one);
			ASSERT_EQ(alone.as_str(), sevens.contents) << size;

			TypeParam assigned(content);
			quor_test::append_field(assigned, one);
			TypeParam copy(assigned);
			quor_test::append_field(assigned, one);
			quor_test::append_field(copy, one);
			ASSERT_EQ(assigned.as_str(), expected.contents) << size;
			ASSERT_EQ(copy.as_str(), expected.contents) << size;

			TypeParam held(content);
			std::string const &seen = held.as_str();
			quor_test::append_field(held, one);
			quor_test::append_field(held, one);
			ASSERT_EQ(seen, expected.contents) << size;
			ASSERT_EQ(&held.as_str(), &seen);
		}
	}
}

// The content is asked for behind each field in turn, and then seen behind each further one.
TYPED_TEST(formatted_buffer, content_asked_for_between_appends_is_exact) {
	std::vector<field> const fields = all_fields();
	for (std::size_t asked = 0; asked <= fields.size(); ++asked) {
		TypeParam made;
		typename TestFixture::reference expected;
		std::string const *seen = nullptr;
		for (std::size_t i = 0; i != fields.size(); ++i) {
			if (i == asked) {
				seen = &made.as_str();
			}
			ASSERT_TRUE(seen == nullptr || *seen == expected.contents) << asked << " " << i;
			quor_test::append_field(made, fields[i]);
			expected.append(fields[i]);
		}
		ASSERT_EQ(made.as_str(), expected.contents) << asked;
		ASSERT_EQ(made.as_str().data()[expected.contents.size()], '\0');
	}
}

// What lies behind the content is not read, though the string has it.
TYPED_TEST(formatted_buffer, reads_end_with_the_content) {
	for (int count = 0; count != 4; ++count) {
		for (int type = 0; type != quor_reference::field_types; ++type) {
			TypeParam made;
			typename TestFixture::reference expected;
			// What is cut off is not seen again.
			made.append_string(std::string(50, 'x'));
			made.assign("");
			for (int i = 0; i != count; ++i) {
				made.append_int8(-1);
				expected.append({field_type::int8, 0xFF});
			}
			for (int i = 0; i != count + 3; ++i) {
				ASSERT_EQ(made.at_end(), expected.at_end());
				ASSERT_EQ(quor_test::read_field(made, static_cast<field_type>(type)),
				          expected.read(static_cast<field_type>(type)))
				    << type << " of " << count;
			}
			// The position is what it would be, as far behind the end as it got.
			for (int i = 0; i != 30; ++i) {
				made.append_uint8(7);
				expected.append({field_type::uint8, 7});
				ASSERT_EQ(made.at_end(), expected.at_end()) << i;
			}
			ASSERT_EQ(quor_test::read_field(made, field_type::uint8), expected.read(field_type::uint8));
		}
	}
}

TYPED_TEST(formatted_buffer, fields_are_read_between_appends) {
	std::vector<field> const fields = all_fields();
	TypeParam made;
	TypeParam seen;
	static_cast<void>(seen.as_str());
	typename TestFixture::reference expected;
	for (field const &one : fields) {
		quor_test::append_field(made, one);
		quor_test::append_field(seen, one);
		expected.append(one);
		std::string const read = expected.read(one.type);
		ASSERT_EQ(quor_test::read_field(made, one.type), read);
		ASSERT_EQ(quor_test::read_field(seen, one.type), read);
		ASSERT_TRUE(made.at_end());
	}
	made.reset_read();
	for (field const &one : fields) {
		ASSERT_FALSE(made.at_end());
		quor_test::read_field(made, one.type);
	}
	EXPECT_TRUE(made.at_end());
}

// Copies have the content alone, with room of their own.
TYPED_TEST(formatted_buffer, copies_go_their_own_way) {
	for (std::size_t const size : {0U, 1U, 10U, 119U, 120U, 121U, 1000U}) {
		for (bool const looked : {false, true}) {
			TypeParam source;
			typename TestFixture::reference first;
			for (std::size_t i = 0; i != size; ++i) {
				source.append_uint8(7);
				first.append({field_type::uint8, 7});
			}
			auto second = first;
			if (looked) {
				static_cast<void>(source.as_str());
			}
			if (size != 0) {
				EXPECT_EQ(source.read_uint8(), 7);
			}
			TypeParam copy(source);
			std::unique_ptr<serialize_buffer> const clone(source.clone());
			TypeParam moved(std::move(source)); // NOLINT(performance-move-const-arg): a copy, as there is no move
			TypeParam assigned("something else");
			std::string const &seen = assigned.as_str();
			assigned = moved;
			EXPECT_EQ(seen, first.contents);
			TypeParam unseen;
			unseen.append_string("something else");
			unseen = moved;
			second.append({field_type::int32, 5});
			first.append({field_type::string, 0, 0, 0, "end"});
			for (serialize_buffer *const one :
			     {static_cast<serialize_buffer *>(&copy), clone.get(), static_cast<serialize_buffer *>(&assigned),
			      static_cast<serialize_buffer *>(&unseen)}) {
				EXPECT_EQ(one->at_end(), size <= 1);
				one->append_int32(5);
				EXPECT_EQ(one->as_str(), second.contents);
			}
			moved.append_string("end");
			EXPECT_EQ(moved.as_str(), first.contents);
			EXPECT_EQ(seen, second.contents);
			// What was moved from is as it was.
			source.append_string("end"); // NOLINT(bugprone-use-after-move)
			EXPECT_EQ(source.as_str(), first.contents);
		}
	}
}

TYPED_TEST(formatted_buffer, assigning_to_itself_keeps_content_and_position) {
	TypeParam made;
	made.append_uint8(7);
	made.append_string("text");
	made.read_uint8();
	TypeParam const &same = made;
	made = same;
	serialize_buffer &base = made;
	base.assign(static_cast<serialize_buffer const &>(same));
	made.append_uint8(7);
	EXPECT_EQ(made.read_string(), "text");
	EXPECT_EQ(made.read_uint8(), 7);
	EXPECT_TRUE(made.at_end());
}

// Longer and shorter content takes the place of one that has room behind it.
TYPED_TEST(formatted_buffer, assigned_content_replaces_what_was_appended) {
	for (std::size_t const size : {0U, 1U, 15U, 16U, 119U, 120U, 121U, 500U}) {
		TypeParam made;
		made.append_string("appended");
		std::string const content(size, 'c');
		made.assign(content);
		EXPECT_EQ(TypeParam(made).as_str(), content);
		typename TestFixture::reference expected;
		expected.contents = content;
		expected.append({field_type::uint16, 300});
		made.append_uint16(300);
		EXPECT_EQ(made.as_str(), expected.contents);
	}
}

// The buffer itself and its string are framed as they were, wherever the room ends.
TYPED_TEST(formatted_buffer, own_content_of_every_size_is_framed) {
	for (std::size_t size = 0; size != 200; ++size) {
		typename TestFixture::reference expected;
		expected.contents = std::string(size, 'c');
		TypeParam made(expected.contents);
		made.append_int8(1);
		expected.append({field_type::int8, 1});
		made.append_buffer(made);
		expected.append({field_type::buffer, 0, 0, 0, expected.contents});
		made.append_string(made.as_str());
		expected.append({field_type::string, 0, 0, 0, expected.contents});
		ASSERT_EQ(made.as_str(), expected.contents) << size;
	}
}

} // namespace
