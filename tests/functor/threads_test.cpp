// Calls of one delegate in several threads at once. Meant for the thread sanitizer too.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include <quor/quor.hpp>

namespace {

// Counts its calls.
class counter : public quor::functor::function_type_interface<void()> {
public:
	explicit counter(std::atomic<int> &calls) : m_calls(calls) {}
	bool equal(function_type_interface const &other) const override { return this == &other; }
	counter *clone() const override { return new counter(*this); }
	void operator()() const override { ++m_calls; }

private:
	std::atomic<int> &m_calls;
};

TEST(delegate_threads, calls_of_one_delegate_go_on_at_once) {
	std::atomic<int> calls = 0;
	quor::functor::delegate_t<void()> const delegate{counter(calls)};
	std::vector<std::thread> threads;
	for (int i = 0; i != 4; ++i) {
		threads.emplace_back([&delegate] {
			for (int call = 0; call != 2000; ++call) {
				delegate();
			}
		});
	}
	for (std::thread &thread : threads) {
		thread.join();
	}
	EXPECT_EQ(calls, 8000);
}

} // namespace
