#ifndef QUOR_TESTS_SUPPORT_STOP_HANDLER_HPP
#define QUOR_TESTS_SUPPORT_STOP_HANDLER_HPP

// Takes the place of the library's stop for a scope: counts the calls and returns, or
// throws quor_test::stopped.
//
//     quor_test::stop_handler const stops(quor_test::on_stop::returns);
//     operation();
//     EXPECT_EQ(stops.count(), 1U);

#include <cstddef>
#include <string>

#include <quor/debug/invalid_parameter.hpp>

namespace quor_test {

// What the throwing handler throws.
struct stopped {
	std::string what;
	std::string file;
};

enum class on_stop { returns, throws };

// One at a time in a process.
class stop_handler {
public:
	explicit stop_handler(on_stop what)
	    : m_previous(QUOR_2_9::debug::set_invalid_parameter_handler(what == on_stop::throws ? &raise : &count_only)) {
		calls() = 0;
	}
	~stop_handler() { QUOR_2_9::debug::set_invalid_parameter_handler(m_previous); }
	stop_handler(stop_handler const &) = delete;
	stop_handler &operator=(stop_handler const &) = delete;

	// How often the library stopped since the construction.
	std::size_t count() const { return calls(); }

private:
	static std::size_t &calls() {
		static std::size_t value = 0;
		return value;
	}
	static void count_only(char const * /*what*/, char const * /*file*/, unsigned int /*line*/) { ++calls(); }
	static void raise(char const *what, char const *file, unsigned int /*line*/) {
		++calls();
		throw stopped{what, file};
	}

	QUOR_2_9::debug::invalid_parameter_handler m_previous;
};

} // namespace quor_test

#endif
