#ifndef QUOR_TESTS_FUNCTOR_CALLABLES_HPP
#define QUOR_TESTS_FUNCTOR_CALLABLES_HPP

// Callables for the tests of the delegates.

#include <functional>
#include <utility>

#include <quor/quor.hpp>

namespace quor_test {

using number_function = int(int);
using number_callable = quor::functor::function_type_interface<number_function>;
using number_delegate = quor::functor::delegate_t<number_function>;

// What happened to the callables of one test.
struct callable_log {
	int made = 0;
	int cloned = 0;
	int destroyed = 0;
	int called = 0;
	int living() const { return made + cloned - destroyed; }
};

// Adds a number to its argument and logs its life; runs an action of the test in the
// call and looks at its own members behind it.
class adder : public number_callable {
public:
	adder(callable_log &log, int summand, std::function<void()> action = {})
	    : m_log(&log), m_summand(summand), m_action(std::move(action)) {
		++m_log->made;
	}
	adder(adder const &other)
	    : number_callable(other), m_log(other.m_log), m_summand(other.m_summand), m_action(other.m_action) {
		++m_log->cloned;
	}
	~adder() override {
		++m_log->destroyed;
		m_summand = -1000000;
	}

	bool equal(number_callable const &other) const override {
		auto const *const same = dynamic_cast<adder const *>(&other);
		return same != nullptr && same->m_summand == m_summand;
	}
	adder *clone() const override { return new adder(*this); }
	int operator()(int value) const override {
		++m_log->called;
		if (m_action) {
			m_action();
		}
		return value + m_summand;
	}

private:
	callable_log *m_log;
	int m_summand;
	std::function<void()> m_action;
};

// Can't be cloned.
class unclonable : public number_callable {
public:
	bool equal(number_callable const & /*other*/) const override { return false; }
	unclonable *clone() const override { throw std::bad_alloc(); }
	int operator()(int value) const override { return value; }
};

} // namespace quor_test

#endif
