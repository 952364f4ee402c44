#include <quor/serialization/serialize_buffer.hpp>

#include <memory>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_text_buf.hpp>
#include <quor/strings/ustring.hpp>

#include "serialization/slots.hpp"

namespace {

using buffer = QUOR_2_9::serialization::serialize_buffer;
using QUOR_2_9::generic::abilities::clone_ability;
using QUOR_2_9::generic::abilities::create_ability;
using QUOR_2_9::generic::abilities::reference_count_pointer_ability;
using QUOR_2_9::memory::pointers::rc_pointer;
using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_text_buf;

#if defined(QUOR_TESTS_KNOW_SLOTS)

using quor_test::slot_of;

TEST(serialize_buffer, virtual_functions_stand_in_their_order) {
	EXPECT_EQ(slot_of(static_cast<buffer &(buffer::*)(char const *, int)>(&buffer::assign)), 1U);
	EXPECT_EQ(slot_of(static_cast<buffer &(buffer::*)(std::string const &)>(&buffer::assign)), 2U);
	EXPECT_EQ(slot_of(static_cast<buffer &(buffer::*)(buffer const &)>(&buffer::assign)), 3U);
	EXPECT_EQ(slot_of(&buffer::as_str), 4U);
	EXPECT_EQ(slot_of(&buffer::append_int8), 5U);
	EXPECT_EQ(slot_of(&buffer::append_int16), 6U);
	EXPECT_EQ(slot_of(&buffer::append_int32), 7U);
	EXPECT_EQ(slot_of(&buffer::append_int64), 8U);
	EXPECT_EQ(slot_of(&buffer::append_uint8), 9U);
	EXPECT_EQ(slot_of(&buffer::append_uint16), 10U);
	EXPECT_EQ(slot_of(&buffer::append_uint32), 11U);
	EXPECT_EQ(slot_of(&buffer::append_uint64), 12U);
	EXPECT_EQ(slot_of(&buffer::append_float), 13U);
	EXPECT_EQ(slot_of(&buffer::append_double), 14U);
	EXPECT_EQ(slot_of(&buffer::append_string), 15U);
	EXPECT_EQ(slot_of(&buffer::append_buffer), 16U);
	EXPECT_EQ(slot_of(&buffer::read_int8), 17U);
	EXPECT_EQ(slot_of(&buffer::read_int16), 18U);
	EXPECT_EQ(slot_of(&buffer::read_int32), 19U);
	EXPECT_EQ(slot_of(&buffer::read_int64), 20U);
	EXPECT_EQ(slot_of(&buffer::read_uint8), 21U);
	EXPECT_EQ(slot_of(&buffer::read_uint16), 22U);
	EXPECT_EQ(slot_of(&buffer::read_uint32), 23U);
	EXPECT_EQ(slot_of(&buffer::read_uint64), 24U);
	EXPECT_EQ(slot_of(&buffer::read_float), 25U);
	EXPECT_EQ(slot_of(&buffer::read_double), 26U);
	EXPECT_EQ(slot_of(&buffer::read_string), 27U);
	EXPECT_EQ(slot_of(&buffer::read_buffer), 28U);
	EXPECT_EQ(slot_of(&buffer::at_end), 29U);
	EXPECT_EQ(slot_of(&buffer::reset_read), 30U);
	EXPECT_EQ(slot_of(&buffer::create), 31U);
	EXPECT_EQ(slot_of(&buffer::clone), 32U);
}

#endif

TEST(serialize_buffer, interface_has_its_abilities_and_no_data) {
	struct abilities : create_ability, clone_ability, reference_count_pointer_ability<buffer> {};
	EXPECT_TRUE((std::is_base_of_v<create_ability, buffer>));
	EXPECT_TRUE((std::is_base_of_v<clone_ability, buffer>));
	EXPECT_TRUE((std::is_base_of_v<reference_count_pointer_ability<buffer>, buffer>));
	EXPECT_TRUE(std::is_abstract_v<buffer>);
	EXPECT_EQ(sizeof(buffer), sizeof(abilities));
}

// What both classes do alike. A value of theirs is 7, appended with `append_uint8`.
template <class Buffer>
class any_buffer : public testing::Test {
protected:
	static std::string seven() {
		Buffer result;
		result.append_uint8(7);
		return result.as_str();
	}
};

using buffers = testing::Types<serialize_binary_buf, serialize_text_buf>;
TYPED_TEST_SUITE(any_buffer, buffers, );

TYPED_TEST(any_buffer, literals_of_every_kind_compile) {
	TypeParam made("text");
	EXPECT_EQ(made.as_str(), "text");
	made = "assigned";
	EXPECT_EQ(made.as_str(), "assigned");
	made.assign("again").assign("").assign("abc", 2);
	EXPECT_EQ(made.as_str(), "ab");
	made.assign("", 0);
	made.append_int8('x');
	made.append_int16(1);
	made.append_int32(2);
	made.append_int64(3);
	made.append_uint8(4);
	made.append_uint16(5);
	made.append_uint32(6);
	made.append_uint32(6U);
	made.append_uint64(7);
	made.append_float(1.5F, 9);
	made.append_double(2.5, 17U);
	made.append_string("text");
	made.append_string(QUOR_2_9::strings::ustring8("utf8"));
	EXPECT_EQ(made.read_int8(), 'x');
	EXPECT_EQ(made.read_int16(), 1);
	EXPECT_EQ(made.read_int32(), 2);
	EXPECT_EQ(made.read_int64(), 3);
	EXPECT_EQ(made.read_uint8(), 4);
	EXPECT_EQ(made.read_uint16(), 5);
	EXPECT_EQ(made.read_uint32(), 6U);
	EXPECT_EQ(made.read_uint32(), 6U);
	EXPECT_EQ(made.read_uint64(), 7U);
	EXPECT_EQ(made.read_float(), 1.5F);
	EXPECT_EQ(made.read_double(), 2.5);
	EXPECT_EQ(made.read_string(), "text");
	EXPECT_EQ(made.read_string(), "utf8");
	EXPECT_TRUE(made.at_end());
	QUOR_2_9::strings::ustring8 const utf8("utf8");
	EXPECT_EQ(TypeParam(utf8).as_str(), "utf8");
	EXPECT_EQ((made = utf8).as_str(), "utf8");
	EXPECT_EQ(made.assign("").assign(utf8).as_str(), "utf8");
}

TYPED_TEST(any_buffer, new_buffer_is_empty_and_held_by_nobody) {
	TypeParam const made;
	EXPECT_EQ(made.as_str(), "");
	EXPECT_TRUE(made.at_end());
	EXPECT_EQ(made.get_ref_count(), 0U);
	EXPECT_FALSE(made.is_created_dynamic());
}

TYPED_TEST(any_buffer, assign_keeps_the_read_position) {
	TypeParam made(this->seven() + this->seven());
	std::string const content = made.as_str();
	EXPECT_EQ(made.read_uint8(), 7);
	TypeParam const other(content + this->seven());
	buffer &base = made;
	EXPECT_EQ(&base.assign(content.data(), static_cast<int>(content.size())), &made);
	EXPECT_EQ(made.as_str(), content);
	EXPECT_EQ(&base.assign(content), &made);
	EXPECT_EQ(made.as_str(), content);
	EXPECT_EQ(&base.assign(other), &made);
	EXPECT_EQ(made.as_str(), other.as_str());
	EXPECT_EQ(made.read_uint8(), 7);
	EXPECT_FALSE(made.at_end());
	EXPECT_EQ(made.read_uint8(), 7);
	EXPECT_TRUE(made.at_end());
	made.assign(std::string());
	EXPECT_TRUE(made.at_end());
	made.assign(content);
	EXPECT_TRUE(made.at_end());
	made.reset_read();
	EXPECT_FALSE(made.at_end());
	EXPECT_EQ(made.read_uint8(), 7);
}

TYPED_TEST(any_buffer, assign_of_null_or_a_negative_length_empties) {
	struct row {
		char const *data;
		int length;
		std::string expected;
	};
	row const rows[] = {{nullptr, 0, ""},
	                    {nullptr, 5, ""},
	                    {nullptr, -1, ""},
	                    {"abc", -1, ""},
	                    {"abc", -2147483647 - 1, ""},
	                    {"abc", 0, ""},
	                    {"abc", 2, "ab"},
	                    {"a\0b", 3, std::string("a\0b", 3)}};
	for (row const &r : rows) {
		SCOPED_TRACE(testing::PrintToString(r.expected) + " " + std::to_string(r.length));
		TypeParam made("before");
		EXPECT_EQ(made.assign(r.data, r.length).as_str(), r.expected);
	}
}

TYPED_TEST(any_buffer, assign_of_own_bytes_is_safe) {
	std::string const content = "a content that is longer than what a string holds in itself";
	TypeParam made(content);
	made.assign(made.as_str());
	EXPECT_EQ(made.as_str(), content);
	made.assign(made);
	EXPECT_EQ(made.as_str(), content);
	static_cast<buffer &>(made) = static_cast<buffer const &>(made);
	EXPECT_EQ(made.as_str(), content);
	TypeParam const &same = made;
	made = same;
	EXPECT_EQ(made.as_str(), content);
	made.assign(made.as_str().data() + 2, 7);
	EXPECT_EQ(made.as_str(), "content");
}

TYPED_TEST(any_buffer, bytes_of_another_class_are_taken_as_they_stand) {
	serialize_binary_buf const binary(std::string("\1\0\1", 3));
	serialize_text_buf const text(std::string("5\1\xFF", 3));
	for (buffer const *const source : {static_cast<buffer const *>(&binary), static_cast<buffer const *>(&text)}) {
		TypeParam const constructed(*source);
		EXPECT_EQ(constructed.as_str(), source->as_str());
		TypeParam assigned("x");
		EXPECT_EQ(&assigned.assign(*source), &assigned);
		EXPECT_EQ(assigned.as_str(), source->as_str());
		TypeParam by_operator("x");
		by_operator = *source;
		EXPECT_EQ(by_operator.as_str(), source->as_str());
	}
}

TYPED_TEST(any_buffer, operators_of_the_interface_forward_to_assign) {
	TypeParam made(this->seven());
	EXPECT_EQ(made.read_uint8(), 7);
	TypeParam const other(this->seven() + this->seven());
	buffer &base = made;
	EXPECT_EQ(&(base = static_cast<buffer const &>(other)), &made);
	EXPECT_EQ(made.as_str(), other.as_str());
	EXPECT_FALSE(made.at_end());
	EXPECT_EQ(made.read_uint8(), 7);
	EXPECT_TRUE(made.at_end());
	EXPECT_EQ(&(base = this->seven()), &made);
	EXPECT_EQ(made.as_str(), this->seven());
	EXPECT_TRUE(made.at_end());
}

TYPED_TEST(any_buffer, constructor_from_the_interface_reads_from_the_start_and_the_copy_goes_on) {
	TypeParam source(this->seven() + this->seven());
	source.read_uint8();
	TypeParam copy(source);
	copy.read_uint8();
	EXPECT_TRUE(copy.at_end());
	copy.append_uint8(7);
	EXPECT_FALSE(copy.at_end());
	TypeParam const from_base(static_cast<buffer const &>(source));
	from_base.read_uint8();
	EXPECT_FALSE(from_base.at_end());
	TypeParam assigned;
	assigned = source;
	EXPECT_EQ(assigned.read_uint8(), 7);
	EXPECT_TRUE(assigned.at_end());
	EXPECT_FALSE(source.at_end());
}

TYPED_TEST(any_buffer, create_gives_an_empty_buffer_of_its_class) {
	TypeParam source(this->seven());
	source.read_uint8();
	rc_pointer<buffer> const held(static_cast<buffer const &>(source).create());
	EXPECT_NE(dynamic_cast<TypeParam *>(&*held), nullptr);
	EXPECT_EQ(held->as_str(), "");
	EXPECT_TRUE(held->is_created_dynamic());
	EXPECT_EQ(held->get_ref_count(), 1U);
	held->append_uint8(7);
	EXPECT_EQ(held->read_uint8(), 7);
}

TYPED_TEST(any_buffer, clone_carries_contents_position_and_count) {
	TypeParam source(this->seven() + this->seven());
	source.read_uint8();
	std::unique_ptr<buffer> const fresh(static_cast<buffer const &>(source).clone());
	EXPECT_NE(dynamic_cast<TypeParam *>(fresh.get()), nullptr);
	EXPECT_EQ(fresh->as_str(), source.as_str());
	EXPECT_EQ(fresh->read_uint8(), 7);
	EXPECT_TRUE(fresh->at_end());
	EXPECT_FALSE(source.at_end());
	EXPECT_TRUE(fresh->is_created_dynamic());
	EXPECT_EQ(fresh->get_ref_count(), 0U);

	rc_pointer<buffer> const first(&source);
	rc_pointer<buffer> const second(&source);
	std::unique_ptr<buffer> const counted(source.clone());
	EXPECT_EQ(counted->get_ref_count(), 2U);
	EXPECT_TRUE(counted->is_created_dynamic());
	EXPECT_EQ(source.get_ref_count(), 2U);
	EXPECT_FALSE(source.is_created_dynamic());
}

TYPED_TEST(any_buffer, copy_carries_count_and_flag) {
	rc_pointer<buffer> const held(TypeParam(this->seven()).clone());
	TypeParam const copy(static_cast<TypeParam const &>(*held));
	EXPECT_EQ(copy.get_ref_count(), 1U);
	EXPECT_TRUE(copy.is_created_dynamic());
	TypeParam const from_base(*held);
	EXPECT_EQ(from_base.get_ref_count(), 0U);
	EXPECT_FALSE(from_base.is_created_dynamic());
}

TYPED_TEST(any_buffer, assignment_leaves_count_and_flag) {
	rc_pointer<buffer> const held(TypeParam(this->seven()).clone());
	TypeParam target;
	target = static_cast<TypeParam const &>(*held);
	EXPECT_EQ(target.get_ref_count(), 0U);
	EXPECT_FALSE(target.is_created_dynamic());
	target = *held;
	EXPECT_EQ(target.get_ref_count(), 0U);
	EXPECT_FALSE(target.is_created_dynamic());
	static_cast<TypeParam &>(*held) = TypeParam("other");
	EXPECT_EQ(held->as_str(), "other");
	EXPECT_EQ(held->get_ref_count(), 1U);
	EXPECT_TRUE(held->is_created_dynamic());
}

TYPED_TEST(any_buffer, held_buffer_on_the_stack_survives) {
	TypeParam local(this->seven());
	{ rc_pointer<buffer> const held(&local); }
	EXPECT_EQ(local.get_ref_count(), 0U);
	EXPECT_EQ(local.read_uint8(), 7);
}

TYPED_TEST(any_buffer, reference_to_the_content_follows_it) {
	TypeParam made;
	std::string const &content = made.as_str();
	made.append_uint8(7);
	EXPECT_EQ(content, this->seven());
	for (int i = 0; i != 1000; ++i) {
		made.append_int64(i);
	}
	EXPECT_EQ(&made.as_str(), &content);
	made.assign(std::string("x"));
	EXPECT_EQ(content, "x");
}

TYPED_TEST(any_buffer, appending_leaves_the_read_position_and_reading_the_contents) {
	TypeParam made;
	made.append_uint8(7);
	made.append_uint8(7);
	EXPECT_EQ(made.read_uint8(), 7);
	made.append_string("text");
	std::string const content = made.as_str();
	EXPECT_EQ(made.read_uint8(), 7);
	EXPECT_EQ(made.read_string(), "text");
	EXPECT_TRUE(made.at_end());
	EXPECT_EQ(made.as_str(), content);
}

TYPED_TEST(any_buffer, nested_buffers_come_back_as_the_reading_class) {
	serialize_binary_buf binary;
	binary.append_int32(0x01010101);
	binary.append_string("in bytes");
	serialize_text_buf text;
	text.append_int32(-5);
	TypeParam outer;
	outer.append_buffer(binary);
	outer.append_buffer(text);
	outer.append_uint8(7);
	std::unique_ptr<buffer> const first(outer.read_buffer());
	std::unique_ptr<buffer> const second(outer.read_buffer());
	ASSERT_NE(dynamic_cast<TypeParam *>(first.get()), nullptr);
	ASSERT_NE(dynamic_cast<TypeParam *>(second.get()), nullptr);
	EXPECT_TRUE(first->is_created_dynamic());
	EXPECT_EQ(first->get_ref_count(), 0U);
	EXPECT_EQ(first->as_str(), binary.as_str());
	EXPECT_EQ(second->as_str(), text.as_str());
	EXPECT_EQ(outer.read_uint8(), 7);
	serialize_binary_buf const again(*first);
	EXPECT_EQ(again.read_int32(), 0x01010101);
	EXPECT_EQ(again.read_string(), "in bytes");
}

TYPED_TEST(any_buffer, own_content_is_framed_as_it_was) {
	for (std::size_t const size : {0U, 1U, 10U, 15U, 16U, 100U, 5000U}) {
		SCOPED_TRACE(size);
		std::string const content(size, 'x');
		TypeParam by_string;
		by_string.append_string(content);
		TypeParam made(content);
		made.append_buffer(made);
		EXPECT_EQ(made.as_str(), content + by_string.as_str());
		TypeParam other(content);
		other.append_string(other.as_str());
		EXPECT_EQ(other.as_str(), content + by_string.as_str());
	}
}

TYPED_TEST(any_buffer, derived_class_may_replace_an_operation) {
	struct derived : TypeParam {
		using TypeParam::TypeParam;
		bool at_end() const override { return true; }
	};
	derived const made(this->seven());
	buffer const &base = made;
	EXPECT_TRUE(base.at_end());
	EXPECT_EQ(base.read_uint8(), 7);
}

} // namespace
