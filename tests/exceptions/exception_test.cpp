#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

namespace exceptions = QUOR_2_9::exceptions;
using state = exceptions::exception::state;

std::string_view bytes_of(state const &record) {
	return {reinterpret_cast<char const *>(&record), sizeof(record)};
}

TEST(exception, record_has_516_bytes_and_is_copied_whole) {
	static_assert(sizeof(state) == 516);
	static_assert(!std::is_polymorphic_v<state>);
	static_assert(!std::is_default_constructible_v<state>);
	state const first(7, "file.cpp", "ns::function");
	state const copy(first); // NOLINT(performance-unnecessary-copy-initialization): the copy is tested
	EXPECT_EQ(copy.line(), 7U);
	EXPECT_STREQ(copy.file(), "file.cpp");
	EXPECT_STREQ(copy.function(), "ns::function");
	EXPECT_NE(copy.file(), first.file());
	EXPECT_NE(copy.function(), first.function());
	EXPECT_EQ(bytes_of(first), bytes_of(copy));
}

TEST(exception, record_texts_lie_in_the_record) {
	state const record(1, "f", "g");
	auto const *const begin = reinterpret_cast<char const *>(&record);
	EXPECT_EQ(record.file(), begin + 4);
	EXPECT_EQ(record.function(), begin + 4 + 256);
}

TEST(exception, record_assignment_replaces_all_fields) {
	state const first(7, "a long file name", "a long function name");
	state second(8, "x", "y");
	state &result = second = first;
	EXPECT_EQ(&result, &second);
	EXPECT_EQ(bytes_of(first), bytes_of(second));
	state const &alias = second;
	second = alias;
	EXPECT_STREQ(second.file(), "a long file name");
}

TEST(exception, record_keeps_up_to_255_characters) {
	for (std::size_t const size : {0U, 1U, 254U, 255U, 256U, 257U, 1000U}) {
		SCOPED_TRACE(size);
		std::string const file(size, 'f');
		std::string const function(size, 'g');
		state const record(0xFFFFFFFF, file.c_str(), function.c_str());
		EXPECT_EQ(record.line(), 0xFFFFFFFFU);
		EXPECT_EQ(record.file(), file.substr(0, 255));
		EXPECT_EQ(record.function(), function.substr(0, 255));
	}
}

TEST(exception, null_leaves_a_field_of_a_new_record_empty) {
	state const no_file(1, nullptr, "function");
	EXPECT_STREQ(no_file.file(), "");
	EXPECT_STREQ(no_file.function(), "function");
	state const no_function(1, "file", nullptr);
	EXPECT_STREQ(no_function.file(), "file");
	EXPECT_STREQ(no_function.function(), "");
}

TEST(exception, root_is_abstract_and_apart_from_the_standard) {
	static_assert(std::is_abstract_v<exceptions::exception>);
	static_assert(std::has_virtual_destructor_v<exceptions::exception>);
	static_assert(!std::is_base_of_v<std::exception, exceptions::exception>);
	static_assert(!std::is_default_constructible_v<exceptions::logic_error>);
}

// A client's own exception.
class custom : public exceptions::exception {
public:
	custom(unsigned int line, char const *file, char const *function) : exception(line, file, function) {}
	explicit custom(state const &place) : exception(place) {}
	custom(custom const &) = default;
	custom &operator=(custom const &) = default;

	char const *text = "own text";

private:
	char const *get_message() const override { return text; }
};

TEST(exception, message_is_what_the_derived_class_gives) {
	custom const error(3, "a", "b");
	EXPECT_EQ(error.message(), error.text);
	EXPECT_EQ(error.error_state().line(), 3U);
}

TEST(exception, root_assignment_copies_the_record_alone) {
	custom first(3, "a", "b");
	first.text = "first";
	custom second(4, "c", "d");
	exceptions::exception &root = second;
	exceptions::exception &result = root = static_cast<exceptions::exception const &>(first);
	EXPECT_EQ(&result, &root);
	EXPECT_STREQ(second.message(), "own text");
	EXPECT_EQ(second.error_state().line(), 3U);
	EXPECT_STREQ(second.error_state().file(), "a");
	EXPECT_STREQ(second.error_state().function(), "b");
}

TEST(exception, built_from_a_record) {
	custom const error(state(9, "x", "y"));
	EXPECT_EQ(error.error_state().line(), 9U);
	EXPECT_STREQ(error.error_state().file(), "x");
	EXPECT_STREQ(error.error_state().function(), "y");
}

TEST(exception, derived_object_is_destroyed_through_the_root) {
	struct counted : custom {
		counted(int &count) : custom(1, "", ""), m_count(count) {}
		~counted() override { ++m_count; }
		int &m_count;
	};
	int count = 0;
	exceptions::exception *error = new counted(count);
	delete error;
	EXPECT_EQ(count, 1);
}

TEST(exception, thrown_by_the_library_reaches_every_handler_of_its_tree) {
	auto const fail = [] { QUOR_2_9::generic::convert::str_to_int("1", 0, 99, true); };
	EXPECT_THROW(fail(), exceptions::invalid_argument_value);
	EXPECT_THROW(fail(), exceptions::logic_error);
	EXPECT_THROW(fail(), exceptions::exception);
	bool standard = false;
	try {
		fail();
	} catch (std::exception const &) {
		standard = true;
	} catch (exceptions::runtime_error const &) {
		FAIL() << "another branch of the tree";
	} catch (exceptions::exception const &error) {
		EXPECT_STREQ(error.message(), "invalid radix value, values of 0, 2-36 are the only valid values");
		EXPECT_EQ(error.error_state().line(), 132U);
		EXPECT_STREQ(error.error_state().file(), "generic\\convert\\str_to_x");
		EXPECT_STREQ(error.error_state().function(), "QUOR_2_9::generic::convert::strtointx");
	}
	EXPECT_FALSE(standard);
}

} // namespace
