#ifndef QUOR_TESTS_SUPPORT_OUT_OF_RANGE_HPP
#define QUOR_TESTS_SUPPORT_OUT_OF_RANGE_HPP

#include <stdexcept>
#include <string>
#include <typeinfo>

namespace quor_test {

// The message of the std::out_of_range that the action throws, "" where it throws nothing.
template <class Action>
std::string out_of_range_of(Action const &action) {
	try {
		action();
	} catch (std::out_of_range const &error) {
		return typeid(error) == typeid(std::out_of_range) ? error.what() : "a derived class";
	}
	return {};
}

} // namespace quor_test

#endif
