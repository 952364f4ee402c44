#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::debug::_private::g_assert_callback;
using callback = quor::functor::function_type_interface<void(char const *const, char const *const, unsigned int &)>;

bool const empty_in_static_initialisers = g_assert_callback.empty();

// Joins the two texts and raises the number.
class recorder : public callback {
public:
	explicit recorder(std::string &text) : m_text(text) {}
	bool equal(callback const &other) const override { return dynamic_cast<recorder const *>(&other) != nullptr; }
	recorder *clone() const override { return new recorder(*this); }
	void operator()(char const *const first, char const *const second, unsigned int &value) const override {
		m_text = std::string(first) + "," + second;
		++value;
	}

private:
	std::string &m_text;
};

TEST(assert_callback, is_empty_from_the_first_static_initialiser_on) {
	EXPECT_TRUE(empty_in_static_initialisers);
	EXPECT_TRUE(g_assert_callback.empty());
	unsigned int value = 5;
	g_assert_callback("skipped", "without a word", value);
	EXPECT_EQ(value, 5U);
}

TEST(assert_callback, has_the_type_of_the_interface) {
	EXPECT_TRUE(
	    (std::is_same_v<decltype(g_assert_callback),
	                    quor::functor::delegate_t<void(char const *const, char const *const, unsigned int &)>>));
}

TEST(assert_callback, assigned_callback_is_called_by_the_program_alone) {
	std::string text;
	g_assert_callback = recorder(text);
	unsigned int value = 5;
	g_assert_callback("one", "two", value);
	EXPECT_EQ(text, "one,two");
	EXPECT_EQ(value, 6U);
	g_assert_callback.clear();
	EXPECT_TRUE(g_assert_callback.empty());
}

void say_whether_empty() {
	std::fputs(g_assert_callback.empty() ? "and the slot is empty\n" : "but the slot is not empty\n", stderr);
}

// Writes a line when it is destroyed, and another one later, at the very end of the process.
class last_words : public callback {
public:
	explicit last_words(bool clone) : m_clone(clone) {}
	~last_words() override {
		if (m_clone) {
			std::fputs("callback destroyed, ", stderr);
			std::atexit(&say_whether_empty);
		}
	}
	bool equal(callback const & /*other*/) const override { return false; }
	last_words *clone() const override { return new last_words(true); }
	void operator()(char const *const /*first*/, char const *const /*second*/,
	                unsigned int & /*value*/) const override {}

private:
	bool m_clone;
};

#if GTEST_OS_WINDOWS
// The program's own functions for the end have run when the library's objects are destroyed.
char const last_output[] = "callback destroyed, ";
#else
char const last_output[] = "callback destroyed, and the slot is empty\n";
#endif

TEST(assert_callback_death, end_of_the_process_destroys_the_callback_and_empties_the_slot) {
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_EXIT(
	    {
		    g_assert_callback = last_words(false);
		    std::exit(3);
	    },
	    testing::ExitedWithCode(3), last_output);
}

} // namespace
